#pragma once

#include "model/live_state.h"

namespace velmora {

/// Path points are taken with the first step at or after this many seconds since the last.
inline constexpr double pathInterval = 0.5;

/// One finished mission, or a detection that was only logged.
struct MissionRecord {
    std::string id; ///< not unique: two missions may share one
    Date start;
    Date end;
    std::string cameraId;   ///< camera that raised the alert
    std::string cameraName; ///< its display name at the time
    std::string label;      ///< what the cameras called the visitor
    double confidence = 0;  ///< 0 to 1
    Outcome outcome = Outcome::visitorLeft;
    std::vector<P> dronePath;      ///< while airborne, so up to the end
    std::vector<P> visitorPath;    ///< from the start
    double maxDistanceFromPad = 0; ///< metres
    double batteryUsed = 0;        ///< percentage points
    std::vector<Notice> notices;   ///< oldest first
    std::string snapshot;          ///< artwork of the alert
    bool demo = false;             ///< rehearsed to fill an empty history, and cleared with the demo history
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
