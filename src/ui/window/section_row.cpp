#include "ui/window/section_row.h"

#include "ui/blocks/enter_presses.h"
#include "ui/blocks/focus_ring.h"
#include "ui/blocks/status_dot.h"
#include "ui/look/measures.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"

#include <QPainter>

namespace velmora {

SectionRow::SectionRow(Icon icon, const QString& title, QWidget* parent)
    : QAbstractButton(parent), icon_(icon) {
    setText(title);
    setAccessibleName(title);
    setCheckable(true);
    setAutoExclusive(true);
    setFixedHeight(Measure::sectionRow);
    setFocusPolicy(Qt::TabFocus);
    letEnterPress(this);
    FocusRing::setLook(this, {Measure::buttonRadius});
}

void SectionRow::setMark(std::optional<SectionMark> mark) {
    if (mark == mark_)
        return;
    mark_ = mark;
    update();
}

void SectionRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintSurface(painter);
    QRectF icon(Measure::sectionPadding, 0, Measure::sectionIcon, Measure::sectionIcon);
    icon.moveTop((height() - icon.height()) / 2);
    paintIcon(painter, icon, icon_, isChecked() ? SB::teal : SB::muted);
    const QRectF title = QRectF(rect()).adjusted(icon.right() + Measure::sectionPadding, 0, 0, 0);
    drawText(painter, title, text(), Type::rowTitle, isChecked() ? SB::ink : SB::muted,
             Qt::AlignLeft | Qt::AlignVCenter);
    if (mark_)
        paintMark(painter);
}

void SectionRow::paintSurface(QPainter& painter) const {
    const QRectF surface = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(Qt::NoPen);
    if (isChecked()) {
        painter.setPen(SB::rule2);
        painter.setBrush(SB::page);
    } else if (underMouse()) {
        painter.setBrush(SB::faded(SB::rule2, 0.5));
    } else {
        return;
    }
    painter.drawRoundedRect(surface, Measure::buttonRadius, Measure::buttonRadius);
}

void SectionRow::paintMark(QPainter& painter) const {
    const QPointF center(width() - Measure::sectionMarkInset, height() / 2.0);
    paintStatusDot(painter, center, {mark_->color, mark_->halo});
}

void SectionRow::enterEvent(QEnterEvent*) {
    update();
}

void SectionRow::leaveEvent(QEvent*) {
    update();
}

} // namespace velmora
