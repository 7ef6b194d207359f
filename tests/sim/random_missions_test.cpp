#include "simulator_fixture.h"

#include <set>

namespace velmora {

namespace {

using enum Phase;

/// Whether one step without a command may change the phase like this. A drone over the pad can return and
/// begin to land in one step.
bool mayStep(Phase from, Phase to, bool overThePad) {
    const std::map<Phase, std::set<Phase>> table = {{awaitingApproval, {docked}},
                                                    {launching, {enRoute, returning}},
                                                    {enRoute, {following, returning}},
                                                    {following, {returning}},
                                                    {holding, {returning}},
                                                    {returning, {landing}},
                                                    {landing, {docked}},
                                                    {docked, {}}};
    return from == to || table.at(from).contains(to) || (airborne(from) && to == landing && overThePad);
}

/// Random missions, one after another in one simulator, checked at every step.
class RandomMissions : public testing::Test {
protected:
    RandomMissions() {
        simulator.onFinish = [this](const MissionRecord& record) {
            EXPECT_EQ(record.end, now);
            records.push_back(record);
        };
    }

    double integer(double low, double high) { return std::floor(random.uniform(low, high + 1)); }

    void startVisit() {
        Settings& settings = simulator.settings;
        settings.flightHeight = integer(10, 30);
        settings.followDistance = integer(8, 30);
        settings.boundaryBuffer = integer(2, 15);
        settings.returnBattery = integer(20, 50);
        settings.maxWindKmh = integer(15, 38);
        settings.approvalSeconds = integer(30, 120);
        state.drone.battery = random.uniform(15, 100);
        state.windKmh = random.uniform(3, 26);
        state.armed = random.chance(0.9);
        simulator.trigger(random.anyOf<Scenario>(), now);
    }

    void step() {
        const double dt = random.uniform(0, 0.05);
        const Phase before = state.phase;
        simulator.step(dt, now += Seconds{dt});
        EXPECT_TRUE(mayStep(before, state.phase, distance(state.drone.pos, state.site.pad) < 0.6))
            << rawValue(before) << " stepped to " << rawValue(state.phase);
    }

    void perhapsCommand() {
        if (random.chance(state.phase == awaitingApproval ? 0.001 : 0.0005))
            simulator.send(rawValuesOf<Command>[random.chance(0.7) ? 0 : random.below(6)].first, now);
    }

    void expectInRange() const {
        const DroneState& drone = state.drone;
        const double buffer = simulator.settings.boundaryBuffer;
        EXPECT_TRUE(drone.pos.x >= 7.4 + buffer && drone.pos.x <= 142.6 - buffer) << drone.pos.x;
        EXPECT_TRUE(drone.pos.y >= 6.6 + buffer && drone.pos.y <= 90.6 - buffer) << drone.pos.y;
        EXPECT_TRUE(drone.altitude >= 0 && drone.altitude <= simulator.settings.flightHeight);
        EXPECT_TRUE(drone.battery >= 0 && drone.battery <= 100) << drone.battery;
        EXPECT_TRUE(drone.signal >= 0.55 && drone.signal <= 0.98) << drone.signal;
        EXPECT_TRUE(state.windKmh >= 3 && state.windKmh <= 26 && state.gustKmh >= 0 && state.gustKmh <= 36);
        EXPECT_TRUE(state.notices.size() <= 40 && drone.trail.size() <= 160);
        EXPECT_EQ(state.phase == docked, !state.missionId);
        EXPECT_EQ(state.phase == awaitingApproval, state.approvalDeadline.has_value());
    }

    SeededRandom random{3};
    Simulator simulator{LiveState::initial(), Settings{}, random};
    LiveState& state = simulator.state;
    Date now = dateFromSeconds(1'700'000'000);
    std::vector<MissionRecord> records;
};

} // namespace

TEST_F(RandomMissions, EndInOneRecordEachAndNeverLeaveTheirLimits) {
    std::set<Outcome> outcomes;
    for (std::size_t mission = 1; mission <= 200; ++mission) {
        startVisit();
        for (int i = 0; i < 40'000 && state.phase != docked && !HasFailure(); ++i) {
            expectInRange();
            perhapsCommand();
            step();
        }
        ASSERT_EQ(records.size(), mission);
        const MissionRecord& record = records.back();
        outcomes.insert(record.outcome);
        EXPECT_TRUE(flew(record.outcome) || (record.batteryUsed == 0 && record.dronePath.empty()));
        for (const P& p : record.dronePath)
            EXPECT_LE(distance(p, state.site.pad), record.maxDistanceFromPad);
        const LiveState landed = state;
        for (int i = 0; i < 100; ++i)
            step();
        EXPECT_EQ(records.size(), mission) << "nothing changes after the end";
        EXPECT_TRUE(state.notices == landed.notices && state.drone.trail == landed.drone.trail);
        EXPECT_TRUE(state.drone.pos == landed.drone.pos && !state.visitor);
        ASSERT_FALSE(HasFailure()) << "in mission " << mission;
    }
    EXPECT_EQ(outcomes.size(), rawValuesOf<Outcome>.size()) << "every outcome occurred";
}

} // namespace velmora
