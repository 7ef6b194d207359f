#include "ui/blocks/overlay_scroll_bar.h"

#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>

namespace velmora {

namespace {

constexpr std::chrono::milliseconds visibleTime{900}; // after the last movement
constexpr double minimumThumb = 32;

} // namespace

OverlayScrollBar::OverlayScrollBar(QScrollBar* model, QWidget* parent)
    : QWidget(parent), model_(model), visibleTimer_(visibleTime, UiTimer::Mode::singleShot) {
    setFixedWidth(Measure::scrollBar);
    connect(&visibleTimer_, &UiTimer::timeout, this, qOverload<>(&QWidget::update));
    connect(model, &QScrollBar::valueChanged, this, [this] {
        visibleTimer_.start();
        update();
    });
    connect(model, &QScrollBar::rangeChanged, this, [this] { setVisible(model_->maximum() > 0); });
    hide();
}

QRectF OverlayScrollBar::thumb() const {
    const double total = model_->maximum() + model_->pageStep();
    const double length = std::max(minimumThumb, height() * model_->pageStep() / total);
    const double top = (height() - length) * model_->value() / std::max(model_->maximum(), 1);
    return {0, top, static_cast<double>(Measure::scrollBar), length};
}

void OverlayScrollBar::scrollTo(double top) {
    const double room = std::max(height() - thumb().height(), 1.0);
    model_->setValue(static_cast<int>(top / room * model_->maximum()));
}

void OverlayScrollBar::paintEvent(QPaintEvent*) {
    if (!visibleTimer_.isActive() && !underMouse() && !dragging_)
        return;
    QPainter painter(this);
    fillRounded(painter, thumb(), Measure::scrollBar / 2.0, SB::edge);
}

void OverlayScrollBar::enterEvent(QEnterEvent*) {
    update();
}

void OverlayScrollBar::leaveEvent(QEvent*) {
    update();
}

void OverlayScrollBar::mousePressEvent(QMouseEvent* event) {
    dragging_ = true;
    const double y = event->position().y();
    if (y < thumb().top() || y > thumb().bottom())
        scrollTo(y - thumb().height() / 2);
    dragOffset_ = y - thumb().top();
}

void OverlayScrollBar::mouseMoveEvent(QMouseEvent* event) {
    if (dragging_)
        scrollTo(event->position().y() - dragOffset_);
}

void OverlayScrollBar::mouseReleaseEvent(QMouseEvent*) {
    dragging_ = false;
    update();
}

} // namespace velmora
