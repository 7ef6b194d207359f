#pragma once

#include "ui/look/ui_clock.h"

#include <QEasingCurve>

class QWidget;

namespace velmora {

/// An animated value from 0 to 1. It changes at once while its widget is not visible or if the desktop asks
/// for reduced motion.
class Transition : public QObject {
    Q_OBJECT

public:
    Transition(const QWidget& widget, std::chrono::milliseconds duration,
               QEasingCurve::Type curve = QEasingCurve::Linear);

    double value() const { return value_; }
    bool isRunning() const { return frames_.isActive(); }
    void setDuration(std::chrono::milliseconds duration) { duration_ = duration; }
    /// Moves from the current value to `target`.
    void moveTo(double target) { move(value_, target); }
    void move(double from, double to);

signals:
    void changed();
    /// The value has reached its target.
    void finished();

private:
    void advance();

    const QWidget& widget_;
    std::chrono::milliseconds duration_;
    QEasingCurve curve_;
    UiTimer frames_;
    std::chrono::milliseconds began_{};
    double from_ = 0, to_ = 0, value_ = 0;
};

} // namespace velmora
