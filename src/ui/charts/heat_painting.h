#pragma once

#include "model/walk_map.h"
#include "ui/map/map_scene.h"

class QPainter;

namespace velmora {

/// Draws where visitors walked over the grounds of the scene, below their captions; no pad and no paths.
/// Takes a few milliseconds: draw it once and keep the picture. Its resolution is that of the painter's
/// device, or that of `scale` pixels for each unit of the canvas.
void drawHeatMap(QPainter& painter, const MapScene& scene, const WalkHeat& heat, QSizeF canvas, double scale);

/// Draws the key into the rectangle: the colours from one visit to the greatest number, with words at both
/// ends, aligned to the right, and what the map shows at the left.
void drawHeatKey(QPainter& painter, const QRectF& rect, int mostVisits);
/// The words of the key.
QString heatKeyWords(int mostVisits);

} // namespace velmora
