#include "ui/screens/cameras/toggle_row.h"

#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/switch.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QMouseEvent>
#include <QVBoxLayout>

namespace velmora {

ToggleRow::ToggleRow(const QString& title, const QString& detail, const QString& where, QWidget* parent)
    : QWidget(parent), switch_(new Switch(title, this)) {
    setFixedHeight(Measure::toggleRow + 1);
    switch_->setAccessibleDescription(where + ", " + detail);
    auto* titleText = new Text(title, Type::rowTitle, SB::ink, this);
    titleText->setMaximumLines(1);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch(1);
    texts->addWidget(titleText);
    texts->addWidget(new Label2(detail, false, this));
    texts->addStretch(1);
    auto* row = new QHBoxLayout;
    row->addLayout(texts, 1);
    row->addWidget(switch_, 0, Qt::AlignVCenter);
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addLayout(row, 1);
    column->addWidget(new Hairline(this, Hairline::Tone::between));
    connect(switch_, &Switch::turned, this, &ToggleRow::turned);
}

void ToggleRow::setChecked(bool on) {
    switch_->setChecked(on);
}

void ToggleRow::mousePressEvent(QMouseEvent*) {}

void ToggleRow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        switch_->click();
}

} // namespace velmora
