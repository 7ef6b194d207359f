#include "ui/blocks/wordmark.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QPainterPath>

namespace velmora {

void paintShield(QPainter& painter, const QRectF& rect) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / 20, rect.height() / 20); // the path uses a 20 x 20 grid
    QPainterPath shield;
    shield.moveTo(10, 1);
    shield.cubicTo(12.4, 2.9, 15.2, 3.7, 18, 3.9);
    shield.lineTo(18, 9.4);
    shield.cubicTo(18, 14.2, 14.6, 17.4, 10, 19);
    shield.cubicTo(5.4, 17.4, 2, 14.2, 2, 9.4);
    shield.lineTo(2, 3.9);
    shield.cubicTo(4.8, 3.7, 7.6, 2.9, 10, 1);
    painter.fillPath(shield, SB::gradientLight(2, 18));
    painter.setPen(QPen(SB::page, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({QPointF(6.2, 7.4), QPointF(10, 13), QPointF(13.8, 7.4)}));
    painter.restore();
}

Wordmark::Wordmark(double indent, QWidget* parent) : QWidget(parent), indent_(indent) {
    setFixedHeight(Measure::wordmarkRow);
    declareRole(this, QAccessible::StaticText);
    setAccessibleName(QStringLiteral("Velmora"));
}

void Wordmark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRectF shield(indent_, 0, Measure::wordmarkShield, Measure::wordmarkShield);
    shield.moveTop((height() - shield.height()) / 2);
    paintShield(painter, shield);
    const QRectF name(shield.right() + Measure::wordmarkGap, 0, width(), height());
    drawText(painter, name, accessibleName(), Type::wordmark, SB::ink, Qt::AlignVCenter);
}

} // namespace velmora
