#pragma once

#include <QPolygonF>

namespace velmora {

/// The line without the points that it passes within `tolerance` even without them.
QPolygonF simplified(const QPolygonF& line, double tolerance);

} // namespace velmora
