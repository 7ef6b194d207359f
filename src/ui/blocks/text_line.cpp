#include "ui/blocks/text_line.h"

#include "ui/blocks/accessibility.h"
#include "ui/blocks/tool_tip.h"

#include <cmath>

namespace velmora {

TextLine::TextLine(double height, QWidget* parent) : QWidget(parent) {
    declareRole(this, QAccessible::StaticText);
    setFixedHeight(static_cast<int>(height));
}

void TextLine::setRuns(const std::vector<TextRun>& runs) {
    if (runs == runs_)
        return;
    runs_ = runs;
    setAccessibleName(textOf(runs_));
    updateToolTip();
    updateGeometry();
    update();
}

QSize TextLine::sizeHint() const {
    return {static_cast<int>(std::ceil(textWidth(runs_))), height()};
}

void TextLine::updateToolTip() {
    setToolTipIfElided(*this, textOf(runs_), sizeHint().width() > width());
}

void TextLine::resizeEvent(QResizeEvent*) {
    updateToolTip();
}

void TextLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawRuns(painter, rect(), runs_);
}

} // namespace velmora
