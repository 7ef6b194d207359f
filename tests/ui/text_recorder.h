#pragma once

#include <QPaintEngine>
#include <QTransform>
#include <QWidget>

#include <memory>
#include <vector>

namespace velmora {

/// One run of text as a widget draws it, in the widget's coordinates.
struct DrawnText {
    QString text;
    QRectF rect; ///< from the ascent to the descent
    QRectF clip; ///< what can be seen of the widget that draws it
};

/// A paint device that keeps the texts that are drawn on it, and nothing else.
class TextRecorder : public QPaintDevice {
public:
    /// Returns the texts that the widget and its visible children draw.
    static std::vector<DrawnText> textsOf(QWidget& widget);

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    explicit TextRecorder(QWidget& widget);

    QWidget& widget_;
    std::shared_ptr<Engine> engine_;
};

} // namespace velmora
