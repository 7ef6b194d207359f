#include "ui/blocks/focus_ring.h"

#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QScrollArea>

namespace velmora {

namespace {

constexpr const char* styleProperty = "velmoraFocusStyle";
constexpr double haloOpacity = 0.22;
constexpr int outset = static_cast<int>(Measure::focusGap + Measure::focusRing);

bool isKeyboard(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

bool moves(QEvent::Type type) {
    return type == QEvent::Move || type == QEvent::Resize || type == QEvent::Show || type == QEvent::Hide;
}

/// Every event of the program passes the filter, so most are sorted out by their type first.
bool concernsFocus(QEvent::Type type) {
    return type == QEvent::KeyPress || type == QEvent::FocusIn || type == QEvent::FocusOut ||
           type == QEvent::DynamicPropertyChange || moves(type);
}

} // namespace

void FocusRing::setRingStyle(QWidget* widget, const RingStyle& style) {
    widget->setProperty(styleProperty, QVariant::fromValue(style));
}

std::optional<FocusRing::RingStyle> FocusRing::ringStyleOf(const QWidget* widget) {
    const QVariant style = widget->property(styleProperty);
    return style.isValid() ? std::optional(style.value<RingStyle>()) : std::nullopt;
}

FocusRing::FocusRing(QWidget* window) : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    qApp->installEventFilter(this);
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = concernsFocus(event->type()) ? qobject_cast<QWidget*>(watched) : nullptr;
    if (!widget || widget == this)
        return false;
    if (event->type() == QEvent::KeyPress)
        focusHidden_ = false; // the owner's key moves the focus from here on
    if (event->type() == QEvent::FocusIn && widget->window() == window()) {
        const auto style = ringStyleOf(widget);
        if (style &&
            (style->field || (isKeyboard(static_cast<QFocusEvent*>(event)->reason()) && !focusHidden_)))
            attach(widget, *style);
        else
            detach();
    } else if (event->type() == QEvent::FocusOut) {
        focusHidden_ = !widget->isVisible();
        if (watched_.contains(widget))
            detach();
    } else if (target_ == widget && event->type() == QEvent::DynamicPropertyChange) {
        style_ = ringStyleOf(widget).value_or(style_);
        updatePosition();
    } else if (target_ && moves(event->type()) && watched_.contains(widget)) {
        updatePosition();
    }
    return false;
}

void FocusRing::attach(QWidget* widget, const RingStyle& style) {
    target_ = style.roundParent ? widget->parentWidget() : widget;
    style_ = style;
    for (QWidget* one = widget->parentWidget(); one; one = one->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(one))
            area->ensureWidgetVisible(target_, 0, Measure::gap28); // keep clear of the fade at the bottom
    watched_.clear();
    for (QWidget* one = widget; one && one != window(); one = one->parentWidget())
        watched_.append(one);
    updatePosition();
}

void FocusRing::detach() {
    target_ = nullptr;
    watched_.clear();
    hide();
}

void FocusRing::updatePosition() {
    if (!target_ || !target_->isVisible()) {
        hide();
        return;
    }
    const QRect part = style_.part.isNull() ? target_->rect() : style_.part;
    const QRect around(target_->mapTo(window(), part.topLeft()), part.size());
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
    const double gap = style_.field ? outset - Measure::fieldHalo : 0;
    const double width = style_.field ? Measure::fieldHalo : Measure::focusRing;
    const QColor color = style_.field  ? SB::faded(SB::blue, haloOpacity)
                         : style_.dark ? SB::softBlue
                                       : SB::blue;
    const double inset = gap + (style_.edged ? width : width / 2);
    const double radius = style_.radius + outset - inset;
    const QRectF ring = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    if (style_.edged) {
        painter.setPen(QPen(SB::navy, 2 * width));
        painter.drawRoundedRect(ring, radius, radius);
    }
    painter.setPen(QPen(color, width));
    painter.drawRoundedRect(ring, radius, radius);
}

} // namespace velmora
