#pragma once

#include "ui/map/map_scene.h"

class QPainter;

namespace velmora {

/// The grounds: plan picture, veil, boundary with its buffer, cameras, pad. It changes only with the site,
/// the buffer and the camera that sees someone, so the map keeps it as a picture.
void drawGrounds(QPainter& painter, const MapScene& scene, QSizeF canvas);

/// The ways that drone and visitor came, or those of a finished mission with where they began and ended. They
/// grow twice a second, so the map keeps them as a picture, too: they are drawn on a transparent one.
void drawPaths(QPainter& painter, const MapScene& scene, QSizeF canvas);

/// Drone and visitor, which a finished mission is without. `t` is the frame's time in seconds.
void drawMovers(QPainter& painter, const MapScene& scene, QSizeF canvas, double t);

/// Where drawMovers paints something that moves from frame to frame, pixels.
QRectF liveArea(const MapScene& scene, QSizeF canvas);

} // namespace velmora
