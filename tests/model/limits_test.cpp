#include "model/limits.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace velmora {

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double twoTo63 = 9223372036854775808.0;

} // namespace

TEST(Limits, SettingsHoldNumbersThatFitAWholeNumber) {
    using Number = double Settings::*;
    const std::pair<Number, std::string> numbers[] = {
        {&Settings::flightHeight, "flightHeight"},      {&Settings::minimumHeight, "minimumHeight"},
        {&Settings::followDistance, "followDistance"},  {&Settings::boundaryBuffer, "boundaryBuffer"},
        {&Settings::returnBattery, "returnBattery"},    {&Settings::maxWindKmh, "maxWindKmh"},
        {&Settings::approvalSeconds, "approvalSeconds"}};
    for (const auto& [number, name] : numbers) {
        Settings settings;
        for (const double misfit : {nan, infinity, -infinity, twoTo63, -twoTo63 * 1.001}) {
            settings.*number = misfit;
            EXPECT_EQ(unusableField(settings), name + ": out of range");
        }
        for (const double fit : {-twoTo63, std::nextafter(twoTo63, 0), -0.0}) {
            settings.*number = fit;
            EXPECT_EQ(unusableField(settings), "");
        }
    }
}

TEST(Limits, ALiveStateHasADrawableSiteAndNumbersThatFit) {
    struct Case {
        std::function<void(LiveState&)> change;
        std::string unusable;
    };
    const Case cases[] = {
        {[](LiveState&) {}, ""},
        {[](LiveState& s) { s.site.boundary.clear(); }, "site.boundary: expected at least one point"},
        {[](LiveState& s) { s.site.size.x = 0.999; }, "site.size: expected 1 to 100000 metres"},
        {[](LiveState& s) { s.site.size.y = 100'001; }, "site.size: expected 1 to 100000 metres"},
        {[](LiveState& s) { s.site.size.y = nan; }, "site.size: expected 1 to 100000 metres"},
        {[](LiveState& s) {
             s.site.size = {1, 100'000};
         },
         ""},
        {[](LiveState& s) { s.drone.battery = 1e19; }, "drone.battery: out of range"},
        {[](LiveState& s) {
             s.drone.trail = {{0, 0}, {0, infinity}};
         },
         "drone.trail[1].y: out of range"},
        {[](LiveState& s) { s.visitor.emplace().confidence = -1e300; }, "visitor.confidence: out of range"},
        {[](LiveState& s) { s.site.cameras[2].pos.x = nan; }, "site.cameras[2].pos.x: out of range"},
    };
    for (const auto& [change, unusable] : cases) {
        LiveState state = LiveState::initial();
        change(state);
        EXPECT_EQ(unusableField(state), unusable);
    }
}

TEST(Limits, BoundsSpanTheBoundaryWhateverItsOrderAndAreZeroWithoutOne) {
    Site site;
    const auto corners = [&] {
        const Bounds bounds = boundsOf(site);
        return std::array{bounds.minX, bounds.minY, bounds.maxX, bounds.maxY};
    };
    EXPECT_EQ(corners(), (std::array{0.0, 0.0, 0.0, 0.0}));
    site.boundary = {{5, 9}, {-3, 4}, {8, 20}};
    EXPECT_EQ(corners(), (std::array{-3.0, 4.0, 8.0, 20.0}));
    EXPECT_TRUE(boundsOf(site).contains({8, 4})) << "edges belong to the grounds";
    EXPECT_FALSE(boundsOf(site).contains({8, std::nextafter(20.0, 21.0)}));
}

} // namespace velmora
