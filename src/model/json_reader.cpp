#include "model/json.h"

#include <simdjson.h>

#include <algorithm>
#include <bitset>

namespace velmora {

namespace {

using Element = simdjson::dom::element;

constexpr std::size_t mostReserved =
    1000; // items; a short text can begin a list of millions that cannot be read

/// Removes each underscore inside the key and capitalises the letter after it: "mission_id" becomes
/// "missionId". Underscores at either end stay. The result refers to `key` or `buffer`.
std::string_view camelCase(std::string_view key, std::string& buffer) {
    if (std::ranges::find(key, '_') == key.end())
        return key;
    const std::size_t first = key.find_first_not_of('_'), last = key.find_last_not_of('_');
    if (first == std::string_view::npos)
        return key;
    buffer.assign(key.substr(0, first));
    for (std::size_t i = first; i <= last; ++i) {
        if (key[i] == '_')
            continue;
        const bool capitalised = i > first && key[i - 1] == '_' && key[i] >= 'a' && key[i] <= 'z';
        buffer += capitalised ? static_cast<char>(key[i] - 'a' + 'A') : key[i];
    }
    buffer.append(key.substr(last + 1));
    return buffer;
}

/// Reads values and keeps the first error with its path. Its reading functions return false on an error.
class Reader {
public:
    explicit Reader(KeyStyle keys) : keys_(keys) {}

    const std::string& problem() const { return problem_; }
    const std::string& path() const { return path_; }

    bool read(Element element, bool& value) { return !element.get(value) || fail("expected true or false"); }

    bool read(Element element, double& value) { return !element.get(value) || fail("expected a number"); }

    bool read(Element element, std::int64_t& value) {
        return !element.get(value) || fail("expected an integer");
    }

    bool read(Element element, std::string& value) {
        std::string_view text;
        if (element.get(text))
            return fail("expected text");
        value = text;
        return true;
    }

    bool read(Element element, Uuid& value) {
        return readText(element, value, Uuid::fromText, "expected a UUID");
    }

    bool read(Element element, Date& value) {
        return readText(element, value, dateFromText, "expected a date such as 2025-06-01T14:03:12Z");
    }

    template <RawValued Enum>
    bool read(Element element, Enum& value) {
        return readText(element, value, fromRawValue<Enum>, "not one of the known values");
    }

    bool read(Element element, std::map<std::string, bool>& switches) {
        simdjson::dom::object object;
        if (element.get(object))
            return fail("expected an object");
        for (const auto [key, member] : object) {
            const auto [entry, isNew] = switches.try_emplace(std::string(key));
            if (!(isNew || fail("given twice")) || !read(member, entry->second))
                return within(key);
        }
        return true;
    }

    template <class Item>
    bool read(Element element, std::vector<Item>& items) {
        simdjson::dom::array array;
        if (element.get(array))
            return fail("expected a list");
        items.reserve(std::min(array.size(), mostReserved));
        for (const Element member : array)
            if (!read(member, items.emplace_back()))
                return within("[" + std::to_string(items.size() - 1) + "]");
        return true;
    }

    template <class Value>
    bool read(Element element, std::optional<Value>& value) {
        return element.is_null() || read(element, value.emplace());
    }

    template <Described Record>
    bool read(Element element, Record& record) {
        simdjson::dom::object object;
        if (element.get(object))
            return fail("expected an object");
        std::bitset<fieldCount<Record>> seen;
        for (const auto [key, member] : object)
            if (!readMember(key, member, record, seen))
                return false;
        return everyRequired<Record>(seen);
    }

private:
    bool fail(std::string_view problem) {
        problem_ = problem;
        return false;
    }

    /// Prepends one step to the path of the error: a key, or "[index]". Returns false.
    bool within(std::string_view step) {
        const bool joined = path_.empty() || path_.front() == '[';
        path_ = std::string(step) + (joined ? "" : ".") + path_;
        return false;
    }

    template <class Value, class Parse>
    bool readText(Element element, Value& value, Parse parse, std::string_view problem) {
        std::string_view text;
        if (element.get(text))
            return fail(problem);
        const auto parsed = parse(text);
        if (!parsed)
            return fail(problem);
        value = *parsed;
        return true;
    }

    /// Reads the member into the field with its name; ignores a member without such a field.
    template <class Record>
    bool readMember(std::string_view key, Element member, Record& record,
                    std::bitset<fieldCount<Record>>& seen) {
        const std::string_view name = keys_ == KeyStyle::snakeCase ? camelCase(key, buffer_) : key;
        bool good = true;
        std::size_t next = 0;
        const auto readField = [&](const auto& field) {
            const std::size_t index = next++;
            if (field.name != name)
                return false;
            good = (!seen.test(index) || fail("given twice")) && read(member, record.*(field.member));
            seen.set(index);
            return true;
        };
        std::apply([&](const auto&... field) { (readField(field) || ...); }, fieldsOf<Record>);
        return good || within(key);
    }

    template <class Record>
    bool everyRequired(const std::bitset<fieldCount<Record>>& seen) {
        if (seen.all())
            return true;
        std::size_t index = 0;
        bool good = true;
        forEachField<Record>([&](const auto& field) {
            using Value = std::remove_cvref_t<decltype(std::declval<Record>().*(field.member))>;
            const bool found = seen.test(index++) || isOptional<Value>;
            if (good && !found) {
                good = fail("missing");
                within(field.name);
            }
        });
        return good;
    }

    KeyStyle keys_;
    std::string problem_;
    std::string path_;
    std::string buffer_; ///< a converted key; overwritten by the next one
};

std::string errorText(std::string_view root, const std::string& path, std::string_view problem) {
    std::string text(root);
    if (!text.empty() && !path.empty() && path.front() != '[')
        text += '.';
    text += path;
    if (!text.empty())
        text += ": ";
    return text.append(problem);
}

} // namespace

template <class T>
Decoded<T> decode(std::string_view json, KeyStyle keys, std::string_view root) {
    simdjson::dom::parser parser;
    Element document;
    if (const auto error = parser.parse(json.data(), json.size()).get(document))
        return {std::nullopt, errorText(root, {}, simdjson::error_message(error))};
    Reader reader(keys);
    Decoded<T> result;
    if (!reader.read(document, result.value.emplace()))
        return {std::nullopt, errorText(root, reader.path(), reader.problem())};
    return result;
}

template Decoded<P> decode(std::string_view, KeyStyle, std::string_view);
template Decoded<CameraInfo> decode(std::string_view, KeyStyle, std::string_view);
template Decoded<Site> decode(std::string_view, KeyStyle, std::string_view);
template Decoded<DroneState> decode(std::string_view, KeyStyle, std::string_view);
template Decoded<Visitor> decode(std::string_view, KeyStyle, std::string_view);
template Decoded<Notice> decode(std::string_view, KeyStyle, std::string_view);
template Decoded<LiveState> decode(std::string_view, KeyStyle, std::string_view);
template Decoded<MissionRecord> decode(std::string_view, KeyStyle, std::string_view);
template Decoded<Settings> decode(std::string_view, KeyStyle, std::string_view);
template Decoded<JournalEntry> decode(std::string_view, KeyStyle, std::string_view);
template Decoded<std::vector<MissionRecord>> decode(std::string_view, KeyStyle, std::string_view);

} // namespace velmora
