#include "ui/blocks/icon_button.h"

#include "ui/blocks/click_on_enter.h"
#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

namespace velmora {

IconButton::IconButton(Icon icon, const QString& name, QWidget* parent)
    : QAbstractButton(parent), icon_(icon) {
    setFixedSize(Measure::buttonHeight, Measure::buttonHeight);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    clickOnEnter(this);
    FocusRing::setRingStyle(this, {Measure::buttonRadius});
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
    const QColor fill = isDown() ? SB::rule2 : underMouse() ? SB::panel : SB::page;
    fillRounded(painter, rect(), Measure::buttonRadius, fill, SB::edge);
    paintIcon(painter, QRectF(rect()).center(), Measure::buttonIcon, icon_,
              isEnabled() ? SB::ink : SB::faded(SB::muted, 0.6));
}

} // namespace velmora
