#pragma once

#include <QRectF>

#include <functional>

class QPainter;

namespace velmora {

/// Draws translucent shapes with curved edges, such as a ring. Qt would spread each of them over several
/// threads, which takes many times as long as a small shape itself. `draw` gets a painter whose shapes
/// overwrite each other; the result, cut off at `area`, is then blended over the painter's picture. The
/// painter must not be scaled, and `draw` must not call this function.
void blendShapes(QPainter& painter, const QRectF& area, const std::function<void(QPainter&)>& draw);

} // namespace velmora
