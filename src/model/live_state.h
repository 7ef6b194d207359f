#pragma once

#include "model/date.h"
#include "model/enums.h"
#include "model/site.h"
#include "model/uuid.h"

namespace velmora {

/// Drone telemetry.
struct DroneState {
    P pos;
    double altitude = 0;  ///< metres above the pad
    double heading = 0;   ///< degrees from the +x axis towards +y
    double speed = 0;     ///< ground speed; the simulator uses m/s, a server its own unit
    double battery = 0;   ///< percent, 0 to 100
    double signal = 0;    ///< link quality, 0 to 1
    std::vector<P> trail; ///< recent positions, oldest first
};

template <>
inline constexpr auto fieldsOf<DroneState> =
    std::tuple{Field{"pos", &DroneState::pos},         Field{"altitude", &DroneState::altitude},
               Field{"heading", &DroneState::heading}, Field{"speed", &DroneState::speed},
               Field{"battery", &DroneState::battery}, Field{"signal", &DroneState::signal},
               Field{"trail", &DroneState::trail}};

/// The person being watched.
struct Visitor {
    P pos;
    std::string label;     ///< the name that the cameras give the person
    double confidence = 0; ///< 0 to 1, certainty that the face is unknown
    std::string cameraId;  ///< id of the camera that sees the person
    bool inside = false;   ///< inside the boundary
    std::vector<P> trail;  ///< recent positions, oldest first
};

template <>
inline constexpr auto fieldsOf<Visitor> = std::tuple{Field{"pos", &Visitor::pos},
                                                     Field{"label", &Visitor::label},
                                                     Field{"confidence", &Visitor::confidence},
                                                     Field{"cameraId", &Visitor::cameraId},
                                                     Field{"inside", &Visitor::inside},
                                                     Field{"trail", &Visitor::trail}};

/// One timestamped line of the activity log, identified by its id.
struct Notice {
    enum class Level { info, good, caution, alert };

    Uuid id;
    Date time;
    std::string text;
    Level level = Level::info;
};

template <>
inline constexpr auto rawValuesOf<Notice::Level> = std::to_array<std::pair<Notice::Level, std::string_view>>({
    {Notice::Level::info, "info"},
    {Notice::Level::good, "good"},
    {Notice::Level::caution, "caution"},
    {Notice::Level::alert, "alert"},
});

template <>
inline constexpr auto fieldsOf<Notice> =
    std::tuple{Field{"id", &Notice::id}, Field{"time", &Notice::time}, Field{"text", &Notice::text},
               Field{"level", &Notice::level}};

/// The live state of site, drone and mission, as the server sends it and the screens show it.
struct LiveState {
    bool armed = false; ///< the system reacts to detections
    Phase phase = Phase::docked;
    std::optional<std::string> missionId; ///< of the mission in progress
    std::optional<Date> missionStart;     ///< of the mission in progress
    std::optional<Date> approvalDeadline; ///< until when the launch may be approved
    DroneState drone;
    std::optional<Visitor> visitor; ///< absent if nobody is being watched
    double windKmh = 0;             ///< mean wind, km/h
    double gustKmh = 0;             ///< current gust, km/h
    bool atBoundary = false;        ///< the drone is holding at the boundary buffer
    std::string trackingMode;       ///< raw value of the current TrackingMode
    std::vector<Notice> notices;    ///< newest first
    Site site;

    /// The state in which the simulator starts: the demo site, armed, with a docked drone.
    static LiveState initial();
};

template <>
inline constexpr auto fieldsOf<LiveState> =
    std::tuple{Field{"armed", &LiveState::armed},
               Field{"phase", &LiveState::phase},
               Field{"missionId", &LiveState::missionId},
               Field{"missionStart", &LiveState::missionStart},
               Field{"approvalDeadline", &LiveState::approvalDeadline},
               Field{"drone", &LiveState::drone},
               Field{"visitor", &LiveState::visitor},
               Field{"windKmh", &LiveState::windKmh},
               Field{"gustKmh", &LiveState::gustKmh},
               Field{"atBoundary", &LiveState::atBoundary},
               Field{"trackingMode", &LiveState::trackingMode},
               Field{"notices", &LiveState::notices},
               Field{"site", &LiveState::site}};

/// Whether the drone is within a metre of its pad.
bool isOverPad(const LiveState& state);

/// Identifies one alert, so that an answer to it is never applied to the next one. If the server sends
/// mission ids, each alert must have a different one; otherwise start, deadline and camera identify the
/// alert.
struct AlertId {
    std::optional<std::string> missionId; ///< never empty
    std::optional<Date> start;
    std::optional<Date> deadline;
    std::string cameraId;

    /// Compares the mission ids if there is one, otherwise the rest.
    bool operator==(const AlertId& other) const;
};

/// Whether `current` is the alert that was seen before: an equal one, or one whose mission id came late. Then
/// the rest must be equal, with a deadline.
bool isSameAlert(const AlertId& seen, const AlertId& current);

/// The alert that waits for the owner's answer; nullopt in every phase but awaitingApproval.
std::optional<AlertId> alertId(const LiveState& state);

/// Prepends the notice. Drops the oldest one if there are more than 40.
void addNotice(LiveState& state, Notice notice);

} // namespace velmora
