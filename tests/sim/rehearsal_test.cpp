#include "model/mission_evidence.h"
#include "model/notice_texts.h"
#include "simulator_fixture.h"

namespace velmora {

namespace {

class Rehearsal : public testing::Test {
protected:
    MissionRecord rehearse(Scenario scenario, std::optional<double> approveAfter = {},
                           std::optional<double> returnAfter = {}) {
        return Simulator::rehearse(scenario, approveAfter, returnAfter, start, settings, random).value();
    }
    /// Tenths of a second from the detection to the end of the mission.
    long ended(const MissionRecord& record) const { return std::lround((record.end - start).count() * 10); }
    /// Tenths of a second from the detection to this notice; -1 if there is none.
    long noticed(const MissionRecord& record, std::string_view text) const {
        const auto notice = std::ranges::find(record.notices, text, &Notice::text);
        return notice == record.notices.end() ? -1 : std::lround((notice->time - start).count() * 10);
    }

    Date start = dateFromSeconds(1'748'786'592);
    Settings settings;
    ScriptedRandom random;
};

const std::string approved = "You approved the launch", asked = "Coming home — you asked";

} // namespace

TEST_F(Rehearsal, AnApprovedVisitIsFollowedUntilTheVisitorLeaves) {
    const auto record = rehearse(Scenario::driveway, 9);
    EXPECT_EQ(record.outcome, Outcome::visitorLeft);
    EXPECT_TRUE(record.demo);
    EXPECT_EQ(record.id, "M-786592");
    EXPECT_EQ(noticed(record, approved), 90);
    EXPECT_NEAR(record.batteryUsed, static_cast<double>(ended(record) - 90) * 0.009, 1e-6);
}

TEST_F(Rehearsal, AReturnActsInItsTickUnlessTheDroneIsAlreadyReturning) {
    const auto returned = rehearse(Scenario::garden, 6, 70);
    EXPECT_EQ(returned.outcome, Outcome::returnedByYou);
    EXPECT_EQ(noticed(returned, asked), 700);
    EXPECT_EQ(rehearse(Scenario::garden, 6, 81).outcome, Outcome::visitorLeft);
    EXPECT_EQ(rehearse(Scenario::garden, 6, 5.9).outcome, Outcome::visitorLeft) << "asked too early";
    const auto truncatedTimes = rehearse(Scenario::garden, 0.19, 0.99);
    EXPECT_TRUE(noticed(truncatedTimes, approved) == 1 && noticed(truncatedTimes, asked) == 9)
        << "times are truncated to ticks";
    settings.returnBattery = 91;
    EXPECT_EQ(rehearse(Scenario::garden, 6, 70).outcome, Outcome::lowBattery);
}

TEST_F(Rehearsal, TheTimelineFindsEveryStepInTheSimulatorsNotices) {
    const auto stepsOf = [](const MissionRecord& record) {
        std::vector<ResponseStep> steps;
        for (const ResponseMoment& moment : responseTimeline(record))
            steps.push_back(moment.step);
        return steps;
    };
    using enum ResponseStep;
    const std::vector all{seen, answered, airborne, onStation, comingHome, ended};
    EXPECT_EQ(stepsOf(rehearse(Scenario::driveway, 9)), all) << "when the visitor leaves";
    EXPECT_EQ(stepsOf(rehearse(Scenario::garden, 6, 70)), all) << "when the owner asks";
    settings.tracking = TrackingMode::native;
    settings.returnBattery = 88;
    EXPECT_EQ(stepsOf(rehearse(Scenario::driveway, 9)), all) << "when handed over, then low on battery";
    for (const Notice& notice : rehearse(Scenario::driveway, 9).notices)
        EXPECT_TRUE(readNotice(notice.text)) << notice.text;
    EXPECT_EQ(stepsOf(rehearse(Scenario::front)), (std::vector{seen, ended}));
}

TEST_F(Rehearsal, AnUnansweredAlertExpires) {
    const auto record = rehearse(Scenario::front);
    EXPECT_EQ(record.outcome, Outcome::expired);
    EXPECT_EQ(ended(record), 600);
    settings.approvalSeconds = 5;
    EXPECT_EQ(ended(rehearse(Scenario::driveway, 9)), 50) << "the approval comes after the deadline";
    EXPECT_EQ(rehearse(Scenario::driveway, 5).outcome, Outcome::visitorLeft)
        << "an approval in the deadline's tick counts";
    settings.maxWindKmh = 8.9;
    const auto windy = rehearse(Scenario::front, 9);
    EXPECT_TRUE(windy.outcome == Outcome::windTooHigh && windy.end == start && windy.demo);
}

TEST_F(Rehearsal, AMissionThatNeverLandsGivesNoRecord) {
    settings.boundaryBuffer = 80;
    EXPECT_FALSE(Simulator::rehearse(Scenario::driveway, 9, {}, start, settings, random))
        << "the buffer keeps the drone from the pad";
    EXPECT_EQ(std::ranges::count(random.asked, ScriptedRandom::Range{-0.4, 0.4}), 9000) << "steps";
}

TEST_F(Rehearsal, TheSameDrawsGiveTheSameRecord) {
    const auto withSeed = [&](std::uint64_t seed) {
        SeededRandom seeded(seed);
        return Simulator::rehearse(Scenario::driveway, 9, {}, start, settings, seeded);
    };
    EXPECT_EQ(withSeed(11), withSeed(11));
    EXPECT_NE(withSeed(11)->dronePath, withSeed(12)->dronePath);
}

} // namespace velmora
