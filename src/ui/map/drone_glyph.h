#pragma once

#include <QPointF>

class QPainter;

namespace velmora {

inline constexpr double droneRadius = 15; ///< of the glyph's body, pixels

/// The drone from above, its nose along the heading (degrees from +x towards +y); its rotors breathe while it
/// flies.
void drawDrone(QPainter& painter, QPointF at, double heading, bool flying, double t);

} // namespace velmora
