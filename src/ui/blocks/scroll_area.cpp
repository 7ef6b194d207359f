#include "ui/blocks/scroll_area.h"

#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <algorithm>

namespace velmora {

namespace {

constexpr int shownFor = 900; // milliseconds after the last movement
constexpr int shortestThumb = 32;

/// The slim bar over the right edge.
class OverlayBar : public QWidget {
public:
    OverlayBar(QScrollBar* model, QWidget* parent) : QWidget(parent), model_(model) {
        rest_.setSingleShot(true);
        rest_.setInterval(shownFor);
        connect(&rest_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
        connect(model, &QScrollBar::valueChanged, this, [this] {
            rest_.start();
            update();
        });
        connect(model, &QScrollBar::rangeChanged, this, [this] { setVisible(model_->maximum() > 0); });
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        if (!rest_.isActive() && !underMouse() && !isDragged_)
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(SB::rule);
        painter.drawRoundedRect(thumb(), Measure::scrollBar / 2.0, Measure::scrollBar / 2.0);
    }
    void enterEvent(QEnterEvent*) override { update(); }
    void leaveEvent(QEvent*) override { update(); }
    void mousePressEvent(QMouseEvent* event) override {
        isDragged_ = true;
        if (!thumb().contains(QPointF(thumb().center().x(), event->position().y())))
            scrollTo(event->position().y() - thumb().height() / 2);
        grip_ = event->position().y() - thumb().top();
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        if (isDragged_)
            scrollTo(event->position().y() - grip_);
    }
    void mouseReleaseEvent(QMouseEvent*) override {
        isDragged_ = false;
        update();
    }

private:
    QRectF thumb() const {
        const double whole = model_->maximum() + model_->pageStep();
        const double length = std::max<double>(shortestThumb, height() * model_->pageStep() / whole);
        const double top = (height() - length) * model_->value() / std::max(model_->maximum(), 1);
        return {0, top, static_cast<double>(Measure::scrollBar), length};
    }
    void scrollTo(double top) {
        const double room = std::max(height() - thumb().height(), 1.0);
        model_->setValue(static_cast<int>(top / room * model_->maximum()));
    }

    QScrollBar* model_;
    QTimer rest_;
    double grip_ = 0;
    bool isDragged_ = false;
};

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
      bar_(new OverlayBar(verticalScrollBar(), this)),
      fade_(new Fade(verticalScrollBar(), this)) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    viewport()->installEventFilter(this);
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
    bar_->setGeometry(width() - Measure::scrollBar - Measure::scrollBarEdge, 0, Measure::scrollBar, height());
    bar_->raise();
    fade_->setGeometry(0, height() - fade_->height(), width(), fade_->height());
    fade_->raise();
}

} // namespace velmora
