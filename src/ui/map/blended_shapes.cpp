#include "ui/map/blended_shapes.h"

#include <QImage>
#include <QPainter>

namespace velmora {

namespace {

/// A transparent picture of this size, valid until the next call: several in each frame share one buffer.
QImage emptyPicture(QSize size) {
    static QImage buffer;
    if (size.width() > buffer.width() || size.height() > buffer.height())
        buffer = QImage(size.expandedTo(buffer.size()), QImage::Format_ARGB32_Premultiplied);
    QImage picture(buffer.bits(), size.width(), size.height(), buffer.bytesPerLine(), buffer.format());
    picture.fill(Qt::transparent);
    return picture;
}

} // namespace

/// Shapes that overwrite are drawn by one thread.
void blendShapes(QPainter& painter, const QRectF& area, const std::function<void(QPainter&)>& draw) {
    const double scale = painter.device()->devicePixelRatioF();
    const QRect pixels = QRectF(area.topLeft() * scale, area.size() * scale).toAlignedRect();
    if (pixels.isEmpty())
        return;
    QImage shapes = emptyPicture(pixels.size());
    shapes.setDevicePixelRatio(scale);
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
