#include "ui/blocks/link_button.h"

#include "ui/blocks/click_on_enter.h"
#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <cmath>

namespace velmora {

LinkButton::LinkButton(const QString& text, QWidget* parent, const TextStyle& style, const QColor& color)
    : QAbstractButton(parent), style_(style), color_(color) {
    setWords(text);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    clickOnEnter(this);
    FocusRing::setRingStyle(this, {Measure::badgeRadius});
}

void LinkButton::setWords(const QString& text) {
    setText(text);
    setAccessibleName(text);
}

QSize LinkButton::sizeHint() const {
    return {static_cast<int>(std::ceil(textWidth(text(), style_))), static_cast<int>(style_.line)};
}

void LinkButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawText(painter, rect(), text(), style_, color_, Qt::AlignVCenter);
    if (underMouse())
        painter.fillRect(QRectF(0, std::round(height() / 2.0 + style_.size / 2), width(), 1), color_);
}

} // namespace velmora
