#include "model/state_change.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

struct StateChangeTest : testing::Test {
    StateChangeTest() {
        before.visitor = Visitor{{10, 20}, "Unknown person", 0.9, "front", true, {{10, 20}}};
        before.phase = Phase::following;
        settings.returnBattery = 25;
        settings.maxWindKmh = 30;
    }

    void dock() {
        before.phase = Phase::docked;
        before.visitor.reset();
    }
    template <class Change>
    StateChange after(Change change) {
        LiveState state = before;
        change(state);
        return changeBetween(before, state, settings);
    }

    LiveState before = LiveState::initial();
    Settings settings;
};

TEST_F(StateChangeTest, InFlightEveryMovementCounts) {
    EXPECT_EQ(after([](LiveState&) {}), StateChange::none);
    EXPECT_EQ(after([](LiveState& state) { state.drone.pos.x += 1e-9; }), StateChange::motion);
    EXPECT_EQ(after([](LiveState& state) { state.drone.battery -= 1e-9; }), StateChange::motion);
    EXPECT_EQ(after([](LiveState& state) { state.gustKmh += 1e-9; }), StateChange::motion);
    EXPECT_EQ(after([](LiveState& state) { state.visitor->trail.clear(); }), StateChange::motion);
}

TEST_F(StateChangeTest, WhatTheOwnerMayHaveToActOnIsMoreThanMotion) {
    EXPECT_EQ(after([](LiveState& state) { state.phase = Phase::holding; }), StateChange::situation);
    EXPECT_EQ(after([](LiveState& state) { state.visitor.reset(); }), StateChange::situation);
    EXPECT_EQ(after([](LiveState& state) { state.visitor->inside = false; }), StateChange::situation);
    EXPECT_EQ(after([](LiveState& state) { state.visitor->cameraId = "garden"; }), StateChange::situation);
    EXPECT_EQ(after([](LiveState& state) { state.missionId = "another"; }), StateChange::situation);
    EXPECT_EQ(after([](LiveState& state) { state.approvalDeadline = Date(); }), StateChange::situation);
    EXPECT_EQ(after([](LiveState& state) { state.atBoundary = true; }), StateChange::situation);
    EXPECT_EQ(after([](LiveState& state) { state.site.cameras[0].online = false; }), StateChange::situation);
    EXPECT_EQ(after([](LiveState& state) { addNotice(state, {}); }), StateChange::situation);
}

TEST_F(StateChangeTest, DockedOnlyWhatIsShownCounts) {
    dock();
    before.drone.battery = 92.2;
    before.drone.signal = 0.961;
    before.windKmh = 9.1;
    EXPECT_EQ(after([](LiveState& state) { state.drone.battery = 92.49; }), StateChange::none);
    EXPECT_EQ(after([](LiveState& state) { state.drone.battery = 92.51; }), StateChange::motion);
    EXPECT_EQ(after([](LiveState& state) { state.drone.signal = 0.964; }), StateChange::none);
    EXPECT_EQ(after([](LiveState& state) { state.drone.signal = 0.966; }), StateChange::motion);
    EXPECT_EQ(after([](LiveState& state) { state.windKmh = 9.4; }), StateChange::none);
    EXPECT_EQ(after([](LiveState& state) { state.windKmh = 9.6; }), StateChange::motion);
    EXPECT_EQ(after([](LiveState& state) { state.drone.pos.x += 1e-9; }), StateChange::motion);
}

/// The shown numbers are the same on both sides of these limits.
TEST_F(StateChangeTest, DockedALimitCountsToo) {
    dock();
    before.drone.battery = 25.1;
    before.windKmh = 29.9;
    EXPECT_EQ(after([](LiveState& state) { state.drone.battery = 25; }), StateChange::motion);
    EXPECT_EQ(after([](LiveState& state) { state.windKmh = 30.1; }), StateChange::motion);
}

} // namespace

} // namespace velmora
