#pragma once

#include "sim/simulator.h"

#include <gmock/gmock.h>

#include <map>
#include <random>

namespace velmora {

/// Draws what the test has set for a range, by default its middle, so that the wind keeps still.
class ScriptedRandom final : public Random {
public:
    using Range = std::pair<double, double>;

    double uniform(double low, double high) override {
        asked.emplace_back(low, high);
        const auto found = draws.find({low, high});
        return found == draws.end() ? (low + high) / 2 : found->second;
    }
    Uuid uuid() override { return Uuid::fromRandomBits(0, ++ids_); }

    std::map<Range, double> draws; ///< by the range asked for
    std::vector<Range> asked;      ///< the range of every draw, in order

private:
    std::uint64_t ids_ = 0;
};

/// Draws that look random and are the same for the same seed on every machine.
class SeededRandom final : public Random {
public:
    explicit SeededRandom(std::uint64_t seed) : generator_(seed) {}

    double uniform(double low, double high) override {
        return low + (high - low) * (static_cast<double>(generator_() >> 11) * 0x1p-53);
    }
    Uuid uuid() override { return Uuid::fromRandomBits(0, generator_()); }
    bool chance(double probability) { return uniform(0, 1) < probability; }
    std::size_t below(std::size_t limit) { return generator_() % limit; }

private:
    std::mt19937_64 generator_;
};

/// A simulator on the demo site, in calm wind, with a clock that only the test moves.
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
    /// Lets at most ten minutes pass until the phase is reached.
    void flyUntil(Phase phase) {
        for (int i = 0; i < 12'000 && state.phase != phase; ++i)
            step(0.05);
        ASSERT_EQ(state.phase, phase);
    }
    /// A visit approved at once and followed up to the phase.
    void visitApproved(Scenario scenario, Phase phase = Phase::launching) {
        visit(scenario);
        send(Command::approve);
        flyUntil(phase);
    }
    void stand(P visitor) {
        state.visitor->pos = visitor;
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
