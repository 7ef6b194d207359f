#include "simulator_fixture.h"

#include <set>

namespace velmora {

TEST_F(SimulatorTest, AVisitStartsAMissionThatWaitsForApproval) {
    random.draws[{0.82, 0.94}] = 0.913;
    drone.pos = {20, 30};
    drone.trail = {{20, 30}};
    visit(Scenario::front);
    EXPECT_EQ(state.phase, Phase::awaitingApproval);
    EXPECT_EQ(state.missionId, "M-42");
    EXPECT_EQ(state.missionStart, now);
    EXPECT_EQ(state.approvalDeadline, now + Seconds{60});
    EXPECT_EQ(state.visitor, (Visitor{{104, 88}, "Unknown person", 0.913, "front", true, {}}));
    EXPECT_EQ(drone.pos, pad);
    EXPECT_TRUE(drone.trail.empty());
    EXPECT_EQ(latest(), "Front lawn camera: someone you don't know");
    EXPECT_EQ(state.notices[0].level, Notice::Level::caution);
    EXPECT_EQ(state.notices[0].time, now);
    const LiveState before = state;
    visit(Scenario::garden);
    EXPECT_EQ(state, before) << "a detection during a mission is dropped";
}

TEST_F(SimulatorTest, ADetectionWhileDisarmedIsOnlyLogged) {
    state.armed = false;
    state.windKmh = settings.maxWindKmh + 1;
    random.draws[{0.82, 0.94}] = 0.84;
    visit(Scenario::garden);
    const std::vector<Notice> kept{state.notices.at(1)};
    EXPECT_THAT(records, testing::ElementsAre(MissionRecord{"M-42",
                                                            now,
                                                            now,
                                                            "garden",
                                                            "East garden",
                                                            "Unknown person",
                                                            0.84,
                                                            Outcome::disarmed,
                                                            {},
                                                            {},
                                                            0,
                                                            0,
                                                            kept,
                                                            "snapshot-garden",
                                                            false}));
    EXPECT_EQ(kept[0].text, "East garden camera: someone you don't know");
    EXPECT_EQ(latest(), "Logged while disarmed") << "in the live state only";
    EXPECT_EQ(state.phase, Phase::docked);
    EXPECT_FALSE(state.visitor || state.missionId || state.missionStart || state.approvalDeadline);
}

TEST_F(SimulatorTest, TheDroneFliesInWindUpToTheLimit) {
    state.site.cameras.clear();
    settings.maxWindKmh = state.windKmh = 20;
    visit(Scenario::driveway);
    EXPECT_EQ(state.phase, Phase::awaitingApproval);
    send(Command::ignore);
    EXPECT_EQ(latest(), "You ignored the alert");
    EXPECT_TRUE(records.at(0).cameraName == "Camera" && records[0].snapshot.empty())
        << "the site has no such camera";
    state.windKmh = std::nextafter(20.0, 21.0);
    now = dateFromSeconds(1'700'007'391.99);
    visit(Scenario::driveway);
    EXPECT_EQ(records.at(1).outcome, Outcome::windTooHigh);
    EXPECT_EQ(records[1].id, "M-7391");
}

TEST_F(SimulatorTest, TheAlertExpiresAtItsDeadlineOrWhenTheVisitorLeaves) {
    visit(Scenario::driveway);
    const Date deadline = now + Seconds{60};
    simulator.step(0, deadline - Seconds{0.001});
    EXPECT_EQ(state.phase, Phase::awaitingApproval);
    simulator.step(0, deadline);
    EXPECT_EQ(records.at(0).outcome, Outcome::expired);
    EXPECT_EQ(records[0].end, deadline);
    EXPECT_FALSE(state.approvalDeadline);
    EXPECT_EQ(records[0].notices.size(), 1u);
    EXPECT_EQ(latest(), "Alert expired — drone stayed docked");
    settings.approvalSeconds = 600;
    visit(Scenario::driveway);
    flyUntil(Phase::docked);
    EXPECT_EQ(records.at(1).outcome, Outcome::expired);
    EXPECT_EQ(records[1].confidence, 0.9);
    EXPECT_EQ(records[1].notices.back().text, "Visitor has left your grounds");
}

TEST_F(SimulatorTest, ALandingRightAfterApprovalIsRecordedWithItsBatteryUse) {
    random.draws[{0.82, 0.94}] = 0.83;
    visitApproved(Scenario::driveway);
    EXPECT_FALSE(state.approvalDeadline);
    fly(1);
    send(Command::land);
    flyUntil(Phase::docked);
    EXPECT_EQ(records.at(0).outcome, Outcome::landedByYou);
    EXPECT_EQ(records[0].end, now);
    EXPECT_NEAR(records[0].batteryUsed, 0.09 * (1 + 3 / 1.6), 0.005);
    EXPECT_EQ(records[0].confidence, 0.83) << "the visitor is still there";
    EXPECT_FALSE(state.visitor);
}

TEST_F(SimulatorTest, ADroneThatLandedAwayStaysThereUntilTheNextVisit) {
    visitApproved(Scenario::garden, Phase::following);
    send(Command::returnHome);
    send(Command::land);
    fly(2);
    EXPECT_EQ(latest(), "Landing now where it is — you asked");
    flyUntil(Phase::docked);
    EXPECT_EQ(records.at(0).outcome, Outcome::landedByYou) << "the later outcome replaces the earlier";
    EXPECT_EQ(latest(), "Landed away from the pad — please collect it");
    const P landed = drone.pos;
    fly(5);
    EXPECT_EQ(drone.pos, landed);

    visitApproved(Scenario::front);
    EXPECT_EQ(drone.pos, pad);
    fly(1);
    const P onTheWay = P{104, 88} + unit({-9, -10}) * 1.45;
    EXPECT_NEAR(distance(state.visitor->pos, onTheWay), 0, 1e-9) << "walks to the second point at once";
    state.visitor.reset();
    flyUntil(Phase::docked);
    EXPECT_EQ(records.at(1).outcome, Outcome::visitorLeft) << "no state of the first mission is left";
    EXPECT_EQ(records[1].notices[0].text, "Front lawn camera: someone you don't know");
    EXPECT_EQ(records[1].visitorPath.size(), 2u);
    EXPECT_LT(records[1].maxDistanceFromPad, 2);
}

TEST_F(SimulatorTest, TheStateKeepsFortyNoticesAndTheRecordAll) {
    visitApproved(Scenario::driveway, Phase::following);
    const std::size_t before = state.notices.size();
    for (int i = 0; i < 25; ++i) {
        send(Command::hold);
        send(Command::resume);
    }
    EXPECT_EQ(state.notices.size(), 40u);
    EXPECT_EQ(latest(), "Following again");
    send(Command::land);
    flyUntil(Phase::docked);
    EXPECT_EQ(records.at(0).notices.size(), before + 50 + 2);
    EXPECT_EQ(records[0].notices[0].text, "Driveway camera: someone you don't know");
}

TEST_F(SimulatorTest, CommandsActOnlyInThePhasesTheyFit) {
    using enum Phase;
    const std::tuple<Command, std::set<Phase>, Phase> rows[] = {
        {Command::approve, {awaitingApproval}, launching},
        {Command::ignore, {awaitingApproval}, docked},
        {Command::hold, {enRoute, following}, holding},
        {Command::resume, {holding}, enRoute},
        {Command::returnHome, {launching, enRoute, following, holding}, returning},
        {Command::land, {launching, enRoute, following, holding, returning, landing}, landing},
    };
    visitApproved(Scenario::driveway, following);
    const LiveState flying = state;
    for (const auto& [command, fits, effect] : rows)
        for (const auto& [phase, name] : rawValuesOf<Phase>) {
            state = flying;
            state.phase = phase;
            send(command);
            EXPECT_EQ(state.phase, fits.contains(phase) ? effect : phase) << rawValue(command) << name;
            EXPECT_EQ(state.notices != flying.notices, fits.contains(phase)) << rawValue(command) << name;
        }
}

} // namespace velmora
