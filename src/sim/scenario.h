#pragma once

#include "model/enums.h"
#include "model/point.h"

#include <span>

namespace velmora {

/// One point of a visitor's walk.
struct RoutePoint {
    P pos;
    double linger = 0; ///< seconds that the visitor waits there
};

/// The visitor's walk in a demo visit. It starts inside the demo site's boundary and ends outside.
std::span<const RoutePoint> routeOf(Scenario scenario);

} // namespace velmora
