#pragma once

#include "model/mission_record.h"

#include <optional>
#include <vector>

namespace velmora {

/// The steps of a response, in their order.
enum class ResponseStep { seen, answered, airborne, onStation, comingHome, ended };

/// When a step of the response was reached.
struct ResponseMoment {
    ResponseStep step;
    Date time;
};

/// The steps that the record's notices tell of, from the detection to the end; a step that never happened is
/// left out.
std::vector<ResponseMoment> responseTimeline(const MissionRecord& record);

/// When a record's path points were taken, in seconds after its start.
struct PathTimes {
    double interval = pathInterval; ///< from point to point; steps that come late stretch it by up to a tenth
    double visitorTo = 0;           ///< the visitor's last; the first was taken at the start
    double droneFrom = 0;           ///< the drone's first; the last was taken at the end
};

PathTimes pathTimes(const MissionRecord& record);

/// How the drone kept to the boundary.
struct BoundaryEvidence {
    double leastDistance = 0;   ///< metres from the boundary at the nearest; negative outside it
    double secondsInBuffer = 0; ///< nearer to the boundary than the buffer
};

/// Absent when the drone did not fly.
std::optional<BoundaryEvidence> boundaryEvidence(const MissionRecord& record, const Site& site,
                                                 double buffer);

/// How much of a mission had happened at a moment.
struct Progress {
    std::size_t visitorPoints = 0; ///< taken by then, of the visitor's path
    std::size_t dronePoints = 0;   ///< likewise
    bool ended = false;

    bool operator==(const Progress&) const = default;
};

/// The moment is in seconds after the record's start; from its end on every point counts.
Progress progressAt(const MissionRecord& record, double seconds);

/// Seconds after the record's start.
struct TimeSpan {
    double from = 0;
    double to = 0;
};

/// Where neither path has points although the mission went on.
std::vector<TimeSpan> gapsOf(const MissionRecord& record);

/// Seconds from start to end, never negative.
double durationOf(const MissionRecord& record);

} // namespace velmora
