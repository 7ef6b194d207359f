#include "ui/blocks/fold.h"

#include "ui/look/motion.h"

#include <QEvent>

#include <cmath>

namespace velmora {

Fold::Fold(QWidget* block, int gap, int duration, QWidget* parent)
    : QWidget(parent), block_(block), gap_(gap) {
    block_->setParent(this);
    share_.setStartValue(0.0);
    share_.setEndValue(0.0);
    share_.setDuration(duration);
    share_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&share_, &QVariantAnimation::valueChanged, this, &Fold::follow);
    connect(&share_, &QVariantAnimation::finished, this, [this] { setVisible(open_); });
    setFixedHeight(0);
    hide();
}

void Fold::setOpen(bool open) {
    if (open == open_)
        return;
    open_ = open;
    const double to = open ? 1 : 0;
    const double from = share_.currentValue().toDouble();
    const bool moves = parentWidget()->isVisible() && !Motion::reduced();
    share_.stop();
    share_.setStartValue(moves ? from : to);
    share_.setEndValue(to);
    block_->setVisible(true);
    setVisible(true);
    if (moves) {
        share_.start();
        return;
    }
    share_.setCurrentTime(share_.duration());
    follow();
    setVisible(open);
}

int Fold::fullHeight() const {
    const int height =
        block_->hasHeightForWidth() ? block_->heightForWidth(width()) : block_->sizeHint().height();
    return height + gap_;
}

void Fold::follow() {
    const int full = fullHeight();
    const int shown = static_cast<int>(std::lround(full * share_.currentValue().toDouble()));
    block_->setGeometry(0, shown - full, width(), full - gap_);
    setFixedHeight(shown);
}

void Fold::resizeEvent(QResizeEvent*) {
    follow();
}

bool Fold::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        follow();
    return QWidget::event(event);
}

} // namespace velmora
