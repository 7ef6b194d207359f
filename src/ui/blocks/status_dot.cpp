#include "ui/blocks/status_dot.h"

#include "ui/look/motion.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QEasingCurve>

namespace velmora {

namespace {

constexpr double darkHalo = 0.22;
constexpr double pulseFrom = 8, pulseTo = 20; // diameters in pixels

} // namespace

void paintStatusDot(QPainter& painter, QPointF center, const DotStyle& style) {
    const QColor halo = style.dark ? SB::faded(style.color, darkHalo) : SB::dotBg;
    if (style.pulse >= 0) {
        const double grown = QEasingCurve(QEasingCurve::OutCubic).valueForProgress(style.pulse);
        fillDisc(painter, center, pulseFrom + (pulseTo - pulseFrom) * grown,
                 SB::faded(halo, 1 - style.pulse));
    } else if (style.halo) {
        fillDisc(painter, center, Measure::statusHalo, halo);
    }
    fillDisc(painter, center, style.diameter, style.color);
}

StatusDot::StatusDot(const DotStyle& style, QWidget* parent)
    : QWidget(parent), style_(style), frames_(Motion::frame) {
    const int side = static_cast<int>(style.halo ? pulseTo : style.diameter);
    setFixedSize(side, side);
    connect(&frames_, &UiTimer::timeout, this, qOverload<>(&QWidget::update));
}

void StatusDot::setDotStyle(const DotStyle& style) {
    if (style == style_)
        return;
    style_ = style;
    update();
}

void StatusDot::setPulsing(bool pulsing) {
    if (pulsing == pulsing_)
        return;
    pulsing_ = pulsing;
    updateAnimation();
}

void StatusDot::updateAnimation() {
    frames_.setActive(pulsing_ && onScreen_ && !Motion::reduced());
    update();
}

void StatusDot::showEvent(QShowEvent*) {
    onScreen_ = true;
    updateAnimation();
}

void StatusDot::hideEvent(QHideEvent*) {
    onScreen_ = false;
    updateAnimation();
}

void StatusDot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DotStyle style = style_;
    if (frames_.isActive())
        style.pulse = Motion::pulseAt(Motion::seconds());
    paintStatusDot(painter, QRectF(rect()).center(), style);
}

} // namespace velmora
