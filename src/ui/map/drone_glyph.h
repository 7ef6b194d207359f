#pragma once

#include <QPointF>

class QPainter;

namespace velmora {

inline constexpr double droneRadius = 15; ///< of the glyph's body, pixels

/// Draws the drone from above, its nose along the heading (degrees from +x towards +y). While it flies, the
/// radius of its rotors pulses with the time `t`, seconds.
void drawDrone(QPainter& painter, QPointF at, double heading, bool flying, double t, double scale = 1);

} // namespace velmora
