#include "ui/blocks/scroll_area.h"

#include "ui/blocks/focus_ring.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/overlay_scroll_bar.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QGridLayout>
#include <QPainter>

namespace velmora {

/// Fades the bottom of the content into the page.
class ScrollArea::Fade : public QWidget {
public:
    Fade(QScrollBar* model, QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        const auto refresh = [this, model] { setVisible(model->value() < model->maximum()); };
        connect(model, &QScrollBar::valueChanged, this, refresh);
        connect(model, &QScrollBar::rangeChanged, this, refresh);
        hide();
    }

    void setPixels(int pixels) {
        pixels_ = pixels;
        updateGeometry();
    }
    QSize sizeHint() const override { return {0, pixels_}; }

protected:
    void paintEvent(QPaintEvent*) override {
        QLinearGradient gradient(0, height() - pixels_, 0, height());
        gradient.setColorAt(0, SB::faded(SB::page, 0));
        gradient.setColorAt(1, SB::page);
        QPainter(this).fillRect(rect(), gradient);
    }

private:
    int pixels_ = 0;
};

ScrollArea::ScrollArea(QWidget* parent) : QScrollArea(parent) {
    auto* bar = new OverlayScrollBar(verticalScrollBar(), this);
    fade_ = new Fade(verticalScrollBar(), this);
    auto* overlays = bareLayout<QGridLayout>(this);
    overlays->setColumnStretch(0, 1);
    overlays->setColumnMinimumWidth(1, Measure::scrollBarEdge);
    overlays->addWidget(bar, 0, 0, Qt::AlignRight);
    overlays->addWidget(fade_, 0, 0, 1, 2, Qt::AlignBottom);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
}

void ScrollArea::enableKeyboardScrolling() {
    FocusRing::setRingStyle(this, {Measure::badgeRadius});
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int, int end) { setFocusPolicy(end > 0 ? Qt::TabFocus : Qt::NoFocus); });
}

void ScrollArea::setFade(int pixels) {
    fade_->setPixels(pixels);
}

} // namespace velmora
