#include "ui/blocks/scroll_area.h"

#include "ui/blocks/focus_ring.h"
#include "ui/blocks/overlay_scroll_bar.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QEvent>
#include <QPainter>

namespace velmora {

namespace {

/// The end of the content, fading into the page.
class Fade : public QWidget {
public:
    Fade(QScrollBar* model, QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFixedHeight(0);
        const auto refresh = [this, model] { setVisible(model->value() < model->maximum()); };
        connect(model, &QScrollBar::valueChanged, this, refresh);
        connect(model, &QScrollBar::rangeChanged, this, refresh);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QLinearGradient gradient(0, 0, 0, height());
        gradient.setColorAt(0, SB::faded(SB::page, 0));
        gradient.setColorAt(1, SB::page);
        QPainter(this).fillRect(rect(), gradient);
    }
};

} // namespace

ScrollArea::ScrollArea(QWidget* parent)
    : QScrollArea(parent),
      bar_(new OverlayScrollBar(verticalScrollBar(), this)),
      fade_(new Fade(verticalScrollBar(), this)) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    viewport()->installEventFilter(this);
}

void ScrollArea::letKeysScroll() {
    FocusRing::setLook(this, {Measure::badgeRadius});
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this,
            [this](int, int end) { setFocusPolicy(end > 0 ? Qt::TabFocus : Qt::NoFocus); });
}

void ScrollArea::setFade(int pixels) {
    fade_->setFixedHeight(pixels);
    placeOverlays();
}

void ScrollArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    placeOverlays();
}

bool ScrollArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == viewport() && event->type() == QEvent::LayoutRequest)
        placeOverlays();
    return QScrollArea::eventFilter(watched, event);
}

void ScrollArea::placeOverlays() {
    bar_->place();
    fade_->setGeometry(0, height() - fade_->height(), width(), fade_->height());
    fade_->raise();
}

} // namespace velmora
