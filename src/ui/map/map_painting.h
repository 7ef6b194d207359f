#pragma once

#include "ui/map/map_scene.h"

class QPainter;

namespace velmora {

/// Draws the grounds: plan picture, veil, boundary with its buffer, cameras, the pad's ring. They change only
/// with the site, the buffer and the camera that sees someone, so SiteMap caches them.
void drawGrounds(QPainter& painter, const MapScene& scene, QSizeF canvas);

/// Parts of the grounds: the plan with its veil, and the boundary with its buffer and the pad's ring.
void drawPlan(QPainter& painter, const MapScene& scene, QSizeF canvas);
void drawLimits(QPainter& painter, const MapScene& scene, QSizeF canvas);
/// The grounds without the pad: what lies below other layers, and the cameras and captions above them.
void drawBackdrop(QPainter& painter, const MapScene& scene, QSizeF canvas);
void drawLandmarks(QPainter& painter, const MapScene& scene, QSizeF canvas);

/// Draws the trails, or a replay's paths with start and end markers, onto a transparent layer that SiteMap
/// caches.
void drawPaths(QPainter& painter, const MapScene& scene, QSizeF canvas);

/// The rectangle, in pixels, that contains everything drawPaths() draws; empty without paths.
QRectF pathsArea(const MapScene& scene, QSizeF canvas);

/// Draws visitor, drone and the captions that depend on them; for a replay only the pad's caption. `t` is the
/// time of the frame, seconds.
void drawMovers(QPainter& painter, const MapScene& scene, QSizeF canvas, double t);

/// The rectangle, in pixels, that contains everything drawMovers() animates; empty for a replay.
QRectF liveArea(const MapScene& scene, QSizeF canvas);

} // namespace velmora
