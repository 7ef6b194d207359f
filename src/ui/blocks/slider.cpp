#include "ui/blocks/slider.h"

#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QMouseEvent>
#include <QSignalBlocker>

#include <cmath>

namespace velmora {

Slider::Slider(const QString& name, int lower, int upper, QWidget* parent) : QSlider(Qt::Horizontal, parent) {
    setAccessibleName(name);
    setRange(lower, upper);
    setSingleStep(1);
    setPageStep(5);
    setFixedHeight(Measure::sliderThumb + 2);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    placeRing();
    connect(this, &QSlider::valueChanged, this, &Slider::moved);
}

void Slider::setValue(int value) {
    const QSignalBlocker silently(this);
    QSlider::setValue(value);
    update();
}

QRectF Slider::thumb() const {
    constexpr double side = Measure::sliderThumb;
    const double share = maximum() > minimum() ? double(value() - minimum()) / (maximum() - minimum()) : 0;
    return {share * (width() - side), (height() - side) / 2, side, side};
}

/// Moves the thumb's middle.
void Slider::moveTo(double x) {
    const double share = (x - Measure::sliderThumb / 2.0) / std::max(width() - Measure::sliderThumb, 1);
    QSlider::setValue(minimum() + static_cast<int>(std::lround(share * (maximum() - minimum()))));
}

/// A press on the track moves the thumb there, one on the thumb takes hold of it.
void Slider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    setSliderDown(true);
    pointed_ = true;
    const double x = event->position().x();
    grip_ = thumb().contains(event->position()) ? x - thumb().center().x() : 0;
    moveTo(x - grip_);
}

void Slider::mouseMoveEvent(QMouseEvent* event) {
    pointed_ = true;
    if (isSliderDown())
        moveTo(event->position().x() - grip_);
}

void Slider::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
}

void Slider::leaveEvent(QEvent*) {
    pointed_ = false;
}

/// Scrolls the page if that has brought the slider under the mouse.
void Slider::wheelEvent(QWheelEvent* event) {
    if (!hasFocus() || !pointed_) {
        event->ignore();
        return;
    }
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    wheel_ += event->angleDelta().y();
    QSlider::setValue(value() + wheel_ / notch);
    wheel_ %= notch;
}

void Slider::resizeEvent(QResizeEvent*) {
    placeRing();
}

void Slider::sliderChange(SliderChange change) {
    QSlider::sliderChange(change);
    placeRing();
}

void Slider::placeRing() {
    FocusRing::setRingStyle(this, {.radius = Measure::sliderThumb / 2.0, .part = thumb().toRect()});
}

void Slider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPointF middle = thumb().center();
    const auto track = [&](double right, double thickness, const QColor& color) {
        fillRounded(painter, {0, middle.y() - thickness / 2, right, thickness}, thickness / 2, color);
    };
    track(width(), Measure::sliderTrack / 2.0, SB::edge);
    track(middle.x(), Measure::sliderTrack, SB::teal);
    fillDisc(painter, middle + QPointF(0, 1), Measure::sliderThumb + 1, SB::faded(SB::navy, 0.08));
    fillDisc(painter, middle, Measure::sliderThumb, SB::page, SB::edge);
}

} // namespace velmora
