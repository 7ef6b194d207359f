#include "link/state_guard.h"

#include "model/limits.h"
#include "model/objection.h"

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

struct SizesAreModest {
    template <class Value>
    std::string operator()(const Value&) const {
        return {};
    }
    std::string operator()(const std::string& text) const {
        return text.size() > longestText ? "longer than " + std::to_string(longestText) + " bytes" : "";
    }
    template <class Item>
    std::string operator()(const std::vector<Item>& items) const {
        return items.size() > mostEntries<Item>
                   ? "more than " + std::to_string(mostEntries<Item>) + " entries"
                   : "";
    }
};

} // namespace

std::string troubleIn(const LiveState& state) {
    if (std::string misfit = unusableField(state); !misfit.empty())
        return misfit;
    return firstObjection(state, SizesAreModest());
}

QString versionText(const QByteArray& header) {
    QString text = QString::fromUtf8(header).simplified();
    text.removeIf([](QChar letter) { return !letter.isPrint(); });
    return text.left(longestVersion);
}

} // namespace velmora
