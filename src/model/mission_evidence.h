#pragma once

#include "model/journal_entry.h"
#include "model/mission_record.h"

#include <optional>
#include <vector>

namespace velmora {

/// The steps of a response, in order.
enum class ResponseStep { seen, answered, airborne, onStation, comingHome, ended };

/// When a step of the response was reached.
struct ResponseMoment {
    ResponseStep step;
    Date time;
};

/// The steps found in the record's notices, from the detection to the end; steps without a notice are
/// omitted.
std::vector<ResponseMoment> responseTimeline(const MissionRecord& record);

/// The owner's answer as far as the record tells of it: approved by its notice, ignored by its outcome.
std::optional<GivenAnswer> answerOnRecord(const MissionRecord& record);

/// When a record's path points were taken, in seconds after its start.
struct PathTimes {
    double interval = pathInterval; ///< between two points; late steps add up to a tenth
    double visitorTo = 0;           ///< of the visitor's last point; the first one is at 0
    double droneFrom = 0;           ///< of the drone's first point; the last one is at the end
};

PathTimes pathTimes(const MissionRecord& record);

/// The least distance of the drone from the edges of `bounds`, in metres; negative outside. nullopt if the
/// drone did not fly.
std::optional<double> leastDistanceInside(const MissionRecord& record, const Bounds& bounds);

/// How close the drone came to the boundary.
struct BoundaryEvidence {
    double leastDistance = 0;   ///< metres between drone and boundary at the closest point; negative outside
    double leastAt = 0;         ///< when it was there first, seconds after the record's start
    double secondsInBuffer = 0; ///< time closer to the boundary than the buffer
};

/// `buffer` is in metres. nullopt if the drone did not fly.
std::optional<BoundaryEvidence> boundaryEvidence(const MissionRecord& record, const Site& site,
                                                 double buffer);

/// The distance between drone and boundary over a flight.
struct BoundaryProfile {
    struct Point {
        double seconds = 0; ///< after the record's start; before 0 if the path is longer than the record
        double inside = 0;  ///< metres inside the boundary; negative outside
    };
    BoundaryEvidence evidence;
    std::vector<Point> points; ///< one for each point of the drone's path; never empty
};

/// `buffer` is in metres. nullopt if the drone did not fly.
std::optional<BoundaryProfile> boundaryProfile(const MissionRecord& record, const Site& site, double buffer);

/// How much of a mission had happened at one moment.
struct Progress {
    std::size_t visitorPoints = 0; ///< number of points of the visitor's path up to then
    std::size_t dronePoints = 0;   ///< the same for the drone's path
    bool ended = false;

    bool operator==(const Progress&) const = default;
};

/// `seconds` counts from the record's start. From the end on, all points count.
Progress progressAt(const MissionRecord& record, double seconds);

/// Seconds after the record's start.
struct TimeSpan {
    double from = 0;
    double to = 0;
};

/// The spans of the mission in which neither path has points.
std::vector<TimeSpan> gapsOf(const MissionRecord& record);

/// Seconds from start to end, never negative.
double durationOf(const MissionRecord& record);

} // namespace velmora
