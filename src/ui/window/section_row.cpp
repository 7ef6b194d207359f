#include "ui/window/section_row.h"

#include "ui/blocks/click_on_enter.h"
#include "ui/blocks/focus_ring.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/tool_tip.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

namespace velmora {

SectionRow::SectionRow(Icon icon, const QString& title, QWidget* parent)
    : QAbstractButton(parent), icon_(icon) {
    setText(title);
    setAccessibleName(title);
    setCheckable(true);
    setAutoExclusive(true);
    setFixedHeight(Measure::sectionRow);
    setFocusPolicy(Qt::TabFocus);
    clickOnEnter(this);
    FocusRing::setRingStyle(this, {Measure::buttonRadius});
}

void SectionRow::setMark(std::optional<SectionMark> mark) {
    if (mark == mark_)
        return;
    mark_ = mark;
    update();
}

void SectionRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSurface(painter);
    constexpr double icon = Measure::sectionIcon;
    paintIcon(painter, {Measure::sectionPadding + icon / 2, height() / 2.0}, icon, icon_,
              isChecked() ? SB::teal : SB::muted);
    drawText(painter, titleBox(), text(), Type::rowTitle, isChecked() ? SB::ink : SB::muted,
             Qt::AlignLeft | Qt::AlignVCenter);
    if (mark_)
        paintMark(painter);
}

QRectF SectionRow::titleBox() const {
    const int right = mark_ ? 2 * Measure::sectionMarkInset : Measure::sectionPadding;
    return QRectF(rect()).adjusted(2 * Measure::sectionPadding + Measure::sectionIcon, 0, -right, 0);
}

void SectionRow::paintSurface(QPainter& painter) const {
    if (isChecked())
        fillRounded(painter, rect(), Measure::buttonRadius, SB::page, SB::rule2);
    else if (underMouse())
        fillRounded(painter, QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Measure::buttonRadius,
                    SB::faded(SB::rule2, 0.5));
}

void SectionRow::paintMark(QPainter& painter) const {
    const QPointF center(width() - Measure::sectionMarkInset, height() / 2.0);
    paintStatusDot(painter, center, {mark_->color, mark_->halo});
}

void SectionRow::enterEvent(QEnterEvent*) {
    setToolTipIfElided(*this, text(), textWidth(text(), Type::rowTitle) > titleBox().width());
    update();
}

void SectionRow::leaveEvent(QEvent*) {
    update();
}

} // namespace velmora
