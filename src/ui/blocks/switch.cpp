#include "ui/blocks/switch.h"

#include "ui/blocks/click_on_enter.h"
#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QSignalBlocker>

namespace velmora {

Switch::Switch(const QString& name, QWidget* parent)
    : QAbstractButton(parent), position_(*this, Motion::toggle) {
    setCheckable(true);
    setAccessibleName(name);
    setFixedSize(Measure::switchSize);
    setFocusPolicy(Qt::StrongFocus);
    clickOnEnter(this);
    FocusRing::setRingStyle(this, {Measure::switchSize.height() / 2.0});
    connect(&position_, &Transition::changed, this, qOverload<>(&QWidget::update));
    connect(this, &QAbstractButton::toggled, this, &Switch::slide);
    connect(this, &QAbstractButton::toggled, this, &Switch::turned);
}

void Switch::setChecked(bool on) {
    if (on == isChecked())
        return;
    const QSignalBlocker silently(this);
    QAbstractButton::setChecked(on);
    slide(on);
}

void Switch::slide(bool on) {
    position_.moveTo(on ? 1 : 0);
}

void Switch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.5);
    const double on = position_.value();
    const double middle = height() / 2.0, travel = width() - height();
    fillRounded(painter, rect(), middle, SB::mixed(SB::edge, SB::teal, on));
    fillDisc(painter, {middle + travel * on, middle}, Measure::switchThumb, SB::page);
}

} // namespace velmora
