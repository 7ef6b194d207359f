#include "model/limits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace velmora {

TEST(Limits, SettingsHoldNumbersThatFitAWholeNumber) {
    constexpr double twoTo63 = 9223372036854775808.0;
    Settings settings;
    for (const double fit : {-twoTo63, std::nextafter(twoTo63, 0), -0.0}) {
        settings.returnBattery = fit;
        EXPECT_EQ(unusableField(settings), "") << fit;
    }
    for (const double misfit : {std::nan(""), HUGE_VAL, -HUGE_VAL, twoTo63, -twoTo63 * 1.001}) {
        settings.approvalSeconds = misfit;
        EXPECT_EQ(unusableField(settings), "approvalSeconds: out of range") << misfit;
    }
}

TEST(Limits, ALiveStateHasADrawableSiteAndNumbersThatFit) {
    const std::pair<std::function<void(LiveState&)>, std::string> cases[] = {
        {[](LiveState& s) {
             s.site.size = {1, 100'000};
         },
         ""},
        {[](LiveState& s) { s.site.boundary.clear(); }, "site.boundary: expected at least one point"},
        {[](LiveState& s) { s.site.size.x = 0.999; }, "site.size: expected 1 to 100000 metres"},
        {[](LiveState& s) { s.site.size.x = 100'001; }, "site.size: expected 1 to 100000 metres"},
        {[](LiveState& s) { s.site.size.y = std::nan(""); }, "site.size: expected 1 to 100000 metres"},
        {[](LiveState& s) {
             s.drone.trail = {{0, 0}, {0, HUGE_VAL}};
         },
         "drone.trail[1].y: out of range"},
        {[](LiveState& s) { s.visitor.emplace().confidence = -1e300; }, "visitor.confidence: out of range"},
    };
    for (const auto& [change, unusable] : cases) {
        LiveState state = LiveState::initial();
        change(state);
        EXPECT_EQ(unusableField(state), unusable);
    }
}

} // namespace velmora
