#include "ui/blocks/toast.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <cmath>

namespace velmora {

namespace {

constexpr auto messageTime = std::chrono::seconds(10);
constexpr int padding = Measure::gap12;
constexpr double dot = Measure::statusDotInRow;
constexpr double messageLeft = padding + dot + Measure::gap8;

} // namespace

Toast::Toast(QWidget* window) : QWidget(window), hideTimer_(messageTime, UiTimer::Mode::singleShot) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    declareRole(this, QAccessible::AlertMessage);
    connect(&hideTimer_, &UiTimer::timeout, this, &QWidget::hide);
    hide();
}

void Toast::setMessage(const QString& message, Tone tone) {
    message_ = message;
    tone_ = tone;
    updateGeometry();
    show();
    raise();
    update();
    hideTimer_.start();
    announce(this, message);
}

QSize Toast::sizeHint() const {
    const int width =
        static_cast<int>(std::ceil(messageLeft + textWidth(message_, Type::link))) + 1 + padding;
    return {width, Measure::titleStrip - Measure::gap4};
}

void Toast::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::cardRadius, SB::navy, SB::faded(SB::dTitle, 0.2));
    const QPointF center(padding + dot / 2, height() / 2.0);
    fillDisc(painter, center, dot + 2, SB::dTitle);
    fillDisc(painter, center, dot, tone_ == Tone::failure ? SB::alert : SB::teal);
    drawText(painter, QRectF(rect()).adjusted(messageLeft, 0, -padding, 0), message_, Type::link, SB::dTitle,
             Qt::AlignVCenter);
}

} // namespace velmora
