#include "ui/blocks/icon_button.h"

#include "ui/blocks/enter_presses.h"
#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QPainter>

namespace velmora {

IconButton::IconButton(Icon icon, const QString& name, QWidget* parent)
    : QAbstractButton(parent), icon_(icon) {
    setFixedSize(Measure::buttonHeight, Measure::buttonHeight);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    letEnterPress(this);
    FocusRing::setLook(this, {Measure::buttonRadius});
    setIcon(icon, name);
}

void IconButton::setIcon(Icon icon, const QString& name) {
    icon_ = icon;
    setAccessibleName(name);
    setToolTip(name);
    update();
}

void IconButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(SB::rule);
    painter.setBrush(isDown() ? SB::rule2 : underMouse() ? SB::panel : SB::page);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Measure::buttonRadius,
                            Measure::buttonRadius);
    QRectF icon(0, 0, Measure::buttonIcon, Measure::buttonIcon);
    icon.moveCenter(QRectF(rect()).center());
    paintIcon(painter, icon, icon_, isEnabled() ? SB::ink : SB::faded(SB::muted, 0.6));
}

} // namespace velmora
