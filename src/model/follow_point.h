#pragma once

#include "model/settings.h"
#include "model/site.h"

namespace velmora {

/// Where the drone keeps its distance from the visitor.
struct FollowPoint {
    P at;                    ///< inside the boundary and its buffer
    bool atBoundary = false; ///< the buffer is in the way of the full distance
};

/// The point at the follow distance from the visitor, on the line to the drone, moved inside the buffer. A
/// drone exactly above the visitor follows on the pad's side.
FollowPoint followPoint(P drone, P visitor, const Site& site, const Settings& settings);

/// The point moved inside the boundary and its buffer, metres. If the buffer leaves no room, the upper limits
/// win.
P insideBuffer(P p, const Site& site, double buffer);

} // namespace velmora
