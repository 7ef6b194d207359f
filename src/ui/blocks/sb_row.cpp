#include "ui/blocks/sb_row.h"

#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QVBoxLayout>

namespace velmora {

SBRow::SBRow(const QString& label, bool dark, QWidget* content, bool first, int lead, QWidget* parent)
    : QWidget(parent) {
    auto* name = new Text(label, Type::groupHeading, dark ? SB::dTitle : SB::ink, this);
    name->setFixedWidth(Measure::formLabel);
    auto* labelColumn = new QVBoxLayout;
    labelColumn->addSpacing(lead);
    labelColumn->addWidget(name);
    labelColumn->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, Measure::gap20, 0, Measure::gap20);
    row->setSpacing(Measure::gap24);
    row->addLayout(labelColumn);
    row->addWidget(content, 1);
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addWidget(new Hairline(this, dark    ? Hairline::Tone::dark
                                         : first ? Hairline::Tone::first
                                                 : Hairline::Tone::between));
    column->addLayout(row);
}

} // namespace velmora
