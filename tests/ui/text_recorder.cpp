#include "ui/text_recorder.h"

namespace velmora {

class TextRecorder::Engine : public QPaintEngine {
public:
    Engine() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState& changed) override {
        if (changed.state() & DirtyTransform)
            transform_ = changed.transform();
    }
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawImage(const QRectF&, const QImage&, const QRectF&, Qt::ImageConversionFlags) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawTextItem(const QPointF& position, const QTextItem& item) override {
        const QRectF box(position.x(), position.y() - item.ascent(), item.width(),
                         item.ascent() + item.descent());
        texts.push_back({item.text(), transform_.mapRect(box), systemClip().boundingRect()});
    }

    std::vector<DrawnText> texts;

private:
    QTransform transform_;
};

TextRecorder::TextRecorder(QWidget& widget) : widget_(widget), engine_(std::make_shared<Engine>()) {}

std::vector<DrawnText> TextRecorder::textsOf(QWidget& widget) {
    TextRecorder recorder(widget);
    widget.render(&recorder, {}, {}, QWidget::DrawChildren);
    return recorder.engine_->texts;
}

QPaintEngine* TextRecorder::paintEngine() const {
    return engine_.get();
}

int TextRecorder::metric(PaintDeviceMetric metric) const {
    switch (metric) {
    case PdmWidth:
        return widget_.width();
    case PdmHeight:
        return widget_.height();
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return 96;
    }
}

} // namespace velmora
