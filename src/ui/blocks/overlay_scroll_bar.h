#pragma once

#include "ui/look/ui_clock.h"

#include <QWidget>

class QScrollBar;

namespace velmora {

/// A slim bar over the right edge of what it scrolls, shown while it scrolls or the pointer is over it.
class OverlayScrollBar : public QWidget {
    Q_OBJECT

public:
    /// Moves the model, which itself may be hidden.
    OverlayScrollBar(QScrollBar* model, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QRectF thumb() const;
    void scrollTo(double top);

    QScrollBar* model_;
    UiTimer rest_;
    double grip_ = 0; ///< where the thumb is held, from its top
    bool held_ = false;
};

} // namespace velmora
