#include "ui/blocks/switch.h"

#include "ui/blocks/enter_presses.h"
#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/tokens.h"

#include <QPainter>
#include <QSignalBlocker>

namespace velmora {

Switch::Switch(const QString& name, QWidget* parent) : QAbstractButton(parent) {
    setCheckable(true);
    setAccessibleName(name);
    setFixedSize(Measure::switchSize);
    setFocusPolicy(Qt::StrongFocus);
    letEnterPress(this);
    FocusRing::setLook(this, {Measure::switchSize.height() / 2.0});
    position_.setDuration(Motion::toggle);
    position_.setStartValue(0.0);
    position_.setEndValue(0.0);
    connect(&position_, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
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
    const QVariant from = position_.currentValue();
    position_.stop();
    position_.setStartValue(isVisible() && !Motion::reduced() ? from : QVariant(on ? 1.0 : 0.0));
    position_.setEndValue(on ? 1.0 : 0.0);
    position_.start();
}

void Switch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(0.5);
    const double on = position_.currentValue().toDouble();
    painter.setPen(Qt::NoPen);
    painter.setBrush(SB::mixed(SB::rule, SB::teal, on));
    painter.drawRoundedRect(rect(), height() / 2.0, height() / 2.0);
    const double edge = (height() - Measure::switchThumb) / 2.0;
    const double travel = width() - Measure::switchThumb - 2 * edge;
    painter.setBrush(SB::page);
    painter.drawEllipse(QRectF(edge + travel * on, edge, Measure::switchThumb, Measure::switchThumb));
}

} // namespace velmora
