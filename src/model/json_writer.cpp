#include "model/json.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>

namespace velmora {

namespace {

using Sink = rapidjson::Writer<rapidjson::StringBuffer, rapidjson::UTF8<>, rapidjson::UTF8<>,
                               rapidjson::CrtAllocator, rapidjson::kWriteValidateEncodingFlag>;

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

template <class Item>
bool write(Sink& sink, const std::vector<Item>& items) {
    return sink.StartArray() &&
           std::ranges::all_of(items, [&](const Item& item) { return write(sink, item); }) && sink.EndArray();
}

template <class Value>
bool writeMember(Sink& sink, std::string_view name, const Value& value) {
    return write(sink, name) && write(sink, value);
}

/// An absent value leaves no member behind.
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
std::optional<std::string> encode(const T& value) {
    rapidjson::StringBuffer buffer;
    Sink sink(buffer);
    if (!write(sink, value))
        return std::nullopt;
    return std::string(buffer.GetString(), buffer.GetSize());
}

template std::optional<std::string> encode(const P&);
template std::optional<std::string> encode(const CameraInfo&);
template std::optional<std::string> encode(const Site&);
template std::optional<std::string> encode(const DroneState&);
template std::optional<std::string> encode(const Visitor&);
template std::optional<std::string> encode(const Notice&);
template std::optional<std::string> encode(const LiveState&);
template std::optional<std::string> encode(const MissionRecord&);
template std::optional<std::string> encode(const Settings&);
template std::optional<std::string> encode(const std::vector<MissionRecord>&);

} // namespace velmora
