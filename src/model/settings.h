#pragma once

#include "model/enums.h"
#include "model/fields.h"

#include <cstdint>
#include <map>
#include <string>

namespace velmora {

/// Default host of a fresh installation, set at build time.
std::string defaultHost();

/// The owner's settings. The initialisers are the defaults of a fresh installation.
struct Settings {
    bool linkMode = false; ///< false: built-in simulation; true: a server on the network
    std::string host = defaultHost();
    std::int64_t port = 8765;
    double flightHeight = 15;    ///< metres, height at which the drone follows
    double minimumHeight = 10;   ///< metres, lowest height allowed
    double followDistance = 15;  ///< metres, kept behind the visitor
    double boundaryBuffer = 5;   ///< metres inside the boundary that the drone does not cross
    double returnBattery = 30;   ///< percent below which the drone comes home
    double maxWindKmh = 30;      ///< km/h above which the drone does not fly
    double approvalSeconds = 60; ///< seconds to approve a launch
    TrackingMode tracking = TrackingMode::own;
    bool notifyMac = true;                         ///< post desktop notifications
    std::string ntfyTopic;                         ///< topic for phone pushes; empty means none
    std::map<std::string, bool> alertUnknownFaces; ///< by camera id; only what the owner has set
    std::map<std::string, bool> alertPeople;       ///< by camera id; only what the owner has set
    bool onboarded = false;                        ///< the welcome has been completed
};

template <>
inline constexpr auto fieldsOf<Settings> =
    std::tuple{Field{"linkMode", &Settings::linkMode},
               Field{"host", &Settings::host},
               Field{"port", &Settings::port},
               Field{"flightHeight", &Settings::flightHeight},
               Field{"minimumHeight", &Settings::minimumHeight},
               Field{"followDistance", &Settings::followDistance},
               Field{"boundaryBuffer", &Settings::boundaryBuffer},
               Field{"returnBattery", &Settings::returnBattery},
               Field{"maxWindKmh", &Settings::maxWindKmh},
               Field{"approvalSeconds", &Settings::approvalSeconds},
               Field{"tracking", &Settings::tracking},
               Field{"notifyMac", &Settings::notifyMac},
               Field{"ntfyTopic", &Settings::ntfyTopic},
               Field{"alertUnknownFaces", &Settings::alertUnknownFaces},
               Field{"alertPeople", &Settings::alertPeople},
               Field{"onboarded", &Settings::onboarded}};

} // namespace velmora
