#include "ui/look/words.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

using Shown = std::pair<double, const char*>; ///< seconds, and their text

TEST(WordsTest, DurationsAreRoundedAndNameTheirTwoLargestUnits) {
    for (const auto& [seconds, text] : {Shown{-3, "0 s"},
                                        {0.4, "0 s"},
                                        {0.5, "1 s"},
                                        {59.4, "59 s"},
                                        {59.5, "1 min"},
                                        {60, "1 min"},
                                        {61, "1 min 1 s"},
                                        {119, "1 min 59 s"},
                                        {3599, "59 min 59 s"},
                                        {3600, "1 h 0 min"},
                                        {7325, "2 h 2 min"}})
        EXPECT_EQ(duration(Seconds{seconds}), text) << seconds;
}

TEST(WordsTest, ClockTimesAreTruncatedAndHaveTwoDigitsAfterTheFirstUnit) {
    for (const auto& [seconds, text] : {Shown{-3, "0:00"},
                                        {59.9, "0:59"},
                                        {60, "1:00"},
                                        {3599, "59:59"},
                                        {3600, "1:00:00"},
                                        {36'069, "10:01:09"}})
        EXPECT_EQ(clockTime(Seconds{seconds}), text) << seconds;
}

TEST(WordsTest, AnAgeHasOneUnit) {
    for (const auto& [seconds, text] : {Shown{-3, "0 s"},
                                        {2.9, "2 s"},
                                        {119.9, "119 s"},
                                        {120, "2 min"},
                                        {7199, "119 min"},
                                        {7200, "2 h"},
                                        {10'799, "2 h"},
                                        {10'800, "3 h"}})
        EXPECT_EQ(age(Seconds{seconds}), text) << seconds;
}

TEST(WordsTest, FiguresAreRoundedHalvesAwayFromZero) {
    EXPECT_EQ(rounded(14.5), "15");
    EXPECT_EQ(rounded(-0.5), "-1");
    EXPECT_EQ(percent(0.125), "13");
    EXPECT_EQ(oneDecimal(3.25), "3.2") << "3.25 itself is a double, and even digits win";
    EXPECT_EQ(oneDecimal(3.35), "3.4");
}

TEST(WordsTest, DaysAreNamedByTheirDistance) {
    const Date now = *dateFromText("2025-06-18T12:00:00Z"); // a Wednesday
    const auto words = [&](const char* date) {
        return dayName(*dateFromText(date), now) + " / " + dayAndTime(*dateFromText(date), now);
    };
    EXPECT_EQ(words("2025-06-18T09:05:00Z"), "Today / 09:05");
    EXPECT_EQ(words("2025-06-17T23:59:59Z"), "Yesterday / Yesterday 23:59");
    EXPECT_EQ(words("2025-06-16T09:05:00Z"), "Monday 16 June / Mon 09:05");
    EXPECT_EQ(words("2025-06-12T09:05:00Z"), "Thursday 12 June / Thu 09:05");
    EXPECT_EQ(words("2025-06-11T09:05:00Z"), "Wednesday 11 June / 11 Jun 2025");
    EXPECT_EQ(words("2024-12-31T09:05:00Z"), "Tuesday 31 December 2024 / 31 Dec 2024");
    EXPECT_EQ(words("2025-06-19T09:05:00Z"), "Thursday 19 June / 19 Jun 2025") << "tomorrow";
}

} // namespace

} // namespace velmora
