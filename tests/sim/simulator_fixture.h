#pragma once

#include "sim/simulator.h"
#include "support/random.h"

#include <gmock/gmock.h>

namespace velmora {

/// A simulator of the demo site in constant wind, with a clock that the test controls.
class SimulatorTest : public testing::Test {
protected:
    SimulatorTest() {
        simulator.onFinish = [this](const MissionRecord& record) { records.push_back(record); };
    }

    void visit(Scenario scenario) { simulator.trigger(scenario, now); }
    void send(Command command) { simulator.send(command, now); }
    void step(double dt) { simulator.step(dt, now += Seconds{dt}); }
    void fly(double seconds, double dt = 0.05) {
        for (long steps = std::lround(seconds / dt); steps > 0; --steps)
            step(dt);
    }
    /// Steps until the phase is reached, for at most ten minutes.
    void flyUntil(Phase phase) {
        for (int i = 0; i < 12'000 && state.phase != phase; ++i)
            step(0.05);
        ASSERT_EQ(state.phase, phase);
    }
    /// Starts a visit, approves it at once and flies until the phase is reached.
    void visitApproved(Scenario scenario, Phase phase = Phase::launching) {
        visit(scenario);
        send(Command::approve);
        flyUntil(phase);
    }
    void moveVisitor(P to) {
        state.visitor->pos = to;
        step(0);
    }

    std::string latest() const { return state.notices.empty() ? "" : state.notices.front().text; }

    ScriptedRandom random;
    Simulator simulator{LiveState::initial(), Settings{}, random};
    LiveState& state = simulator.state;
    DroneState& drone = simulator.state.drone;
    Settings& settings = simulator.settings;
    const P pad = state.site.pad;
    Date now = dateFromSeconds(1'700'000'042);
    std::vector<MissionRecord> records;
};

} // namespace velmora
