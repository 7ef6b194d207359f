#include "ui/look/transition.h"

#include "ui/look/motion.h"

#include <QWidget>

namespace velmora {

namespace {

constexpr std::chrono::milliseconds betweenFrames{16};

} // namespace

Transition::Transition(const QWidget& widget, std::chrono::milliseconds duration, QEasingCurve::Type curve)
    : widget_(widget), duration_(duration), curve_(curve), frames_(betweenFrames) {
    connect(&frames_, &UiTimer::timeout, this, &Transition::advance);
}

void Transition::move(double from, double to) {
    from_ = value_ = from;
    to_ = to;
    began_ = UiClock::current().now();
    frames_.setActive(widget_.isVisible() && !Motion::reduced());
    advance();
}

void Transition::advance() {
    const std::chrono::duration<double> passed = UiClock::current().now() - began_;
    const bool arrives = !frames_.isActive() || passed >= duration_;
    value_ = arrives ? to_ : from_ + (to_ - from_) * curve_.valueForProgress(passed / duration_);
    if (arrives)
        frames_.stop();
    emit changed();
    if (arrives)
        emit finished();
}

} // namespace velmora
