#pragma once

#include "model/live_state.h"
#include "model/settings.h"

#include <string>

namespace velmora {

/// What a server's state may hold. More would stall the screens; a site outside these sizes cannot be drawn.
struct Limits {
    int smallestSite = 1, largestSite = 100'000; ///< metres, width and height
    std::size_t textBytes = 1000;
    std::size_t points = 10'000; ///< of the boundary or of a trail
    std::size_t notices = 1000;
    std::size_t cameras = 100;
};

/// Path and problem of the first value that makes the record unusable, such as "flightHeight: out of range";
/// empty if it is usable. Every number must fit a 64-bit integer when truncated, because texts print it so.
std::string firstProblem(const Settings& settings);

/// Likewise "notices: more than 1000 entries". A site also needs a boundary.
std::string firstProblem(const LiveState& state, const Limits& limits = {});

} // namespace velmora
