#include "model/visit_patterns.h"

#include "support/random.h"
#include "support/time_zone.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace velmora {

namespace {

using testing::ElementsAre;
using testing::Eq;
using testing::Optional;

constexpr double hourSeconds = 3600, daySeconds = 24 * hourSeconds;

Date at(const char* text) {
    return *dateFromText(text);
}

/// A visit in the week of Monday 3 November 2025, UTC.
MissionRecord visitAt(int weekday, double hour, const std::string& camera = "Gate") {
    MissionRecord record;
    record.start = at("2025-11-03T00:00:00Z") + Seconds{weekday * daySeconds + hour * hourSeconds};
    record.end = record.start + Seconds{60};
    record.cameraName = camera;
    record.outcome = Outcome::expired;
    return record;
}

Site grounds() {
    Site site;
    site.boundary = {{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    return site;
}

VisitPatterns patternsOf(const std::vector<MissionRecord>& records) {
    VisitPatterns patterns(grounds());
    for (const MissionRecord& record : records)
        patterns.add(record);
    return patterns;
}

/// A visit that the drone flew to, if it was approved.
MissionRecord answered(double answeredAfter, std::optional<double> stationAfter, Outcome outcome) {
    MissionRecord record = visitAt(0, 12);
    record.outcome = outcome;
    record.end = record.start + Seconds{outcome == Outcome::ignored ? answeredAfter : 300};
    const auto note = [&](double seconds, const char* text) {
        record.notices.push_back({{}, record.start + Seconds{seconds}, text, Notice::Level::good});
    };
    if (flew(outcome))
        note(answeredAfter, "You approved the launch");
    if (stationAfter)
        note(*stationAfter, "Following at 15 m");
    return record;
}

MissionRecord anyRecord(SeededRandom& random) {
    const auto outcome = random.anyOf<Outcome>();
    const auto station = random.chance(0.8) ? std::optional(random.uniform(-5, 60)) : std::nullopt;
    MissionRecord record = answered(random.uniform(-5, 30), flew(outcome) ? station : std::nullopt, outcome);
    const double wait = (record.end - record.start).count();
    record.start += Seconds{random.uniform(0, 60 * daySeconds)};
    for (Notice& notice : record.notices)
        notice.time += record.start - visitAt(0, 12).start;
    record.end = record.start + Seconds{wait};
    record.cameraName = "Camera " + std::to_string(random.below(4));
    for (std::size_t points = random.below(5); points > 0; --points)
        record.dronePath.push_back({random.uniform(-10, 110), random.uniform(-10, 110)});
    return record;
}

/// Everything that the figures tell.
auto told(const VisitPatterns& patterns) {
    return std::tuple(patterns.visits(), patterns.flown(), patterns.hours(), patterns.byCamera(),
                      patterns.toAnswer(), patterns.toStation(), patterns.alerts(), patterns.expired(),
                      patterns.leastInside(), patterns.first(), patterns.last(), patterns.group(),
                      patterns.mostlyCamera());
}

double medianOf(std::vector<double> values) {
    std::ranges::sort(values);
    const auto size = values.size();
    return size == 0 ? 0 : (values[(size - 1) / 2] + values[size / 2]) / 2;
}

} // namespace

TEST(VisitPatterns, AnHourIsThatOfTheLocalClock) {
    const auto hour = [](const char* text) { return weekHourOf(at(text)); };
    std::optional<TimeZone> zone("Europe/Berlin");
    EXPECT_EQ(hour("2025-03-30T00:59:59Z"), (WeekHour{6, 1}));
    EXPECT_EQ(hour("2025-03-30T01:00:00Z"), (WeekHour{6, 3})) << "there is no second hour on this Sunday";
    EXPECT_EQ(hour("2025-10-26T00:30:00Z"), (WeekHour{6, 2}));
    EXPECT_EQ(hour("2025-10-26T01:30:00Z"), (WeekHour{6, 2})) << "there are two second hours on this Sunday";
    EXPECT_EQ(hour("2025-06-01T22:00:00Z"), (WeekHour{0, 0})) << "Monday begins at midnight";
    zone.emplace("America/New_York");
    EXPECT_EQ(hour("2025-06-02T03:59:59Z"), (WeekHour{6, 23}));
    zone.emplace("Asia/Kolkata");
    EXPECT_EQ(hour("2025-06-01T18:29:59Z"), (WeekHour{6, 23}));
    EXPECT_EQ(hour("2025-06-01T18:30:00Z"), (WeekHour{0, 0}));
    EXPECT_EQ(weekHourOf(dateFromSeconds(-0.5)), weekHourOf(dateFromSeconds(-1))) << "before 1970";
    for (const double wild : {1e300, -1e300, 9.3e18, 9.2e18})
        EXPECT_FALSE(weekHourOf(dateFromSeconds(wild))) << wild;
}

TEST(VisitPatterns, TheGroupIsTheOnlyLargestOneWithAThirdOfTheVisits) {
    const TimeZone zone("UTC");
    const auto group = [](std::initializer_list<std::pair<int, double>> hours) {
        std::vector<MissionRecord> records;
        for (const auto& [weekday, hour] : hours)
            records.push_back(visitAt(weekday, hour));
        return patternsOf(records).group();
    };
    EXPECT_EQ(group({}), std::nullopt);
    EXPECT_EQ(group({{3, 19}, {3, 19}}), std::nullopt) << "two visits are no pattern";
    EXPECT_THAT(group({{3, 18}, {3, 21.99}, {3, 22}}), Optional(Eq(VisitGroup{3, DayPart::evening, 2})));
    EXPECT_THAT(group({{6, 23.99}, {6, 22}, {0, 0}}), Optional(Eq(VisitGroup{6, DayPart::late, 2})));
    EXPECT_THAT(group({{0, 0}, {0, 5.99}, {0, 6}}), Optional(Eq(VisitGroup{0, DayPart::night, 2})));
    EXPECT_THAT(group({{1, 12}, {1, 17.99}, {1, 11.99}, {2, 1}, {3, 1}, {4, 1}}),
                Optional(Eq(VisitGroup{1, DayPart::afternoon, 2})))
        << "exactly a third";
    EXPECT_EQ(group({{1, 12}, {1, 13}, {2, 1}, {3, 1}, {4, 1}, {5, 1}, {6, 1}}), std::nullopt)
        << "less than a third";
    EXPECT_EQ(group({{1, 12}, {1, 13}, {2, 12}, {2, 13}, {3, 1}}), std::nullopt) << "two are equal";
    EXPECT_EQ(group({{1, 6}, {2, 6}, {3, 6}}), std::nullopt) << "three are equal";
}

TEST(VisitPatterns, TheCameraIsTheOnlyOneThatSawHalf) {
    const auto camera = [](std::initializer_list<const char*> names) {
        std::vector<MissionRecord> records;
        for (const char* name : names)
            records.push_back(visitAt(0, 0, name));
        return patternsOf(records).mostlyCamera();
    };
    EXPECT_EQ(camera({}), std::nullopt);
    EXPECT_EQ(camera({"A"}), "A");
    EXPECT_EQ(camera({"A", "B"}), std::nullopt);
    EXPECT_EQ(camera({"A", "B", "C", "A"}), "A") << "exactly half";
    EXPECT_EQ(camera({"A", "B", "C", "A", "D"}), std::nullopt);
    const auto patterns =
        patternsOf({visitAt(0, 0, "B"), visitAt(0, 0, "A"), visitAt(0, 0, "C"), visitAt(0, 0, "C")});
    EXPECT_THAT(patterns.byCamera(),
                ElementsAre(CameraCount{"C", 2}, CameraCount{"A", 1}, CameraCount{"B", 1}));
}

TEST(VisitPatterns, OnlyTheOwnersAnswersCountAsAnswers) {
    const auto patterns =
        patternsOf({answered(4, 20, Outcome::visitorLeft), answered(10, {}, Outcome::landedByYou),
                    answered(30, {}, Outcome::ignored), answered(60, {}, Outcome::expired),
                    answered(1, {}, Outcome::disarmed), answered(1, {}, Outcome::windTooHigh),
                    answered(-3, -2, Outcome::lowBattery)});
    EXPECT_EQ(patterns.toAnswer(), (MedianTime{10, 3})) << "a time before the alert is the clock's fault";
    EXPECT_EQ(patterns.toStation(), (MedianTime{20, 1}));
    EXPECT_EQ(patterns.alerts(), 5) << "neither while disarmed nor in strong wind is the owner asked";
    EXPECT_EQ(patterns.expired(), 1);
    EXPECT_EQ(patterns.flown(), 3);
}

TEST(VisitPatterns, FiguresAreThoseOfAPlainCountInAnyOrder) {
    const TimeZone zone("America/New_York");
    for (std::uint64_t seed = 1; seed <= 40; ++seed) {
        SeededRandom random(seed);
        std::vector<MissionRecord> records;
        for (std::size_t left = random.below(60); left > 0; --left)
            records.push_back(anyRecord(random));
        const VisitPatterns patterns = patternsOf(records);
        std::vector<double> answers, stations;
        std::optional<double> least;
        for (const MissionRecord& record : records) {
            const auto add = [&](std::vector<double>& times, Date time) {
                if (time >= record.start)
                    times.push_back((time - record.start).count());
            };
            if (record.outcome == Outcome::ignored)
                add(answers, record.end);
            for (const Notice& notice : record.notices)
                add(notice.text.starts_with("You") ? answers : stations, notice.time);
            for (const P& p : record.dronePath)
                if (flew(record.outcome))
                    least = std::min({least.value_or(1e9), p.x, p.y, 100 - p.x, 100 - p.y});
        }
        EXPECT_DOUBLE_EQ(patterns.toAnswer().seconds, medianOf(answers));
        EXPECT_DOUBLE_EQ(patterns.toStation().seconds, medianOf(stations));
        EXPECT_EQ(patterns.toAnswer().count, static_cast<int>(answers.size()));
        EXPECT_EQ(patterns.leastInside(), least);
        int inMatrix = 0;
        for (const auto& day : patterns.hours())
            for (const int visits : day)
                inMatrix += visits;
        EXPECT_EQ(inMatrix, static_cast<int>(records.size()));
        std::ranges::reverse(records);
        EXPECT_EQ(told(patternsOf(records)), told(patterns)) << seed;
    }
}

TEST(VisitPatterns, ImpossibleRecordsAreCountedAndDoNoHarm) {
    MissionRecord wild = answered(4, 20, Outcome::visitorLeft);
    wild.start = dateFromSeconds(1e300);
    wild.end = dateFromSeconds(-1e300);
    wild.dronePath = {{1e308, -1e308}};
    MissionRecord backwards = answered(4, 20, Outcome::ignored);
    backwards.end = backwards.start - Seconds{10};
    const auto patterns = patternsOf({wild, backwards, MissionRecord()});
    EXPECT_EQ(patterns.visits(), 3);
    EXPECT_EQ(patterns.toAnswer().count, 0);
    EXPECT_EQ(patterns.mostlyCamera(), "Gate");
    EXPECT_LT(*patterns.leastInside(), -1e307);
    EXPECT_EQ(VisitPatterns(Site()).leastInside(), std::nullopt);
}

} // namespace velmora
