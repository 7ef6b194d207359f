#include "ui/blocks/overlay_card.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/reading_order.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr double initialScale = 0.98; // of the card when it starts to open

/// The card's background with rounded corners.
class Surface : public QWidget {
public:
    explicit Surface(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::NoFocus); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        fillRounded(painter, rect(), Measure::overlayRadius, SB::page);
    }
};

} // namespace

OverlayCard::OverlayCard(int cardWidth, QWidget* window)
    : QWidget(window),
      card_(new Surface(this)),
      column_(bareLayout<QVBoxLayout>(card_)),
      appearance_(*this, Motion::cardIn, QEasingCurve::OutCubic) {
    declareRole(this, QAccessible::Dialog);
    setFocusPolicy(Qt::StrongFocus);
    card_->setFixedWidth(cardWidth);
    QSizePolicy policy = card_->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // for the shadow and the picture during a transition
    card_->setSizePolicy(policy);
    auto* middle = bareLayout<QGridLayout>(this);
    middle->setContentsMargins(0, Measure::titleStrip, 0, 0);
    middle->addWidget(card_, 0, 0, Qt::AlignCenter);
    connect(&appearance_, &Transition::changed, this, qOverload<>(&QWidget::update));
    connect(&appearance_, &Transition::finished, this, &OverlayCard::finishTransition);
    hide();
}

void OverlayCard::setCorner(QPoint corner) {
    layout()->setAlignment(card_, Qt::AlignLeft | Qt::AlignTop);
    layout()->setContentsMargins(corner.x(), corner.y(), 0, 0);
}

void OverlayCard::setBright(const QRect& area, double radius) {
    bright_ = area;
    brightRadius_ = radius;
    update();
}

bool OverlayCard::covers(const QWidget& widget) const {
    return open_ && !isAncestorOf(&widget) &&
           !bright_.contains(QRect(widget.mapTo(window(), QPoint()), widget.size()));
}

QPainterPath OverlayCard::veil() const {
    QPainterPath area;
    area.addRect(rect());
    area.addRoundedRect(bright_, brightRadius_, brightRadius_);
    return area;
}

void OverlayCard::open() {
    if (open_)
        return;
    open_ = true;
    focusBefore_ = QApplication::focusWidget();
    picture_ = card_->grab();
    card_->hide();
    raise();
    show();
    setFocus(Qt::OtherFocusReason);
    appearance_.setDuration(Motion::cardIn);
    appearance_.move(0, 1);
    emit openChanged();
}

void OverlayCard::close() {
    if (!open_)
        return;
    open_ = false;
    picture_ = card_->grab();
    returnFocus();
    card_->hide();
    appearance_.setDuration(Motion::cardOut);
    appearance_.move(1, 0);
    emit openChanged();
}

/// Call before the card is hidden: Qt moves the focus of a hidden widget to another control, which the next
/// key press would trigger.
void OverlayCard::returnFocus() {
    QWidget* focus = window()->focusWidget(); // also while the window is not active
    if (!focus || (focus != this && !isAncestorOf(focus)))
        return;
    if (focusBefore_ && focusBefore_->isVisible() && focusBefore_->isEnabled())
        focusBefore_->setFocus(Qt::OtherFocusReason);
    else
        focus->clearFocus();
}

void OverlayCard::finishTransition() {
    picture_ = {};
    if (!open_) {
        hide();
        return;
    }
    card_->show();
    focusFirst();
}

void OverlayCard::focusFirst() {}

void OverlayCard::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier)
        emit dismissed();
}

bool OverlayCard::focusNextPrevChild(bool next) {
    if (!open_)
        return QWidget::focusNextPrevChild(next);
    focusInReadingOrder(*card_, next);
    return true;
}

/// Veil and shadow take longer than most parts of the card that are repainted over them.
void OverlayCard::paintEvent(QPaintEvent* event) {
    if (card_->isVisible() && liesInside(event->rect(), card_->geometry(), Measure::overlayRadius))
        return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const bool moving = appearance_.isRunning();
    const double shown = appearance_.value();
    painter.fillPath(veil(), SB::faded(SB::navy, Measure::veil * shown));
    if (!bright_.isEmpty())
        painter.setClipPath(veil()); // for the shadow
    painter.setOpacity(shown);
    if (moving) {
        const QPointF center = QRectF(card_->geometry()).center();
        const double scale = initialScale + (1 - initialScale) * shown;
        painter.translate(center + QPointF(0, (1 - shown) * Measure::overlayRise));
        painter.scale(scale, scale);
        painter.translate(-center);
    }
    paintShadow(painter, card_->geometry(), Measure::overlayRadius, {24, 64, 0.38});
    paintShadow(painter, card_->geometry(), Measure::overlayRadius, {2, 8, 0.2});
    if (moving)
        painter.drawPixmap(card_->pos(), picture_);
}

} // namespace velmora
