#include "ui/screens/settings/rule_line.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/tool_tip.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

namespace velmora {

RuleLine::RuleLine(const QString& rule, QWidget* parent) : QWidget(parent) {
    setFixedHeight(Measure::ruleLine);
    declareRole(this, QAccessible::StaticText);
    setAccessibleName(rule);
}

void RuleLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillDisc(painter, {Measure::ruleBullet / 2, height() / 2.0}, Measure::ruleBullet, SB::teal);
    drawText(painter, textBox(), accessibleName(), Type::body, SB::body, Qt::AlignVCenter);
}

void RuleLine::resizeEvent(QResizeEvent*) {
    setToolTipIfElided(*this, accessibleName(), textWidth(accessibleName(), Type::body) > textBox().width());
}

QRectF RuleLine::textBox() const {
    return QRectF(rect()).adjusted(Measure::ruleTextX, 0, 0, 0);
}

} // namespace velmora
