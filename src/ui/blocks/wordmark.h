#pragma once

#include <QWidget>

namespace velmora {

/// Draws the shield with its chevron, scaled to the rectangle.
void paintShield(QPainter& painter, const QRectF& rect);

/// The shield and the name, `indent` pixels from the left edge.
class Wordmark : public QWidget {
    Q_OBJECT

public:
    Wordmark(double indent, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double indent_;
};

} // namespace velmora
