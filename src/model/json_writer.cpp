#include "model/json.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <memory>

namespace velmora {

namespace {

using Writer = rapidjson::Writer<rapidjson::StringBuffer, rapidjson::UTF8<>, rapidjson::UTF8<>,
                                 rapidjson::CrtAllocator, rapidjson::kWriteValidateEncodingFlag>;

/// "missionId" becomes "mission_id".
std::string snakeCase(std::string_view name) {
    std::string snake;
    for (const char letter : name) {
        const bool capital = letter >= 'A' && letter <= 'Z';
        if (capital)
            snake += '_';
        snake += capital ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return snake;
}

struct Sink : Writer {
    Sink(rapidjson::StringBuffer& buffer, KeyStyle style) : Writer(buffer), keys(style) {}

    KeyStyle keys;
};

bool write(Sink& sink, bool value) {
    return sink.Bool(value);
}
bool write(Sink& sink, double value) {
    return sink.Double(value);
}
bool write(Sink& sink, std::int64_t value) {
    return sink.Int64(value);
}

bool write(Sink& sink, std::string_view value) {
    return sink.String(value.data(), static_cast<rapidjson::SizeType>(value.size()));
}
bool write(Sink& sink, const std::string& value) {
    return write(sink, std::string_view(value));
}
bool write(Sink& sink, const Uuid& value) {
    return write(sink, value.text());
}

bool write(Sink& sink, Date value) {
    const auto text = dateText(value);
    return text && write(sink, *text);
}

template <RawValued Enum>
bool write(Sink& sink, Enum value) {
    return write(sink, rawValue(value));
}

bool write(Sink& sink, const std::map<std::string, bool>& switches) {
    bool good = sink.StartObject();
    for (const auto& [key, on] : switches)
        good = good && write(sink, key) && write(sink, on);
    return good && sink.EndObject();
}

template <Described Record>
bool write(Sink& sink, const Record& record);

template <Described Record>
bool write(Sink& sink, const std::shared_ptr<const Record>& record) {
    return write(sink, *record);
}

template <class Item>
bool write(Sink& sink, const std::vector<Item>& items) {
    return sink.StartArray() &&
           std::ranges::all_of(items, [&](const Item& item) { return write(sink, item); }) && sink.EndArray();
}

template <class Value>
bool writeMember(Sink& sink, std::string_view name, const Value& value) {
    const bool named = sink.keys == KeyStyle::snakeCase ? write(sink, snakeCase(name)) : write(sink, name);
    return named && write(sink, value);
}

/// Writes no member for an absent value.
template <class Value>
bool writeMember(Sink& sink, std::string_view name, const std::optional<Value>& value) {
    return !value || writeMember(sink, name, *value);
}

template <Described Record>
bool write(Sink& sink, const Record& record) {
    bool good = sink.StartObject();
    forEachField<Record>(
        [&](const auto& field) { good = good && writeMember(sink, field.name, record.*(field.member)); });
    return good && sink.EndObject();
}

} // namespace

template <class T>
std::optional<std::string> encode(const T& value, KeyStyle keys) {
    rapidjson::StringBuffer buffer;
    Sink sink(buffer, keys);
    if (!write(sink, value))
        return std::nullopt;
    return std::string(buffer.GetString(), buffer.GetSize());
}

template std::optional<std::string> encode(const P&, KeyStyle);
template std::optional<std::string> encode(const CameraInfo&, KeyStyle);
template std::optional<std::string> encode(const Site&, KeyStyle);
template std::optional<std::string> encode(const DroneState&, KeyStyle);
template std::optional<std::string> encode(const Visitor&, KeyStyle);
template std::optional<std::string> encode(const Notice&, KeyStyle);
template std::optional<std::string> encode(const LiveState&, KeyStyle);
template std::optional<std::string> encode(const MissionRecord&, KeyStyle);
template std::optional<std::string> encode(const Settings&, KeyStyle);
template std::optional<std::string> encode(const JournalEntry&, KeyStyle);
template std::optional<std::string> encode(const std::vector<MissionRecord>&, KeyStyle);
template std::optional<std::string> encode(const std::vector<std::shared_ptr<const MissionRecord>>&,
                                           KeyStyle);

} // namespace velmora
