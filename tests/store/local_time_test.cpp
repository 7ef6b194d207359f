#include "store/local_time.h"

#include "support/time_zone.h"

#include <gtest/gtest.h>

#include <optional>

namespace velmora {

namespace {

std::string when(const char* now, int daysAgo, int hour, int minute) {
    const auto date = localTimeDaysAgo(*dateFromText(now), daysAgo, hour, minute);
    return date ? *dateText(*date) : "";
}

} // namespace

TEST(LocalTime, FollowsTheClockChangeInBothDirections) {
    const TimeZone zone(
        "Europe/London"); // forward on 30 March 2025 at 01:00 UTC, back on 26 October 2025 at 01:00 UTC
    EXPECT_EQ(when("2025-03-31T10:00:00Z", 2, 6, 12), "2025-03-29T06:12:00Z");
    EXPECT_EQ(when("2025-03-31T10:00:00Z", 1, 22, 47), "2025-03-30T21:47:00Z");
    EXPECT_EQ(when("2025-10-27T10:00:00Z", 2, 6, 12), "2025-10-25T05:12:00Z");
    EXPECT_EQ(when("2025-10-27T10:00:00Z", 1, 22, 47), "2025-10-26T22:47:00Z");
    EXPECT_EQ(when("2025-07-01T23:30:00Z", 1, 22, 47), "2025-07-01T21:47:00Z") << "the local day has turned";
}

TEST(LocalTime, TakesTheNextTimeAfterAGapAndTheFirstOfTwo) {
    std::optional<TimeZone> zone("Europe/London");
    EXPECT_EQ(when("2025-03-31T10:00:00Z", 1, 1, 30), "2025-03-30T01:00:00Z");
    EXPECT_EQ(when("2025-10-27T10:00:00Z", 1, 1, 30), "2025-10-26T00:30:00Z");
    zone.emplace("America/New_York"); // the gap of 9 March 2025 ends at 07:00 UTC
    EXPECT_EQ(when("2025-03-10T12:00:00Z", 1, 2, 15), "2025-03-09T07:00:00Z");
    EXPECT_EQ(when("2025-11-03T12:00:00Z", 1, 1, 15), "2025-11-02T05:15:00Z");
    zone.emplace("UTC");
    EXPECT_EQ(when("2025-03-01T00:00:00Z", 1, 19, 31), "2025-02-28T19:31:00Z");
}

} // namespace velmora
