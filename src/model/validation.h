#pragma once

#include "model/live_state.h"
#include "model/settings.h"

#include <string>

namespace velmora {

/// Limits of a server's state. A larger state would stall the screens; a site outside these sizes cannot be
/// drawn.
struct Limits {
    int smallestSite = 1, largestSite = 100'000; ///< metres, width and height
    std::size_t textBytes = 1000;
    std::size_t points = 10'000; ///< of the boundary or of a trail
    std::size_t notices = 1000;
    std::size_t cameras = 100;
};

/// Path and problem of the first value that makes the settings unusable, such as "flightHeight: out of
/// range"; empty if there is none. Texts print numbers truncated, so each must fit a 64-bit integer.
std::string firstProblem(const Settings& settings);

/// The same for a server's state, which must also have a boundary and keep within the limits ("notices: more
/// than 1000 entries").
std::string firstProblem(const LiveState& state, const Limits& limits = {});

} // namespace velmora
