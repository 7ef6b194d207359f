#pragma once

#include "ui/map/map_scene.h"

#include <QString>

namespace velmora {

/// Describes the map for screen readers: the positions of drone and visitor, their distance, and the distance
/// to the boundary.
QString mapDescription(const MapScene& scene);

} // namespace velmora
