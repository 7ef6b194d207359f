#include "ui/blocks/status_dot.h"

#include "ui/look/motion.h"
#include "ui/look/tokens.h"

#include <QEasingCurve>
#include <QPainter>
#include <QTimerEvent>

#include <cmath>

namespace velmora {

namespace {

constexpr double darkHalo = 0.22;
constexpr double pulseFrom = 8, pulseTo = 20; // diameters

} // namespace

void paintDisc(QPainter& painter, QPointF center, double diameter, const QColor& color) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(center, diameter / 2, diameter / 2);
}

void paintStatusDot(QPainter& painter, QPointF center, const DotLook& look) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor halo = look.dark ? SB::faded(look.color, darkHalo) : SB::dotBg;
    if (look.pulse >= 0) {
        const double grown = QEasingCurve(QEasingCurve::OutCubic).valueForProgress(look.pulse);
        paintDisc(painter, center, pulseFrom + (pulseTo - pulseFrom) * grown,
                  SB::faded(halo, 1 - look.pulse));
    } else if (look.halo) {
        paintDisc(painter, center, Measure::statusHalo, halo);
    }
    paintDisc(painter, center, look.diameter, look.color);
}

StatusDot::StatusDot(const DotLook& look, QWidget* parent) : QWidget(parent), look_(look) {
    const int side = static_cast<int>(look.halo ? pulseTo : look.diameter);
    setFixedSize(side, side);
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
    if (pulsing_ && onScreen_ && !Motion::reduced())
        timer_.start(Motion::frame, this);
    else
        timer_.stop();
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

void StatusDot::timerEvent(QTimerEvent*) {
    update();
}

void StatusDot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DotLook look = look_;
    if (timer_.isActive())
        look.pulse = std::fmod(Motion::seconds(), Motion::pulseSeconds) / Motion::pulseSeconds;
    paintStatusDot(painter, QRectF(rect()).center(), look);
}

} // namespace velmora
