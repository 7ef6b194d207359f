#include "ui/blocks/toast.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/status_dot.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr auto messageTime = std::chrono::seconds(10);
constexpr int padding = Measure::gap12;
constexpr double dot = Measure::statusDotInRow;
constexpr double textLeft = padding + dot + Measure::gap8;

} // namespace

Toast::Toast(QWidget* window) : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    declareRole(this, QAccessible::AlertMessage);
    time_.setSingleShot(true);
    time_.setInterval(messageTime);
    connect(&time_, &QTimer::timeout, this, &QWidget::hide);
    window->installEventFilter(this);
    hide();
}

void Toast::setMessage(const QString& message) {
    message_ = message;
    setAccessibleName(message);
    place();
    show();
    raise();
    update();
    time_.start();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void Toast::place() {
    const int window = parentWidget()->width();
    const int wanted = static_cast<int>(std::ceil(textLeft + textWidth(message_, Type::link))) + 1 + padding;
    const int width = std::min(wanted, window - 2 * Measure::sidebar);
    setGeometry((window - width) / 2, Measure::gap4, width, Measure::titleStrip - Measure::gap4);
}

bool Toast::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && isVisible())
        place();
    return QWidget::eventFilter(watched, event);
}

void Toast::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(SB::faded(SB::dTitle, 0.2));
    painter.setBrush(SB::navy);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Measure::cardRadius,
                            Measure::cardRadius);
    const QPointF center(padding + dot / 2, height() / 2.0);
    paintDisc(painter, center, dot + 2, SB::dTitle);
    paintDisc(painter, center, dot, SB::alert);
    drawText(painter, QRectF(rect()).adjusted(textLeft, 0, -padding, 0), message_, Type::link, SB::dTitle,
             Qt::AlignVCenter);
}

} // namespace velmora
