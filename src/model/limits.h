#pragma once

#include "model/live_state.h"
#include "model/settings.h"

#include <string>

namespace velmora {

/// Why a record that was read cannot be used, such as "flightHeight: out of range"; empty when it can. Texts
/// print every number as a 64-bit whole number, so one that does not fit is refused where documents are read.
std::string unusableField(const Settings& settings);

/// Likewise "drone.battery: out of range". A site needs a boundary and a size between 1 and 100,000 metres,
/// otherwise there is no map to draw.
std::string unusableField(const LiveState& state);

} // namespace velmora
