#include "model/mission_evidence.h"

#include <gmock/gmock.h>

namespace velmora {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Date start = dateFromSeconds(1'700'000'000);

Notice noticeAt(double seconds, std::string text) {
    return {{}, start + Seconds{seconds}, std::move(text), Notice::Level::info};
}

std::vector<P> path(std::size_t points) {
    std::vector<P> line;
    for (std::size_t i = 0; i < points; ++i)
        line.push_back({static_cast<double>(i), 50});
    return line;
}

/// A flown mission of ten seconds. The visitor was seen for the first two, the drone flew for the last four.
MissionRecord flight() {
    MissionRecord record;
    record.start = start;
    record.end = start + Seconds{10};
    record.outcome = Outcome::returnedByYou;
    record.visitorPath = path(5);
    record.dronePath = path(9);
    record.notices = {noticeAt(0, "Driveway camera: someone you don't know"),
                      noticeAt(3, "You approved the launch"),
                      noticeAt(5, "Airborne at 15 m — heading to the visitor"),
                      noticeAt(6, "Following at 15 m"), noticeAt(8, "Coming home — you asked")};
    return record;
}

Site square() {
    Site site;
    site.boundary = {{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    return site;
}

std::vector<std::pair<ResponseStep, double>> stepsOf(const MissionRecord& record) {
    std::vector<std::pair<ResponseStep, double>> steps;
    for (const ResponseMoment& moment : responseTimeline(record))
        steps.emplace_back(moment.step, (moment.time - record.start).count());
    return steps;
}

std::pair<std::size_t, std::size_t> pointsAt(const MissionRecord& record, double seconds) {
    const Progress progress = progressAt(record, seconds);
    return {progress.visitorPoints, progress.dronePoints};
}

} // namespace

TEST(MissionEvidence, TheTimelineHasEachStepThatANoticeReports) {
    using enum ResponseStep;
    const std::pair seenFirst{seen, 0.0}, endedLast{ended, 10.0};
    MissionRecord record = flight();
    EXPECT_THAT(stepsOf(record),
                ElementsAre(seenFirst, std::pair{answered, 3.0}, std::pair{airborne, 5.0},
                            std::pair{onStation, 6.0}, std::pair{comingHome, 8.0}, endedLast));

    record.notices[3].text = "Following — handed over to DJI tracking";
    record.notices.push_back(noticeAt(9, "Battery below 30% — coming home"));
    record.notices.insert(record.notices.begin() + 4, noticeAt(7, "Following at 15 m"));
    record.notices.erase(record.notices.begin() + 2);
    EXPECT_THAT(stepsOf(record), ElementsAre(seenFirst, std::pair{answered, 3.0}, std::pair{onStation, 6.0},
                                             std::pair{comingHome, 8.0}, endedLast))
        << "each step once, and none without a notice";

    record.notices.clear();
    EXPECT_THAT(stepsOf(record), ElementsAre(seenFirst, endedLast));
}

TEST(MissionEvidence, BoundaryEvidenceCountsTheTimeInsideTheBuffer) {
    MissionRecord record = flight();
    record.dronePath = {{50, 50}, {95, 50}, {97, 50}, {98.5, 50}, {50, 50}};
    const auto evidence = boundaryEvidence(record, square(), 5);
    ASSERT_TRUE(evidence);
    EXPECT_DOUBLE_EQ(evidence->leastDistance, 1.5);
    EXPECT_DOUBLE_EQ(evidence->secondsInBuffer, 1) << "a point on the buffer's edge is not inside it";
    const auto profile = boundaryProfile(record, square(), 5);
    ASSERT_TRUE(profile);
    EXPECT_EQ(profile->points.size(), 5u);
    EXPECT_DOUBLE_EQ(profile->points.back().seconds, 10) << "the drone flies until the end";
    EXPECT_DOUBLE_EQ(profile->points[2].inside, 3);
    EXPECT_DOUBLE_EQ(profile->evidence.leastAt, profile->points[3].seconds);

    record.dronePath[3] = {50, -2};
    EXPECT_DOUBLE_EQ(boundaryEvidence(record, square(), 5)->leastDistance, -2);

    record.outcome = Outcome::expired;
    EXPECT_FALSE(boundaryEvidence(record, square(), 5));
    record.outcome = Outcome::visitorLeft;
    record.dronePath.clear();
    EXPECT_FALSE(boundaryEvidence(record, square(), 5));
}

TEST(MissionEvidence, ProgressCountsThePointsTakenAtOrBeforeTheMoment) {
    const MissionRecord record = flight();
    EXPECT_EQ(pointsAt(record, 0), std::pair(1ul, 0ul)) << "visitor points count from the start";
    EXPECT_EQ(pointsAt(record, 0.49), std::pair(1ul, 0ul));
    EXPECT_EQ(pointsAt(record, 0.5), std::pair(2ul, 0ul));
    EXPECT_EQ(pointsAt(record, 5.99), std::pair(5ul, 0ul));
    EXPECT_EQ(pointsAt(record, 6), std::pair(5ul, 1ul)) << "drone points count back from the end";
    EXPECT_EQ(pointsAt(record, 9.99), std::pair(5ul, 8ul));
    EXPECT_EQ(pointsAt(record, 10), std::pair(5ul, 9ul));
    EXPECT_EQ(pointsAt(record, 1e9), std::pair(5ul, 9ul));
    EXPECT_EQ(pointsAt(record, -1), std::pair(0ul, 0ul));
    EXPECT_FALSE(progressAt(record, 9.99).ended);
    EXPECT_TRUE(progressAt(record, 10).ended);
}

TEST(MissionEvidence, ADronePathLongerThanTheRecordBeginsBeforeItsStart) {
    MissionRecord record = flight();
    record.end = record.start + Seconds{1};
    EXPECT_EQ(pointsAt(record, 0).second, 7ul);
    EXPECT_EQ(pointsAt(record, 1).second, 9ul);
    record.end = record.start - Seconds{5};
    EXPECT_EQ(durationOf(record), 0);
    EXPECT_EQ(pointsAt(record, 0).second, 9ul);
    EXPECT_THAT(gapsOf(record), IsEmpty());
}

TEST(MissionEvidence, SlightlyLatePointsStillReachFromTheStartToTheEnd) {
    MissionRecord record = flight();
    record.visitorPath = path(19); // 0.526 s apart
    record.dronePath.clear();
    EXPECT_THAT(gapsOf(record), IsEmpty());
    EXPECT_EQ(pointsAt(record, 9), std::pair(18ul, 0ul));

    record.dronePath = path(13); // 7 s after the approval
    EXPECT_NEAR(pathTimes(record).interval, 0.538, 0.001);
    EXPECT_NEAR(pathTimes(record).droneFrom, 3.538, 0.001);
    EXPECT_EQ(pointsAt(record, 10), std::pair(19ul, 13ul));
}

TEST(MissionEvidence, AGapIsWhereNeitherPathHasPoints) {
    MissionRecord record = flight();
    ASSERT_EQ(gapsOf(record).size(), 1u);
    EXPECT_DOUBLE_EQ(gapsOf(record)[0].from, 2);
    EXPECT_DOUBLE_EQ(gapsOf(record)[0].to, 6);

    record.visitorPath = path(11);
    ASSERT_EQ(gapsOf(record).size(), 1u);
    EXPECT_DOUBLE_EQ(gapsOf(record)[0].from, 5) << "a gap of a second, one point, is marked";
    record.visitorPath = path(12);
    EXPECT_THAT(gapsOf(record), IsEmpty()) << "paths whose ends are half a second apart leave no gap";

    record.visitorPath = path(5);
    record.dronePath.clear();
    ASSERT_EQ(gapsOf(record).size(), 1u);
    EXPECT_DOUBLE_EQ(gapsOf(record)[0].to, 10) << "to the end if no drone flew";
    record.visitorPath.clear();
    ASSERT_EQ(gapsOf(record).size(), 1u);
    EXPECT_DOUBLE_EQ(gapsOf(record)[0].from, 0);
}

} // namespace velmora
