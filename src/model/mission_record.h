#pragma once

#include "model/live_state.h"

namespace velmora {

/// Seconds between two path points: a point is taken in the first step after at least this time.
inline constexpr double pathInterval = 0.5;

/// One finished mission, or a detection that was only logged.
struct MissionRecord {
    std::string id; ///< not unique: two missions may share one
    Date start;
    Date end;
    std::string cameraId;   ///< id of the camera that raised the alert
    std::string cameraName; ///< its display name at the time
    std::string label;      ///< what the cameras called the visitor
    double confidence = 0;  ///< 0 to 1
    Outcome outcome = Outcome::visitorLeft;
    std::vector<P> dronePath;      ///< points while airborne, until the end
    std::vector<P> visitorPath;    ///< points from the start
    double maxDistanceFromPad = 0; ///< metres
    double batteryUsed = 0;        ///< percentage points
    std::vector<Notice> notices;   ///< oldest first
    std::string snapshot;          ///< name of the artwork shown with the alert
    bool demo = false; ///< rehearsed for an empty history; removed when the owner clears the demo history
};

template <>
inline constexpr auto fieldsOf<MissionRecord> =
    std::tuple{Field{"id", &MissionRecord::id},
               Field{"start", &MissionRecord::start},
               Field{"end", &MissionRecord::end},
               Field{"cameraId", &MissionRecord::cameraId},
               Field{"cameraName", &MissionRecord::cameraName},
               Field{"label", &MissionRecord::label},
               Field{"confidence", &MissionRecord::confidence},
               Field{"outcome", &MissionRecord::outcome},
               Field{"dronePath", &MissionRecord::dronePath},
               Field{"visitorPath", &MissionRecord::visitorPath},
               Field{"maxDistanceFromPad", &MissionRecord::maxDistanceFromPad},
               Field{"batteryUsed", &MissionRecord::batteryUsed},
               Field{"notices", &MissionRecord::notices},
               Field{"snapshot", &MissionRecord::snapshot},
               Field{"demo", &MissionRecord::demo}};

} // namespace velmora
