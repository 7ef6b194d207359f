#pragma once

#include "ui/look/ui_clock.h"

#include <QEasingCurve>

class QWidget;

namespace velmora {

/// A value, 0 to 1, that takes a while to change. It changes at once while its widget is not visible, or
/// where the desktop asks for no movement.
class Transition : public QObject {
    Q_OBJECT

public:
    Transition(const QWidget& widget, std::chrono::milliseconds duration,
               QEasingCurve::Type curve = QEasingCurve::Linear);

    double value() const { return value_; }
    bool isRunning() const { return frames_.isActive(); }
    void setDuration(std::chrono::milliseconds duration) { duration_ = duration; }
    /// Moves from the current value.
    void moveTo(double target) { move(value_, target); }
    void move(double from, double to);

signals:
    void changed();
    /// The value has arrived.
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
