#include "model/validation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace velmora {

TEST(Validation, SettingsNumbersMustFitAnInteger) {
    constexpr double twoTo63 = 9223372036854775808.0;
    Settings settings;
    for (const double fit : {-twoTo63, std::nextafter(twoTo63, 0), -0.0}) {
        settings.returnBattery = fit;
        EXPECT_EQ(firstProblem(settings), "") << fit;
    }
    for (const double misfit : {std::nan(""), HUGE_VAL, -HUGE_VAL, twoTo63, -twoTo63 * 1.001}) {
        settings.approvalSeconds = misfit;
        EXPECT_EQ(firstProblem(settings), "approvalSeconds: out of range") << misfit;
    }
}

TEST(Validation, TheBoundsOfASiteContainTheirEdgesAndNothingBeyond) {
    Site site;
    EXPECT_TRUE(boundsOf(site).contains({0, 0})) << "an empty boundary is a point";
    site.boundary = {{30, 20}, {10, 50}, {40, 60}};
    const Bounds bounds = boundsOf(site);
    EXPECT_TRUE(bounds.contains({10, 20}) && bounds.contains({40, 60}));
    EXPECT_FALSE(bounds.contains({9.99, 30}) || bounds.contains({40.01, 30}));
    EXPECT_FALSE(bounds.contains({20, 19.99}) || bounds.contains({20, 60.01}));
    EXPECT_EQ(bounds.distanceInside({12, 40}), 2);
    EXPECT_EQ(bounds.distanceInside({37, 40}), 3);
    EXPECT_EQ(bounds.distanceInside({25, 24}), 4);
    EXPECT_EQ(bounds.distanceInside({25, 61}), -1);
}

TEST(Validation, RejectsAStateThatCannotBeDrawnOrWouldStallTheScreens) {
    const std::pair<std::function<void(LiveState&)>, std::string> cases[] = {
        {[](LiveState& s) {
             s.site.size = {1, 100'000}; // everything as large as is allowed
             s.notices.resize(1000);
             s.drone.trail.resize(10'000);
             s.site.cameras.resize(100);
             s.site.cameras[99].name.assign(1000, 'a');
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
        {[](LiveState& s) { s.notices.resize(1001); }, "notices: more than 1000 entries"},
        {[](LiveState& s) { s.drone.trail.resize(10'001); }, "drone.trail: more than 10000 entries"},
        {[](LiveState& s) { s.site.cameras.resize(101); }, "site.cameras: more than 100 entries"},
        {[](LiveState& s) { s.site.cameras[1].name.assign(1001, 'a'); },
         "site.cameras[1].name: longer than 1000 bytes"},
        {[](LiveState& s) { s.visitor.emplace().label.assign(1001, 'a'); },
         "visitor.label: longer than 1000 bytes"},
        {[](LiveState& s) { s.missionId.emplace(1001, 'a'); }, "missionId: longer than 1000 bytes"},
    };
    for (const auto& [change, problem] : cases) {
        LiveState state = LiveState::initial();
        change(state);
        EXPECT_EQ(firstProblem(state), problem);
    }
}

} // namespace velmora
