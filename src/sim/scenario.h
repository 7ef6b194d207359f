#pragma once

#include "model/enums.h"
#include "model/point.h"

#include <span>

namespace velmora {

/// One point of a visitor's walk.
struct RoutePoint {
    P pos;
    double linger = 0; ///< seconds that the visitor stands there on arrival
};

/// The walk of a demo visit. Each starts inside the demo site's boundary and ends outside it.
std::span<const RoutePoint> routeOf(Scenario scenario);

} // namespace velmora
