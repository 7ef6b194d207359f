#include "ui/look/paint.h"

#include "ui/look/tokens.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

QRectF inset(const QRectF& rect, double by) {
    return rect.adjusted(by, by, -by, -by);
}

QRectF square(QPointF center, double side) {
    return {center.x() - side / 2, center.y() - side / 2, side, side};
}

void prepare(QPainter& painter, const QBrush& fill, const QPen& line) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line);
    painter.setBrush(fill);
}

} // namespace

void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill) {
    prepare(painter, fill, Qt::NoPen);
    painter.drawRoundedRect(rect, radius, radius);
}

void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill,
                 const QColor& border) {
    prepare(painter, fill, border);
    painter.drawRoundedRect(inset(rect, 0.5), radius, radius);
}

bool liesInside(const QRect& area, const QRect& rect, double radius) {
    const int corner = static_cast<int>(std::ceil(radius));
    return rect.adjusted(corner, 0, -corner, 0).contains(area) ||
           rect.adjusted(0, corner, 0, -corner).contains(area);
}

void fillDisc(QPainter& painter, QPointF center, double diameter, const QBrush& fill) {
    prepare(painter, fill, Qt::NoPen);
    painter.drawEllipse(center, diameter / 2, diameter / 2);
}

void fillDisc(QPainter& painter, QPointF center, double diameter, const QBrush& fill, const QColor& border,
              double width) {
    prepare(painter, fill, QPen(border, width));
    const double radius = (diameter - width) / 2;
    painter.drawEllipse(center, radius, radius);
}

/// Nested translucent rectangles.
void paintShadow(QPainter& painter, const QRectF& rect, double radius, const Shadow& shadow) {
    constexpr int steps = 16;
    const QColor share = SB::faded(SB::navy, 1 - std::pow(1 - shadow.opacity, 1.0 / steps));
    for (int step = 0; step < steps; ++step) {
        const double grown = shadow.blur * (0.5 - static_cast<double>(step) / steps);
        fillRounded(painter, rect.translated(0, shadow.offset).adjusted(-grown, -grown, grown, grown),
                    std::max(radius + grown, 2.0), share);
    }
}

void paintIcon(QPainter& painter, QPointF center, double side, Icon icon, const QColor& color) {
    paintIcon(painter, square(center, side), icon, color);
}

void paintHairline(QPainter& painter, const QRect& line, const QColor& color) {
    const double scale = painter.device()->devicePixelRatioF();
    const double thickness = std::max(std::floor(scale), 1.0) / scale;
    QRectF thin = line;
    if (line.width() < line.height())
        thin.setWidth(thickness);
    else
        thin.setHeight(thickness);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(thin, color);
    painter.restore();
}

} // namespace velmora
