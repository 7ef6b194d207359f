#include "ui/blocks/chip.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/status_dot.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double textX = Measure::chipPadding + Measure::statusDotInRow + Measure::gap8;
constexpr double plate = 0.72;

} // namespace

Chip::Chip(QWidget* parent) : QWidget(parent), dot_(SB::dTeal) {
    declareRole(this, QAccessible::StaticText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Chip::setText(const QString& text) {
    if (text == accessibleName())
        return;
    setAccessibleName(text);
    const double words = std::min(textWidth(text, Type::caption.withTabularDigits()), Measure::chipText);
    setFixedSize(static_cast<int>(std::ceil(textX + words)) + Measure::chipPadding, Measure::chipHeight);
    update();
}

void Chip::setDot(const QColor& color, bool ring) {
    if (color == dot_ && ring == ring_)
        return;
    dot_ = color;
    ring_ = ring;
    update();
}

void Chip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::thumbnailRadius, SB::faded(SB::navy, plate));
    const QPointF center(Measure::chipPadding + Measure::statusDotInRow / 2, height() / 2.0);
    if (ring_)
        fillDisc(painter, center, Measure::statusDotInRow + 2, SB::dTitle);
    paintStatusDot(painter, center, {.color = dot_, .diameter = Measure::statusDotInRow});
    drawText(painter, QRectF(textX, 0, width() - textX - Measure::chipPadding + 1, height()),
             accessibleName(), Type::caption.withTabularDigits(), SB::dTitle, Qt::AlignVCenter);
}

} // namespace velmora
