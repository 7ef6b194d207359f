#include "model/csv.h"

#include "model/mission_evidence.h"

#include <array>
#include <charconv>
#include <initializer_list>

namespace velmora {

namespace {

constexpr std::string_view lineEnd = "\r\n";

std::string numberText(double number) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    return {buffer.data(), end};
}

/// Quotes the field if RFC 4180 requires it. Prefixes an apostrophe if a spreadsheet would read the text as a
/// formula.
std::string field(std::string text) {
    constexpr std::string_view formulaStarts = "=+-@\t";
    if (!text.empty() && formulaStarts.find(text.front()) != std::string_view::npos)
        text.insert(text.begin(), '\'');
    if (text.find_first_of("\",\r\n") == std::string::npos)
        return text;
    std::string quoted = "\"";
    for (const char character : text) {
        quoted += character;
        if (character == '"')
            quoted += '"';
    }
    return quoted + '"';
}

/// Appends one line; `fields` must already be quoted.
void addLine(std::string& csv, std::initializer_list<std::string> fields) {
    bool first = true;
    for (const std::string& one : fields) {
        if (!first)
            csv += ',';
        csv += one;
        first = false;
    }
    csv += lineEnd;
}

void addPath(std::string& csv, const std::vector<P>& path, double from, double interval, const char* who) {
    double index = 0;
    for (const P& point : path)
        addLine(csv,
                {numberText(from + interval * index++), who, numberText(point.x), numberText(point.y), {}});
}

} // namespace

std::string pathsCsv(const MissionRecord& record) {
    std::string csv;
    addLine(csv, {"seconds", "who", "x", "y", "text"});
    const PathTimes times = pathTimes(record);
    addPath(csv, record.visitorPath, 0, times.interval, "visitor");
    addPath(csv, record.dronePath, times.droneFrom, times.interval, "drone");
    for (const Notice& notice : record.notices)
        addLine(csv,
                {numberText((notice.time - record.start).count()), "notice", {}, {}, field(notice.text)});
    return csv;
}

std::string recordsCsv(const std::vector<MissionRecord>& records) {
    std::string csv;
    addLine(csv, {"id", "start", "end", "camera", "label", "outcome", "confidence", "battery used",
                  "furthest out", "demo"});
    for (const MissionRecord& record : records)
        addLine(csv,
                {field(record.id), dateText(record.start).value_or(""), dateText(record.end).value_or(""),
                 field(record.cameraName), field(record.label), field(std::string(rawValue(record.outcome))),
                 numberText(record.confidence), numberText(record.batteryUsed),
                 numberText(record.maxDistanceFromPad), record.demo ? "yes" : "no"});
    return csv;
}

} // namespace velmora
