#include "ui/blocks/badge.h"

#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

namespace velmora {

double paintBadge(QPainter& painter, double right, double y, const QString& text) {
    const double width = textWidth(text, Type::badge) + 2 * Measure::badgePadding;
    const QRectF badge(right - width, y - Measure::badgeHeight / 2.0, width, Measure::badgeHeight);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(SB::rule);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(badge.adjusted(0.5, 0.5, -0.5, -0.5), Measure::badgeRadius, Measure::badgeRadius);
    drawText(painter, badge, text, Type::badge, SB::muted, Qt::AlignCenter);
    return width;
}

NumberBadge::NumberBadge(int number, QWidget* parent) : QWidget(parent), number_(number) {
    setFixedSize(Measure::numberBadge, Measure::numberBadge);
}

void NumberBadge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(SB::rule);
    painter.drawEllipse(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    drawText(painter, rect(), QString::number(number_), Type::numberBadge, SB::ink, Qt::AlignCenter);
}

} // namespace velmora
