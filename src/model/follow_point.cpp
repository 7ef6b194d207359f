#include "model/follow_point.h"

#include <algorithm>

namespace velmora {

namespace {

/// Like std::clamp, but gives `high` if `low` is greater.
double raiseThenLower(double value, double low, double high) {
    return std::min(std::max(value, low), high);
}

} // namespace

FollowPoint followPoint(P drone, P visitor, const Site& site, const Settings& settings) {
    P away = unit(drone - visitor);
    if (length(away) < 0.5)
        away = unit(site.pad - visitor);
    const P wanted = visitor + away * settings.followDistance;
    const P at = insideBuffer(wanted, site, settings.boundaryBuffer);
    return {at, distance(at, wanted) > 0.01};
}

P insideBuffer(P p, const Site& site, double buffer) {
    const Bounds bounds = boundsOf(site);
    return {raiseThenLower(p.x, bounds.minX + buffer, bounds.maxX - buffer),
            raiseThenLower(p.y, bounds.minY + buffer, bounds.maxY - buffer)};
}

} // namespace velmora
