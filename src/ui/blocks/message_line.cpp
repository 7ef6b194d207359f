#include "ui/blocks/message_line.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/status_dot.h"
#include "ui/look/text.h"

#include <QPainter>
#include <QRegularExpression>

namespace velmora {

namespace {

constexpr double textLeft = Measure::statusDotInRow + Measure::gap8;

QString withoutNumbers(QString text) {
    static const QRegularExpression numbers(QStringLiteral("\\d+"));
    return text.remove(numbers);
}

} // namespace

MessageLine::MessageLine(const QColor& color, QWidget* parent) : QWidget(parent), color_(color) {
    declareRole(this, QAccessible::AlertMessage);
}

void MessageLine::setText(const QString& text) {
    if (text == text_)
        return;
    const bool isNew = withoutNumbers(text) != withoutNumbers(text_);
    text_ = text;
    if (isNew && !text.isEmpty())
        announce(this, text);
    else
        setAccessibleName(text);
    update();
}

void MessageLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintStatusDot(painter, {Measure::statusDotInRow / 2, height() / 2.0},
                   {.color = color_, .diameter = Measure::statusDotInRow});
    drawText(painter, QRectF(textLeft, 0, width() - textLeft, height()), text_, Type::bodyStrong, color_,
             Qt::AlignVCenter);
}

} // namespace velmora
