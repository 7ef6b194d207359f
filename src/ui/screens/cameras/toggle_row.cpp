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
    : QWidget(parent),
      detail_(detail),
      where_(where),
      switch_(new Switch(title, this)),
      detailText_(new Text({}, Type::label2, SB::muted, this)) {
    setFixedHeight(Measure::toggleRow + 1);
    auto* titleText = new Text(title, Type::rowTitle, SB::ink, this);
    titleText->setMaximumLines(1);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch(1);
    texts->addWidget(titleText);
    texts->addWidget(detailText_);
    texts->addStretch(1);
    auto* row = new QHBoxLayout;
    row->addLayout(texts, 1);
    row->addWidget(switch_, 0, Qt::AlignVCenter);
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addLayout(row, 1);
    column->addWidget(new Hairline(this, Hairline::Tone::between));
    connect(switch_, &Switch::turned, this, &ToggleRow::showDetail);
    connect(switch_, &Switch::turned, this, &ToggleRow::turned);
    showDetail();
}

void ToggleRow::setChecked(bool on) {
    if (on == switch_->isChecked())
        return;
    switch_->setChecked(on);
    showDetail();
}

void ToggleRow::setOffline(bool offline) {
    if (offline == offline_)
        return;
    offline_ = offline;
    showDetail();
}

void ToggleRow::showDetail() {
    detailText_->setText(offline_ ? tr("Will not alert while offline") : detail_);
    detailText_->setStyle(offline_ ? Type::label2Medium : Type::label2);
    detailText_->setColor(offline_ && switch_->isChecked() ? SB::alert : SB::muted);
    switch_->setAccessibleDescription(where_ + ", " + detailText_->text());
}

void ToggleRow::mousePressEvent(QMouseEvent*) {}

void ToggleRow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        switch_->click();
}

} // namespace velmora
