#pragma once

#include "model/live_state.h"
#include "model/settings.h"

namespace velmora {

/// Whether the battery is at or below the level at which the drone comes home.
inline bool isBatteryLow(const DroneState& drone, const Settings& settings) {
    return drone.battery <= settings.returnBattery;
}

/// Whether the mean wind is above the limit for flying.
inline bool isTooWindy(const LiveState& state, const Settings& settings) {
    return state.windKmh > settings.maxWindKmh;
}

} // namespace velmora
