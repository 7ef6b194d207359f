#include "ui/blocks/slider.h"

#include "ui/blocks/focus_ring.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QMouseEvent>
#include <QPainter>
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
    FocusRing::setLook(this, {.radius = Measure::buttonRadius});
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
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF thumb(thumbX(), height() / 2.0);
    QRectF track(0, thumb.y() - Measure::sliderTrack / 2.0, width(), Measure::sliderTrack);
    const double radius = track.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(SB::rule2);
    painter.drawRoundedRect(track, radius, radius);
    track.setRight(thumb.x());
    painter.setBrush(SB::teal);
    painter.drawRoundedRect(track, radius, radius);
    constexpr double half = Measure::sliderThumb / 2.0;
    painter.setBrush(SB::faded(SB::navy, 0.08));
    painter.drawEllipse(thumb + QPointF(0, 1), half + 0.5, half + 0.5);
    painter.setPen(SB::rule);
    painter.setBrush(SB::page);
    painter.drawEllipse(thumb, half - 0.5, half - 0.5);
}

} // namespace velmora
