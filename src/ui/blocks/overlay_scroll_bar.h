#pragma once

#include "ui/look/ui_clock.h"

#include <QWidget>

class QScrollBar;

namespace velmora {

/// A slim scroll bar over the right edge of the content, visible during scrolling and under the pointer.
class OverlayScrollBar : public QWidget {
    Q_OBJECT

public:
    /// Drives `model`, which must outlive the bar and may be hidden.
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
    UiTimer visibleTimer_;  ///< runs for a moment after each movement
    double dragOffset_ = 0; ///< pixels from the thumb's top to the pointer
    bool dragging_ = false;
};

} // namespace velmora
