#pragma once

#include <QWidget>

namespace velmora {

/// Draws the shield with its chevron, scaled to the rectangle.
void paintShield(QPainter& painter, const QRectF& rect);

/// The shield and the name.
class Wordmark : public QWidget {
    Q_OBJECT

public:
    explicit Wordmark(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velmora
