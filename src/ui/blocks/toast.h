#pragma once

#include "ui/look/ui_clock.h"

#include <QWidget>

namespace velmora {

/// An urgent message of one line in the middle of the title strip, where it covers nothing, for ten seconds.
/// It lies above cards and their veil.
class Toast : public QWidget {
    Q_OBJECT

public:
    explicit Toast(QWidget* window);

    /// Shows the message and announces it to assistive technology.
    void setMessage(const QString& message);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();

    QString message_;
    UiTimer time_;
};

} // namespace velmora
