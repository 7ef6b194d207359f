#include "ui/screens/patterns/patterns_summary.h"

#include "language/language.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/scroll_area.h"
#include "ui/blocks/text.h"
#include "ui/charts/pattern_figures.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QAbstractButton>
#include <QVBoxLayout>

namespace velmora {

PatternsSummary::PatternsSummary(QWidget* parent) : QWidget(parent) {
    auto* area = new ScrollArea(this);
    auto* content = new QWidget(area);
    cameras_ = new CountBars(CountBars::Interaction::clickable, content);
    outcomes_ = new CountBars(CountBars::Interaction::clickable, content);
    flown_ = new Label2({}, false, content);
    auto* heading = new QHBoxLayout;
    heading->addWidget(new Text(tr("How they ended"), Type::groupHeading, SB::ink, content), 1);
    heading->addWidget(flown_, 0, Qt::AlignVCenter);
    auto* column = new QVBoxLayout(content);
    constexpr int belowLine = Measure::gap16 - 1;
    column->setContentsMargins(Measure::recordInset, belowLine, Measure::recordInset, Measure::gap24);
    column->setSpacing(0);
    column->addWidget(new Text(tr("By camera"), Type::groupHeading, SB::ink, content));
    column->addSpacing(Measure::gap8);
    column->addWidget(cameras_);
    column->addSpacing(Measure::gap16);
    column->addWidget(new Hairline(content));
    column->addSpacing(belowLine);
    column->addLayout(heading);
    column->addSpacing(Measure::gap8);
    column->addWidget(outcomes_);
    column->addStretch(1);
    area->setWidget(content);
    area->setFade(Measure::logFade);
    bareLayout<QVBoxLayout>(this)->addWidget(area);
    connect(cameras_, &CountBars::chosen, this, &PatternsSummary::cameraChosen);
    connect(outcomes_, &CountBars::chosen, this,
            [this](const QString& id) { emit outcomeChosen(static_cast<Outcome>(id.toInt())); });
}

void PatternsSummary::setPatterns(const VisitPatterns& patterns) {
    cameras_->setRows(cameraRows(patterns));
    outcomes_->setRows(outcomeRows(patterns));
    flown_->setText(
        tr("%1 of %2 flown")
            .arg(displayLocale().toString(patterns.flown()), displayLocale().toString(patterns.visits())));
}

void PatternsSummary::focusFirst(Qt::FocusReason reason) {
    for (auto* row : cameras_->findChildren<QAbstractButton*>())
        if (row->isVisible())
            return row->setFocus(reason);
}

} // namespace velmora
