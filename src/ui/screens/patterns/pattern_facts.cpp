#include "ui/screens/patterns/pattern_facts.h"

#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/metric.h"
#include "ui/charts/pattern_figures.h"
#include "ui/look/measures.h"

#include <QBoxLayout>

namespace velmora {

PatternFacts::PatternFacts(QWidget* parent)
    : QWidget(parent), layout_(new QBoxLayout(QBoxLayout::TopToBottom, this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    for (const PatternFigure& figure : patternFigures(VisitPatterns(Site())))
        metrics_.push_back(new Metric(figure.name, Metric::Size::regular, false, this));
    for (Hairline*& line : lines_)
        line = new Hairline(this);
    setInColumn(true);
}

void PatternFacts::setInColumn(bool column) {
    while (QLayoutItem* item = layout_->takeAt(0))
        delete item;
    layout_->setDirection(column ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    layout_->setSpacing(column ? 0 : Measure::gap24);
    std::size_t line = 0;
    for (Metric* metric : metrics_) {
        if (column && metric != metrics_.front()) {
            layout_->addSpacing(Measure::gap28);
            layout_->addWidget(lines_[line++]);
            layout_->addSpacing(Measure::gap20);
        }
        layout_->addWidget(metric, column ? 0 : 1, Qt::AlignTop);
    }
    if (column)
        layout_->addStretch(1);
    for (Hairline* one : lines_)
        one->setVisible(column);
}

void PatternFacts::setPatterns(const VisitPatterns& patterns) {
    const auto figures = patternFigures(patterns);
    for (std::size_t i = 0; i < figures.size(); ++i) {
        metrics_[i]->setValue(figures[i].value, figures[i].unit);
        metrics_[i]->setReason(figures[i].reason);
    }
}

} // namespace velmora
