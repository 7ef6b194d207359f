#include "ui/blocks/fold.h"

#include <QEvent>

#include <cmath>

namespace velmora {

Fold::Fold(QWidget* block, int gap, std::chrono::milliseconds duration, QWidget* parent)
    : QWidget(parent), block_(block), gap_(gap), share_(*this, duration, QEasingCurve::OutCubic) {
    block_->setParent(this);
    connect(&share_, &Transition::changed, this, &Fold::applyHeight);
    connect(&share_, &Transition::finished, this, [this] { setVisible(open_); });
    setFixedHeight(0);
    hide();
}

void Fold::setOpen(bool open) {
    if (open == open_)
        return;
    open_ = open;
    const QWidget* focus = focusWidget();
    if (!open && focus && focus->hasFocus() && parentWidget())
        parentWidget()->setFocus(Qt::OtherFocusReason); // otherwise hiding moves it to another control
    block_->setVisible(true);
    setVisible(true);
    share_.moveTo(open ? 1 : 0);
}

int Fold::fullHeight() const {
    const int height =
        block_->hasHeightForWidth() ? block_->heightForWidth(width()) : block_->sizeHint().height();
    return height + gap_;
}

void Fold::applyHeight() {
    const int full = fullHeight();
    const int shown = static_cast<int>(std::lround(full * share_.value()));
    block_->setGeometry(0, shown - full, width(), full - gap_);
    setFixedHeight(shown);
}

void Fold::resizeEvent(QResizeEvent*) {
    applyHeight();
}

bool Fold::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest)
        applyHeight();
    return QWidget::event(event);
}

} // namespace velmora
