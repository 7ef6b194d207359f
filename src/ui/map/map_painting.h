#pragma once

#include "ui/map/map_scene.h"

class QPainter;

namespace velmora {

/// The grounds: plan picture, veil, boundary with its buffer, cameras, pad. It changes only with the site,
/// the buffer and the camera that sees someone, so the map keeps it as a picture.
void drawGrounds(QPainter& painter, const MapScene& scene, QSizeF canvas);

/// What moves on the grounds, or a finished mission's paths. `t` is the frame's time in seconds.
void drawMission(QPainter& painter, const MapScene& scene, QSizeF canvas, double t);

/// Where drawMission paints something that moves from frame to frame, pixels.
QRectF liveArea(const MapScene& scene, QSizeF canvas);

} // namespace velmora
