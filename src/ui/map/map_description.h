#pragma once

#include "ui/map/map_scene.h"

#include <QString>

namespace velmora {

/// What the map shows, in words: where the drone and the visitor are, how far apart, how far to the boundary.
QString mapDescription(const MapScene& scene);

} // namespace velmora
