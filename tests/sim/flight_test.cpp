#include "model/follow_point.h"
#include "simulator_fixture.h"

#include <numbers>

namespace velmora {

namespace {

using Range = ScriptedRandom::Range;
const Range wind{-0.4, 0.4}, untilGust{18, 35}, strength{24, 36}, direction{0, 2 * std::numbers::pi};
const Range jitter{-0.01, 0.01};

} // namespace

TEST_F(SimulatorTest, AGustHitsTheDroneAfterTwentySecondsInTheAir) {
    random.draws = {{strength, 30.9}, {direction, 0}, {untilGust, 25}};
    visit(Scenario::driveway);
    fly(50);
    EXPECT_EQ(state.gustKmh, 0) << "the countdown runs only in the air";
    send(Command::approve);
    send(Command::land);
    drone.altitude = 200;
    fly(19.75, 0.25);
    EXPECT_EQ(state.gustKmh, 0);
    step(0.25);
    EXPECT_EQ(state.gustKmh, 30.9);
    EXPECT_EQ(latest(), "Gust of 30 km/h — recovered and back on station");
    EXPECT_NEAR(drone.speed, 3.09 - 1, 1e-12) << "the steering answers within the same step";
    EXPECT_NEAR(drone.pos.x, pad.x + (3.09 - 1) * 0.25, 1e-12);
    step(0.5);
    EXPECT_NEAR(state.gustKmh, 30.9 - 3, 1e-12);
    fly(24.25, 0.25);
    EXPECT_EQ(state.gustKmh, 0) << "faded";
    random.asked.clear();
    step(0.25);
    EXPECT_EQ(state.gustKmh, 30.9) << "25 seconds after the first";
    EXPECT_THAT(random.asked, testing::ElementsAre(wind, untilGust, strength, direction, jitter));
}

TEST_F(SimulatorTest, TheHeadingFollowsOnlyMoreThanHalfAMetreAndHalfAMetreASecond) {
    visitApproved(Scenario::driveway, Phase::following);
    send(Command::hold);
    fly(5);
    const auto headingTo = [&](double metres) {
        drone.heading = 200;
        moveVisitor(drone.pos + P{0, metres});
        return drone.heading;
    };
    drone.pos = {50, 50};
    EXPECT_EQ(headingTo(0.5), 200);
    EXPECT_DOUBLE_EQ(headingTo(0.50001), 90);
}

TEST_F(SimulatorTest, AGustTurnsTheDroneOnlyIfItMovesIt) {
    const auto headingAfter = [](double gust) {
        ScriptedRandom draws;
        draws.draws = {{strength, gust}, {direction, 0}};
        Simulator one(LiveState::initial(), Settings{}, draws);
        Date time = dateFromSeconds(1'700'000'042);
        one.trigger(Scenario::driveway, time);
        one.send(Command::approve, time);
        one.send(Command::land, time);
        one.state.drone.altitude = 200;
        one.state.drone.heading = 200;
        for (int i = 0; i < 80; ++i)
            one.step(0.25, time += Seconds{0.25});
        return one.state.drone.heading;
    };
    EXPECT_EQ(headingAfter(15), 200) << "the steering leaves 0.5 m/s";
    EXPECT_EQ(headingAfter(15.1), 0);
}

TEST_F(SimulatorTest, AVisitorWhoReachesAPointExactlyGoesOnWithTheNextStep) {
    constexpr double second = 1 / 1.45; // in which a visitor walks a metre
    visit(Scenario::driveway);
    moveVisitor({21, 79});
    step(second);
    EXPECT_EQ(state.visitor->pos, (P{22, 79}));
    step(second);
    EXPECT_NEAR(distance(state.visitor->pos, {22, 79}), 1, 1e-9);
}

TEST_F(SimulatorTest, AStepOfZeroSecondsDrawsButMovesNothing) {
    settings.flightHeight = 1000;
    visitApproved(Scenario::driveway);
    random.draws = {{untilGust, 0}, {jitter, -0.01}, {wind, -0.4}};
    step(20);
    EXPECT_EQ(state.windKmh, 3);
    random.draws[strength] = 25;
    drone.pos = pad + P{-40, 30};
    const LiveState before = state;
    step(0);
    EXPECT_EQ(state.gustKmh, 25) << "a due gust still comes";
    EXPECT_DOUBLE_EQ(drone.signal, 0.97 - 50 / 400.0 - 0.01);
    EXPECT_TRUE(drone.pos == before.drone.pos && drone.battery == before.drone.battery);
    EXPECT_TRUE(state.visitor == before.visitor && state.windKmh == before.windKmh);
    drone.pos = pad + P{0, 170};
    random.draws[wind] = 0.4;
    step(100);
    EXPECT_EQ(drone.signal, 0.55);
    EXPECT_EQ(state.windKmh, 26);
}

TEST_F(SimulatorTest, EveryStageOfTheFlightHasANotice) {
    settings.flightHeight = 12.9;
    settings.followDistance = 29.9;
    visitApproved(Scenario::driveway);
    EXPECT_EQ(latest(), "You approved the launch");
    fly(4, 1);
    EXPECT_TRUE(drone.altitude == 12 && drone.pos == pad && state.phase == Phase::launching);
    step(0.284);
    EXPECT_EQ(state.phase, Phase::enRoute) << "within 5 cm of the height";
    EXPECT_EQ(latest(), "Airborne at 12 m — heading to the visitor");
    flyUntil(Phase::following);
    EXPECT_EQ(latest(), "Following at 29 m");
    EXPECT_EQ(state.notices[0].level, Notice::Level::good);
    EXPECT_DOUBLE_EQ(drone.altitude, 12.852) << "height changes only while launching and landing";
    send(Command::hold);
    EXPECT_EQ(latest(), "Holding position at 12 m");
    settings.tracking = TrackingMode::native;
    send(Command::resume);
    flyUntil(Phase::following);
    EXPECT_EQ(latest(), "Following — handed over to DJI tracking");
    send(Command::returnHome);
    EXPECT_EQ(latest(), "Coming home — you asked");
    flyUntil(Phase::landing);
    EXPECT_LT(distance(drone.pos, pad), 0.6);
    EXPECT_EQ(latest(), "Over the pad — landing");
    flyUntil(Phase::docked);
    EXPECT_EQ(latest(), "Landed and docked");
}

TEST_F(SimulatorTest, ADroneExactlyOnTheVisitorBacksOffTowardsThePad) {
    visitApproved(Scenario::driveway, Phase::following);
    const P lingering{53, 54};
    while (state.visitor->pos != lingering)
        step(0.05);
    fly(5);
    drone.pos = lingering;
    step(1);
    EXPECT_NEAR(distance(drone.pos, lingering + unit(pad - lingering) * 4), 0, 0.3);
    drone.pos = {130, 20};
    fly(3);
    EXPECT_NEAR(drone.speed, 7, 1e-9) << "never faster while following";
}

TEST_F(SimulatorTest, DistancesDecideWhereAStageEnds) {
    visitApproved(Scenario::driveway, Phase::enRoute);
    const auto phaseAt = [&](P where) {
        drone.pos = where;
        step(0);
        return state.phase;
    };
    const P visitor = state.visitor->pos;
    EXPECT_EQ(phaseAt(visitor + P{0, -18.01}), Phase::enRoute);
    EXPECT_EQ(phaseAt(visitor + P{0, -17.99}), Phase::following) << "within 3 m of the follow position";
    const std::vector<Notice> notices = state.notices;
    step(0);
    EXPECT_EQ(state.notices, notices) << "one notice";
    send(Command::returnHome);
    EXPECT_EQ(phaseAt(pad + P{0.61, 0}), Phase::returning);
    EXPECT_EQ(phaseAt(pad + P{0, 0.59}), Phase::landing);
    drone.altitude = 0;
    EXPECT_EQ(phaseAt(pad + P{2.01, 0}), Phase::docked);
    EXPECT_EQ(latest(), "Landed away from the pad — please collect it");
}

TEST_F(SimulatorTest, TheDroneSettlesAtTheFollowPoint) {
    settings.followDistance = 5;
    for (const P visitor : {P{70, 50}, P{120, 20}, P{146, 84}}) { // the last one is outside, for five seconds
        SCOPED_TRACE(visitor.x);
        Simulator flight(LiveState::initial(), settings, random);
        flight.trigger(Scenario::driveway, now);
        flight.send(Command::approve, now);
        for (int i = 0; i < 600; ++i) {
            flight.state.visitor->pos = i < 500 ? P{std::min(visitor.x, 138.0), visitor.y} : visitor;
            flight.step(0.05, now += Seconds{0.05});
        }
        ASSERT_EQ(flight.state.phase, Phase::following);
        const FollowPoint station = followPoint(flight.state.drone.pos, visitor, state.site, settings);
        EXPECT_LT(distance(flight.state.drone.pos, station.at), 0.3);
        EXPECT_EQ(flight.state.atBoundary, station.atBoundary);
        EXPECT_GE(boundsOf(state.site).distanceInside(station.at), settings.boundaryBuffer);
    }
}

TEST_F(SimulatorTest, EachArrivalAtTheBoundaryHasOneNotice) {
    visitApproved(Scenario::garden, Phase::following);
    const auto noticesWithDroneAt = [&](double below) {
        drone.pos = state.visitor->pos + P{0, below};
        fly(0.5);
        return std::ranges::count(state.notices, "At your boundary — holding inside the 5 m buffer",
                                  &Notice::text);
    };
    moveVisitor({120, 25});
    EXPECT_EQ(noticesWithDroneAt(-12), 1);
    EXPECT_TRUE(state.atBoundary);
    EXPECT_EQ(noticesWithDroneAt(12), 1);
    EXPECT_FALSE(state.atBoundary);
    EXPECT_EQ(noticesWithDroneAt(-12), 2);
    send(Command::hold);
    fly(1);
    EXPECT_TRUE(state.atBoundary) << "only following updates it";
    send(Command::returnHome);
    step(0.05);
    EXPECT_FALSE(state.atBoundary);
}

TEST_F(SimulatorTest, TheBufferLimitsThePositionButNotTheSpeed) {
    random.draws[strength] = 0;
    visitApproved(Scenario::garden, Phase::following);
    send(Command::returnHome);
    state.site.boundary = {{100, 0}, {200, 0}, {200, 100}, {100, 100}};
    fly(6);
    EXPECT_EQ(drone.pos.x, 105);
    EXPECT_GT(drone.speed, 8) << "still flies towards the pad outside the bounds";
    state.atBoundary = true;
    drone.altitude = 0;
    send(Command::land);
    step(0);
    EXPECT_TRUE(state.phase == Phase::docked && drone.speed == 0 && !state.atBoundary);
    visitApproved(Scenario::driveway, Phase::enRoute);
    send(Command::hold);
    state.site.boundary.clear();
    step(0);
    EXPECT_EQ(drone.speed, 0) << "a flight starts from rest";
    EXPECT_EQ(drone.pos, (P{-5, -5})) << "raised to the lower limit, then lowered to the upper";
}

TEST_F(SimulatorTest, HoldingBrakesAndKeepsFacingTheVisitor) {
    visitApproved(Scenario::driveway, Phase::enRoute);
    fly(1);
    const double speed = drone.speed;
    send(Command::hold);
    step(0.1);
    EXPECT_NEAR(drone.speed, speed - 0.4, 1e-9) << "4 m/s² at most";
    fly(3);
    EXPECT_EQ(drone.speed, 0);
    moveVisitor(drone.pos + P{0, 3});
    EXPECT_EQ(drone.heading, 90);
    moveVisitor(drone.pos + P{0, -0.4});
    EXPECT_EQ(drone.heading, 90) << "too near to turn to the visitor and too slow to turn ahead";
}

TEST_F(SimulatorTest, WithoutAVisitorTheDroneComesHome) {
    visitApproved(Scenario::driveway, Phase::following);
    send(Command::hold);
    state.visitor.reset();
    fly(1);
    EXPECT_EQ(state.phase, Phase::holding);
    send(Command::resume);
    EXPECT_EQ(state.phase, Phase::returning);
    EXPECT_EQ(latest(), "Following again") << "the same text in both cases";
    state.phase = Phase::following;
    step(0.05);
    EXPECT_EQ(state.phase, Phase::returning);
    EXPECT_EQ(latest(), "Following again") << "without a notice";
    flyUntil(Phase::docked);
    EXPECT_EQ(records.at(0).outcome, Outcome::visitorLeft);
    EXPECT_EQ(records[0].label, "Unknown person");
    EXPECT_EQ(records[0].confidence, 0.9);
}

TEST_F(SimulatorTest, TheVisitorLeavesAfterMoreThanSixSecondsOutsideWithoutABreak) {
    visitApproved(Scenario::front, Phase::following);
    send(Command::hold);
    state.site.cameras[1].pos = state.site.cameras[0].pos;
    moveVisitor({7.4, 6.6});
    EXPECT_TRUE(state.visitor->inside) << "the edge is inside";
    const std::size_t before = state.notices.size();
    for (std::size_t exit = 0; exit < 2; ++exit) {
        moveVisitor({60, 50});
        moveVisitor({-50, 46});
        EXPECT_EQ(state.visitor->cameraId, "driveway") << "the nearest camera, the first of two";
        step(6);
        ASSERT_TRUE(state.visitor) << "six seconds are not enough, and a return resets the count";
        EXPECT_EQ(latest(), "Visitor has crossed your boundary") << "one notice per exit";
        EXPECT_EQ(state.notices.size(), before + 1 + exit);
    }
    step(0.01);
    EXPECT_FALSE(state.visitor);
    EXPECT_EQ(latest(), "Coming home");
    EXPECT_EQ(state.phase, Phase::returning);
}

TEST_F(SimulatorTest, TheDroneComesHomeStrictlyBelowTheBatteryLimit) {
    settings.returnBattery = 30.9;
    visitApproved(Scenario::driveway);
    drone.battery = 0.001;
    step(0.05);
    EXPECT_EQ(drone.battery, 0);
    EXPECT_EQ(state.phase, Phase::launching) << "not sent back before it is en route";
    drone.battery = 80;
    flyUntil(Phase::following);
    drone.battery = 30.9;
    step(0);
    EXPECT_EQ(state.phase, Phase::following);
    step(0.01);
    EXPECT_EQ(state.phase, Phase::returning);
    EXPECT_EQ(latest(), "Battery below 30% — coming home");
    drone.battery = 20;
    flyUntil(Phase::docked);
    EXPECT_EQ(records.at(0).outcome, Outcome::lowBattery);
    drone.battery = 20;
    step(10);
    EXPECT_DOUBLE_EQ(drone.battery, 20.4) << "the pad charges the battery";
    step(10'000);
    EXPECT_EQ(drone.battery, 100);
}

TEST_F(SimulatorTest, SamplesAreAtLeastHalfASecondApart) {
    visit(Scenario::driveway);
    fly(1.8, 0.3);
    EXPECT_EQ(state.visitor->trail.size(), 3u) << "every 0.6 s, although 0.5 s would fit on average";
    send(Command::approve);
    fly(100, 0.25);
    EXPECT_EQ(drone.trail.size(), 160u) << "80 of 100 seconds";
    EXPECT_EQ(drone.trail.back(), drone.pos);
    EXPECT_EQ(state.visitor->trail.size(), 160u);
    send(Command::land);
    flyUntil(Phase::docked);
    EXPECT_GE(records.at(0).dronePath.size(), 200u) << "the record keeps them all";
    EXPECT_GE(records[0].visitorPath.size(), 203u);
}

} // namespace velmora
