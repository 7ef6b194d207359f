#pragma once

#include "ui/look/ui_clock.h"

#include <QWidget>

namespace velmora {

/// A one-line message, shown for ten seconds. It fits into the title strip, so that it covers no
/// controls.
class Toast : public QWidget {
    Q_OBJECT

public:
    explicit Toast(QWidget* window);

    QSize sizeHint() const override;
    enum class Tone { failure, success };

    /// Shows the message and announces it to assistive technology.
    void setMessage(const QString& message, Tone tone);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString message_;
    Tone tone_ = Tone::failure;
    UiTimer hideTimer_;
};

} // namespace velmora
