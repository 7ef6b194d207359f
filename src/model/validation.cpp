#include "model/validation.h"

#include "model/truncated.h"

namespace velmora {

namespace {

template <class Value>
inline constexpr bool isList = false;
template <class Item>
inline constexpr bool isList<std::vector<Item>> = true;

/// Path and problem of the first value that `check` rejects, such as ".drone.battery: out of range"; empty if
/// there is none. `check` is called with every value that is not a record, a list before its items. It
/// returns the problem, or an empty text.
template <class Value, class Check>
std::string firstRejected(const Value& value, const Check& check) {
    std::string found;
    if constexpr (Described<Value>) {
        forEachField<Value>([&](const auto& field) {
            if (!found.empty())
                return;
            found = firstRejected(value.*(field.member), check);
            if (!found.empty())
                found = '.' + std::string(field.name) + found;
        });
    } else if constexpr (isOptional<Value>) {
        if (value)
            found = firstRejected(*value, check);
    } else {
        if (const std::string problem = check(value); !problem.empty())
            return ": " + problem;
        if constexpr (isList<Value>)
            for (std::size_t i = 0; i < value.size() && found.empty(); ++i)
                if (found = firstRejected(value[i], check); !found.empty())
                    found = '[' + std::to_string(i) + ']' + found;
    }
    return found;
}

std::string withoutDot(const std::string& path) {
    return path.empty() ? path : path.substr(1);
}

struct NumbersFit {
    template <class Value>
    std::string operator()(const Value&) const {
        return {};
    }
    std::string operator()(double number) const { return fitsInt64(number) ? std::string() : "out of range"; }
};

struct StateFits : NumbersFit {
    explicit StateFits(const Limits& most) : limits(most) {}

    using NumbersFit::operator();
    std::string operator()(const std::string& text) const {
        return text.size() > limits.textBytes ? "longer than " + std::to_string(limits.textBytes) + " bytes"
                                              : "";
    }
    std::string operator()(const std::vector<P>& points) const { return fits(points.size(), limits.points); }
    std::string operator()(const std::vector<Notice>& notices) const {
        return fits(notices.size(), limits.notices);
    }
    std::string operator()(const std::vector<CameraInfo>& cameras) const {
        return fits(cameras.size(), limits.cameras);
    }

    static std::string fits(std::size_t count, std::size_t most) {
        return count > most ? "more than " + std::to_string(most) + " entries" : "";
    }

    const Limits& limits;
};

} // namespace

std::string firstProblem(const Settings& settings) {
    return withoutDot(firstRejected(settings, NumbersFit()));
}

std::string firstProblem(const LiveState& state, const Limits& limits) {
    const auto isDrawable = [&](double metres) {
        return metres >= limits.smallestSite && metres <= limits.largestSite;
    };
    if (state.site.boundary.empty())
        return "site.boundary: expected at least one point";
    if (!isDrawable(state.site.size.x) || !isDrawable(state.site.size.y))
        return "site.size: expected " + std::to_string(limits.smallestSite) + " to " +
               std::to_string(limits.largestSite) + " metres";
    return withoutDot(firstRejected(state, StateFits(limits)));
}

} // namespace velmora
