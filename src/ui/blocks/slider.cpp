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
    FocusRing::setRingStyle(this, {.radius = Measure::buttonRadius});
    connect(this, &QSlider::valueChanged, this, &Slider::moved);
}

void Slider::setValue(int value) {
    const QSignalBlocker silently(this);
    QSlider::setValue(value);
    update();
}

double Slider::thumbX() const {
    const double share = maximum() > minimum() ? double(value() - minimum()) / (maximum() - minimum()) : 0;
    return Measure::sliderThumb / 2.0 + share * (width() - Measure::sliderThumb);
}

void Slider::moveTo(double x) {
    const double share = (x - Measure::sliderThumb / 2.0) / std::max(width() - Measure::sliderThumb, 1);
    QSlider::setValue(minimum() + static_cast<int>(std::lround(share * (maximum() - minimum()))));
}

void Slider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    setSliderDown(true);
    moveTo(event->position().x());
}

void Slider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        moveTo(event->position().x());
}

void Slider::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
}

void Slider::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QSlider::wheelEvent(event);
    else
        event->ignore();
}

void Slider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPointF thumb(thumbX(), height() / 2.0);
    QRectF track(0, thumb.y() - Measure::sliderTrack / 2.0, width(), Measure::sliderTrack);
    const double radius = track.height() / 2;
    fillRounded(painter, track, radius, SB::rule2);
    track.setRight(thumb.x());
    fillRounded(painter, track, radius, SB::teal);
    fillDisc(painter, thumb + QPointF(0, 1), Measure::sliderThumb + 1, SB::faded(SB::navy, 0.08));
    fillDisc(painter, thumb, Measure::sliderThumb, SB::page, SB::rule);
}

} // namespace velmora
