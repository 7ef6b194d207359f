#pragma once

#include <QSlider>

namespace velmora {

/// A slider in steps of 1: arrow keys move it by one, page keys by five. A notch of the wheel moves it
/// by one too, but only while it has the focus, so that scrolling a page never changes a value.
class Slider : public QSlider {
    Q_OBJECT

public:
    Slider(const QString& name, int lower, int upper, QWidget* parent);

    /// Clamps the value to the bounds. Does not emit `moved`.
    void setValue(int value);

signals:
    /// The owner moved it by mouse, key, wheel or accessible action.
    void moved(int value);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void sliderChange(SliderChange change) override;

private:
    QRectF thumb() const;
    void moveTo(double x);
    void placeRing();

    double grip_ = 0;      ///< from the thumb's middle to the mouse, while it is dragged
    bool pointed_ = false; ///< the mouse came by itself, and not because the page scrolled
    int wheel_ = 0;        ///< turned since the last step, in eighths of a degree
};

} // namespace velmora
