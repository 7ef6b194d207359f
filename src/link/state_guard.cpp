#include "link/state_guard.h"

#include "model/limits.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::size_t longestText = 1000; // bytes
constexpr qsizetype longestVersion = 40;  // characters

template <class Item>
constexpr std::size_t mostEntries = 0;
template <>
inline constexpr std::size_t mostEntries<P> = 10'000;
template <>
inline constexpr std::size_t mostEntries<Notice> = 1000;
template <>
inline constexpr std::size_t mostEntries<CameraInfo> = 100;

/// The place and the name of the first excess in a value; empty when there is none.
template <class Value>
std::string excess(const Value&) {
    return {};
}

std::string excess(const std::string& text) {
    return text.size() > longestText ? ": longer than " + std::to_string(longestText) + " bytes" : "";
}

template <Described Record>
std::string excess(const Record& record);

template <class Item>
std::string excess(const std::vector<Item>& items) {
    if (items.size() > mostEntries<Item>)
        return ": more than " + std::to_string(mostEntries<Item>) + " entries";
    for (std::size_t i = 0; i < items.size(); ++i)
        if (const std::string found = excess(items[i]); !found.empty())
            return '[' + std::to_string(i) + ']' + found;
    return {};
}

template <class Item>
std::string excess(const std::optional<Item>& item) {
    return item ? excess(*item) : std::string();
}

template <Described Record>
std::string excess(const Record& record) {
    std::string found;
    forEachField<Record>([&](const auto& field) {
        if (!found.empty())
            return;
        const std::string place = excess(record.*(field.member));
        if (!place.empty())
            found = '.' + std::string(field.name) + place;
    });
    return found;
}

} // namespace

std::string troubleIn(const LiveState& state) {
    if (std::string misfit = unusableField(state); !misfit.empty())
        return misfit;
    const std::string found = excess(state);
    return found.empty() ? found : found.substr(1);
}

QString versionText(const QByteArray& header) {
    QString text = QString::fromUtf8(header).simplified();
    text.removeIf([](QChar letter) { return !letter.isPrint(); });
    return text.left(longestVersion);
}

} // namespace velmora
