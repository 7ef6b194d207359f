#include "ui/blocks/status_dot.h"

#include "ui/look/motion.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QEasingCurve>

namespace velmora {

namespace {

constexpr double darkHalo = 0.22;
constexpr double pulseFrom = 8, pulseTo = 20; // diameters

} // namespace

void paintStatusDot(QPainter& painter, QPointF center, const DotLook& look) {
    const QColor halo = look.dark ? SB::faded(look.color, darkHalo) : SB::dotBg;
    if (look.pulse >= 0) {
        const double grown = QEasingCurve(QEasingCurve::OutCubic).valueForProgress(look.pulse);
        fillDisc(painter, center, pulseFrom + (pulseTo - pulseFrom) * grown, SB::faded(halo, 1 - look.pulse));
    } else if (look.halo) {
        fillDisc(painter, center, Measure::statusHalo, halo);
    }
    fillDisc(painter, center, look.diameter, look.color);
}

StatusDot::StatusDot(const DotLook& look, QWidget* parent)
    : QWidget(parent), look_(look), frames_(Motion::frame) {
    const int side = static_cast<int>(look.halo ? pulseTo : look.diameter);
    setFixedSize(side, side);
    connect(&frames_, &UiTimer::timeout, this, qOverload<>(&QWidget::update));
}

void StatusDot::setLook(const DotLook& look) {
    if (look == look_)
        return;
    look_ = look;
    update();
}

void StatusDot::setPulsing(bool pulsing) {
    if (pulsing == pulsing_)
        return;
    pulsing_ = pulsing;
    runOrRest();
}

void StatusDot::runOrRest() {
    frames_.setActive(pulsing_ && onScreen_ && !Motion::reduced());
    update();
}

void StatusDot::showEvent(QShowEvent*) {
    onScreen_ = true;
    runOrRest();
}

void StatusDot::hideEvent(QHideEvent*) {
    onScreen_ = false;
    runOrRest();
}

void StatusDot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DotLook look = look_;
    if (frames_.isActive())
        look.pulse = Motion::pulseAt(Motion::seconds());
    paintStatusDot(painter, QRectF(rect()).center(), look);
}

} // namespace velmora
