#include "ui/screens/note_line.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/status_dot.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QPainter>

namespace velmora {

namespace {

constexpr auto messageTime = std::chrono::seconds(10);

} // namespace

NoteLine::NoteLine(const QString& note, const TextStyle& style, const Colors& colors, QWidget* parent)
    : QWidget(parent), note_(note), style_(style), colors_(colors), height_(static_cast<int>(style.line)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    declareRole(this, QAccessible::StaticText);
    messageTimer_.setSingleShot(true);
    connect(&messageTimer_, &QTimer::timeout, this, &NoteLine::clearMessage);
    clearMessage();
}

void NoteLine::setMessage(const QString& message) {
    message_ = message;
    setAccessibleName(message);
    setToolTip(message);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    messageTimer_.start(messageTime);
    update();
}

void NoteLine::clearMessage() {
    messageTimer_.stop();
    message_.clear();
    setAccessibleName(note_);
    setToolTip({});
    update();
}

void NoteLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (message_.isEmpty()) {
        drawText(painter, rect(), note_, style_, colors_.note, Qt::AlignVCenter);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    const double dot = Measure::statusDotInRow;
    paintDisc(painter, {dot / 2, height() / 2.0}, dot, SB::alert);
    drawText(painter, QRectF(rect()).adjusted(dot + Measure::gap8, 0, 0, 0), message_, Type::bodyStrong,
             colors_.message, Qt::AlignVCenter);
}

} // namespace velmora
