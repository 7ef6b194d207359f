#include "ui/blocks/link_button.h"

#include "ui/blocks/click_on_enter.h"
#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <cmath>

namespace velmora {

LinkButton::LinkButton(const QString& text, QWidget* parent) : QAbstractButton(parent) {
    setText(text);
    setAccessibleName(text);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    clickOnEnter(this);
    FocusRing::setRingStyle(this, {Measure::badgeRadius});
}

QSize LinkButton::sizeHint() const {
    return {static_cast<int>(std::ceil(textWidth(text(), Type::link))), static_cast<int>(Type::link.line)};
}

void LinkButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawText(painter, rect(), text(), Type::link, SB::blue, Qt::AlignVCenter);
    if (underMouse())
        painter.fillRect(QRectF(0, std::round(height() / 2.0 + Type::link.size / 2), width(), 1), SB::blue);
}

} // namespace velmora
