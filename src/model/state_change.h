#pragma once

#include "model/live_state.h"
#include "model/settings.h"

namespace velmora {

/// What of a live state has changed for the eye.
enum class StateChange {
    none,
    motion,    ///< only drone, wind, or where the visitor is
    situation, ///< anything else
};

/// Compares two successive states. While the drone is docked and nobody is watched, battery, signal and wind
/// count as the whole numbers in which they are shown and by the limits of the settings; what they change
/// below that is `none`.
StateChange changeBetween(const LiveState& before, const LiveState& after, const Settings& settings);

} // namespace velmora
