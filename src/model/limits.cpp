#include "model/limits.h"

#include "model/objection.h"
#include "model/whole.h"

namespace velmora {

namespace {

constexpr double smallestSite = 1, largestSite = 100'000; // metres

struct NumbersFit {
    template <class Value>
    std::string operator()(const Value&) const {
        return {};
    }
    std::string operator()(double number) const { return fitsWhole(number) ? std::string() : "out of range"; }
};

bool isDrawable(double metres) {
    return metres >= smallestSite && metres <= largestSite;
}

} // namespace

std::string unusableField(const Settings& settings) {
    return firstObjection(settings, NumbersFit());
}

std::string unusableField(const LiveState& state) {
    if (state.site.boundary.empty())
        return "site.boundary: expected at least one point";
    if (!isDrawable(state.site.size.x) || !isDrawable(state.site.size.y))
        return "site.size: expected 1 to 100000 metres";
    return firstObjection(state, NumbersFit());
}

} // namespace velmora
