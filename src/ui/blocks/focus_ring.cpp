#include "ui/blocks/focus_ring.h"

#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFocusEvent>
#include <QPainter>

namespace velmora {

namespace {

constexpr const char* radiusProperty = "velmoraFocusRadius";
constexpr const char* darkProperty = "velmoraFocusDark";
constexpr int outset = static_cast<int>(Measure::focusGap + Measure::focusRing);

bool isKeyboard(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

bool moves(QEvent::Type type) {
    return type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show || type == QEvent::Hide;
}

} // namespace

void FocusRing::setLook(QWidget* widget, const Look& look) {
    widget->setProperty(radiusProperty, look.radius);
    widget->setProperty(darkProperty, look.dark);
}

FocusRing::FocusRing(QWidget* window) : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    qApp->installEventFilter(this);
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget == this)
        return false;
    if (event->type() == QEvent::FocusIn && widget->window() == window()) {
        if (isKeyboard(static_cast<QFocusEvent*>(event)->reason()) &&
            widget->property(radiusProperty).isValid())
            follow(widget);
        else
            unfollow();
    } else if (event->type() == QEvent::FocusOut && widget == target_) {
        unfollow();
    } else if (target_ && moves(event->type()) && watched_.contains(widget)) {
        place();
    }
    return false;
}

void FocusRing::follow(QWidget* widget) {
    target_ = widget;
    watched_.clear();
    for (QWidget* one = widget; one && one != window(); one = one->parentWidget())
        watched_.append(one);
    place();
}

void FocusRing::unfollow() {
    target_ = nullptr;
    watched_.clear();
    hide();
}

void FocusRing::place() {
    if (!target_ || !target_->isVisible()) {
        hide();
        return;
    }
    const QRect around(target_->mapTo(window(), QPoint()), target_->size());
    clip_ = window()->rect();
    for (QWidget* one = target_->parentWidget(); one && one != window(); one = one->parentWidget())
        if (auto* area = qobject_cast<QAbstractScrollArea*>(one->parentWidget());
            area && area->viewport() == one)
            clip_ &= QRect(one->mapTo(window(), QPoint()), one->size());
    setGeometry(around.adjusted(-outset, -outset, outset, outset));
    show();
    raise();
    update();
}

void FocusRing::paintEvent(QPaintEvent*) {
    if (!target_)
        return;
    QPainter painter(this);
    painter.setClipRect(clip_.translated(-pos()));
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color = target_->property(darkProperty).toBool() ? SB::softBlue : SB::blue;
    painter.setPen(QPen(color, Measure::focusRing));
    const double half = Measure::focusRing / 2;
    const double radius = target_->property(radiusProperty).toDouble() + Measure::focusGap + half;
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), radius, radius);
}

} // namespace velmora
