#include "ui/map/blended_shapes.h"

#include <QImage>
#include <QPainter>

namespace velmora {

/// Shapes that overwrite are drawn by one thread.
void blendShapes(QPainter& painter, const QRectF& area, const std::function<void(QPainter&)>& draw) {
    const double scale = painter.device()->devicePixelRatioF();
    const QRect pixels = QRectF(area.topLeft() * scale, area.size() * scale).toAlignedRect();
    if (pixels.isEmpty())
        return;
    QImage shapes(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    shapes.setDevicePixelRatio(scale);
    shapes.fill(Qt::transparent);
    const QPointF corner = QPointF(pixels.topLeft()) / scale;
    QPainter onShapes(&shapes);
    onShapes.setRenderHint(QPainter::Antialiasing);
    onShapes.setCompositionMode(QPainter::CompositionMode_Source);
    onShapes.translate(-corner);
    draw(onShapes);
    onShapes.end();
    painter.drawImage(corner, shapes);
}

} // namespace velmora
