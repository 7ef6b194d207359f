#include "ui/blocks/badge.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <cmath>

namespace velmora {

double badgeWidth(const QString& text) {
    return textWidth(text, Type::badge) + 2 * Measure::badgePadding;
}

void paintBadge(QPainter& painter, double right, double y, const QString& text) {
    const double width = badgeWidth(text);
    const QRectF badge(right - width, y - Measure::badgeHeight / 2.0, width, Measure::badgeHeight);
    fillRounded(painter, badge, Measure::badgeRadius, Qt::NoBrush, SB::rule);
    drawText(painter, badge, text, Type::badge, SB::muted, Qt::AlignCenter);
}

Badge::Badge(const QString& text, QWidget* parent) : QWidget(parent), text_(text) {
    setFixedSize(static_cast<int>(std::ceil(badgeWidth(text))), Measure::badgeHeight);
    declareRole(this, QAccessible::StaticText);
    setAccessibleName(text);
}

void Badge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintBadge(painter, width(), height() / 2.0, text_);
}

NumberBadge::NumberBadge(int number, QWidget* parent) : QWidget(parent), number_(number) {
    setFixedSize(Measure::numberBadge, Measure::numberBadge);
}

void NumberBadge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillDisc(painter, QRectF(rect()).center(), width(), Qt::NoBrush, SB::rule);
    drawText(painter, rect(), QString::number(number_), Type::numberBadge, SB::ink, Qt::AlignCenter);
}

} // namespace velmora
