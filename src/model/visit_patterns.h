#pragma once

#include "model/mission_record.h"
#include "model/site.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// An hour of the week in local time.
struct WeekHour {
    int weekday = 0; ///< 0 is Monday
    int hour = 0;    ///< 0 to 23

    bool operator==(const WeekHour&) const = default;
};

/// nullopt if the system cannot convert the time.
std::optional<WeekHour> weekHourOf(Date date);

/// A part of the day, as people name it.
enum class DayPart { night, morning, afternoon, evening, late };

inline constexpr int daysInWeek = 7, hoursInDay = 24, dayParts = 5;

/// The number of visits in each hour of the week, Monday first.
using WeekHours = std::array<std::array<int, hoursInDay>, daysInWeek>;

/// The first hour of each part, and the end of the last.
inline constexpr std::array<int, dayParts + 1> dayPartHours{0, 6, 12, 18, 22, 24};
DayPart dayPartOf(int hour);
constexpr int firstHourOf(DayPart part) {
    return dayPartHours[static_cast<std::size_t>(part)];
}
/// The hour after the last one.
constexpr int endHourOf(DayPart part) {
    return dayPartHours[static_cast<std::size_t>(part) + 1];
}

/// The visits of one part of one weekday.
struct VisitGroup {
    int weekday = 0; ///< 0 is Monday
    DayPart part{};
    int visits = 0;

    bool operator==(const VisitGroup&) const = default;
};

/// How many visits one camera saw.
struct CameraCount {
    std::string name; ///< as in the records
    int visits = 0;

    bool operator==(const CameraCount&) const = default;
};

/// The median of some times, and how many there are.
struct MedianTime {
    double seconds = 0; ///< 0 without any
    int count = 0;

    bool operator==(const MedianTime&) const = default;
};

/// Figures over a set of visits, to which each visit is added once. Keeps no records. Adding takes a few
/// microseconds, however many visits there are.
class VisitPatterns {
public:
    /// With fewer visits nothing is a pattern.
    static constexpr int fewest = 3;

    explicit VisitPatterns(const Site& site) : bounds_(boundsOf(site)) {}

    void add(const MissionRecord& record);

    int visits() const { return visits_; }
    int flown() const;
    /// In local time of the starts.
    const WeekHours& hours() const { return hours_; }
    int visitsWith(Outcome outcome) const { return outcomes_[static_cast<std::size_t>(outcome)]; }
    /// The most visits first, equal ones by name.
    std::vector<CameraCount> byCamera() const;

    /// From the alert to the owner's answer: the approval, or the end of an alert that was ignored.
    MedianTime toAnswer() const;
    /// From the detection until the drone was on station.
    MedianTime toStation() const;
    /// Alerts that asked for an answer, and those of them that expired without one.
    int alerts() const { return flown() + visitsWith(Outcome::ignored) + expired(); }
    int expired() const { return visitsWith(Outcome::expired); }
    /// The least distance of the drone from the boundary, in metres; negative outside. nullopt if it never
    /// flew.
    const std::optional<double>& leastInside() const { return leastInside_; }

    /// Starts of the earliest and the latest visit.
    const std::optional<Date>& first() const { return first_; }
    const std::optional<Date>& last() const { return last_; }

    /// The part of a weekday with the most visits, if it has at least a third of all and no other has as
    /// many.
    std::optional<VisitGroup> group() const;
    /// The camera that saw at least half of the visits, unless another one saw as many.
    std::optional<std::string> mostlyCamera() const;
    /// How many visits of the group this camera saw.
    int visitsOf(const VisitGroup& group, const std::string& camera) const;

private:
    using Groups = std::array<std::array<int, dayParts>, daysInWeek>;
    struct Camera {
        int visits = 0;
        Groups groups{};
    };

    static std::size_t index(int number) { return static_cast<std::size_t>(number); }
    void addTimes(const MissionRecord& record);

    Bounds bounds_;
    int visits_ = 0;
    WeekHours hours_{};
    Groups groups_{};
    std::array<int, rawValuesOf<Outcome>.size()> outcomes_{};
    std::map<std::string, Camera> cameras_;
    std::vector<double> toAnswer_, toStation_; ///< seconds
    std::optional<double> leastInside_;
    std::optional<Date> first_, last_;
};

} // namespace velmora
