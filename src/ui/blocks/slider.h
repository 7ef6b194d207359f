#pragma once

#include <QSlider>

namespace velmora {

/// A slider in steps of 1: arrows move one step, Page keys five. The wheel moves it only while it has the
/// focus, so that scrolling a page never changes a value.
class Slider : public QSlider {
    Q_OBJECT

public:
    Slider(const QString& name, int lower, int upper, QWidget* parent);

    /// Cuts the value to the bounds and emits nothing.
    void setValue(int value);

signals:
    /// The owner moved it, by mouse, key, wheel or an accessible action.
    void moved(int value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    double thumbX() const;
    void moveTo(double x);
};

} // namespace velmora
