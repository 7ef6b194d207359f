#include "ui/screens/patterns/patterns_pane.h"

#include "language/language.h"
#include "language/local_date_time.h"
#include "ui/blocks/headline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/link_button.h"
#include "ui/blocks/scroll_area.h"
#include "ui/blocks/text.h"
#include "ui/charts/heat_map.h"
#include "ui/charts/visit_matrix.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/screens/patterns/pattern_facts.h"

#include <QApplication>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

constexpr int factsWidth = 124, mapLeastHeight = 352;
constexpr int aboveMatrix = Measure::gap20 + static_cast<int>(Type::groupHeading.line) + Measure::gap8;
constexpr int besideLeast = 632; // narrower content has the facts below the map

} // namespace

PatternsPane::PatternsPane(QWidget* parent)
    : QWidget(parent),
      figures_(LiveState::initial().site),
      area_(new ScrollArea(this)),
      content_(new QWidget(area_)),
      eyebrow_(new Eyebrow({}, false, content_)),
      headline_(new Headline({}, Type::recordTitle, false, content_)),
      tooFew_(new Text(tr("Patterns appear after three visits."), Type::lede, SB::body, content_)),
      facts_(new PatternFacts(content_)) {
    content_->setMaximumWidth(Measure::pageWidthWide - (Measure::historyPane - Measure::historyLeft) +
                              Measure::detailRight);
    upper_ = new QHBoxLayout;
    mapPart_ = buildMap();
    times_ = buildTimes();
    upper_->addWidget(mapPart_, 0, Qt::AlignTop);
    upper_->addWidget(facts_, 1, Qt::AlignTop);
    auto* column = new QVBoxLayout(content_);
    column->setContentsMargins(Measure::detailLeft, Measure::pageMargins.top(), Measure::detailRight,
                               Measure::pageMargins.bottom());
    column->setSpacing(0);
    column->addWidget(eyebrow_);
    column->addSpacing(Measure::gap4);
    column->addWidget(headline_);
    column->addSpacing(Measure::gap16);
    column->addWidget(tooFew_);
    column->addLayout(upper_);
    column->addWidget(times_);
    column->addStretch(1);
    area_->setWidget(content_);
    area_->setFade(Measure::logFade);
    bareLayout<QVBoxLayout>(this)->addWidget(area_);
    connectCharts();
}

QWidget* PatternsPane::buildMap() {
    auto* part = new QWidget(content_);
    map_ = new HeatMap(part);
    key_ = new HeatKey(part);
    auto* column = bareLayout<QVBoxLayout>(part, Measure::gap12);
    column->addWidget(map_);
    column->addWidget(key_);
    return part;
}

QWidget* PatternsPane::buildTimes() {
    auto* part = new QWidget(content_);
    group_ = new LinkButton({}, part, Type::label2Medium, SB::purple);
    matrix_ = new VisitMatrix(VisitMatrix::Form::full, part);
    QSizePolicy growing = matrix_->sizePolicy();
    growing.setVerticalPolicy(QSizePolicy::Preferred);
    matrix_->setSizePolicy(growing);
    auto* heading = new QHBoxLayout;
    heading->addWidget(new Text(tr("When they came"), Type::groupHeading, SB::ink, part), 1);
    heading->addWidget(group_, 0, Qt::AlignVCenter);
    auto* column = bareLayout<QVBoxLayout>(part, Measure::gap8);
    column->setContentsMargins(0, Measure::gap20, 0, 0);
    column->addLayout(heading);
    column->addWidget(matrix_);
    return part;
}

void PatternsPane::connectCharts() {
    connect(map_, &HeatMap::placeChosen, this, &PatternsPane::placeChosen);
    connect(matrix_, &VisitMatrix::chosen, this,
            [this](int weekday, int hour) { emit hoursChosen(weekday, hour, hour + 1); });
    connect(group_, &QAbstractButton::clicked, this, [this] {
        if (const auto group = patterns().group())
            emit hoursChosen(group->weekday, firstHourOf(group->part), endHourOf(group->part));
    });
}

void PatternsPane::setVisits(const std::vector<HistoryEntry>& visits, const Period& period,
                             const LiveState& state, const Settings& settings) {
    map_->setGrounds(state, settings);
    if (figures_.follow(visits, state.site))
        showFigures();
    showHeading(period);
    arrange();
}

void PatternsPane::showFigures() {
    const bool enough = patterns().visits() >= VisitPatterns::fewest;
    const QString group = groupWords(patterns());
    const bool focusGoes =
        enough ? group.isEmpty() && group_->hasFocus() : isAncestorOf(QApplication::focusWidget());
    if (focusGoes)
        setFocus(Qt::OtherFocusReason); // otherwise hiding a part moves the focus to another control
    mapPart_->setVisible(enough);
    times_->setVisible(enough);
    tooFew_->setVisible(!enough);
    facts_->setVisible(patterns().visits() > 0);
    facts_->setPatterns(patterns());
    matrix_->setTimes(VisitTimes::of(patterns()));
    group_->setWords(group);
    group_->setVisible(!group.isEmpty());
    if (!enough)
        return;
    WalkHeat heat = figures_.heat();
    key_->setMostVisits(heat.mostVisits);
    map_->setHeat(std::move(heat));
}

void PatternsPane::showHeading(const Period& period) {
    headline_->setSentence(patternSentence(patterns(), period.span));
    const auto from = period.from ? period.from : patterns().first();
    if (!from) {
        eyebrow_->setText(tr("Patterns"));
        return;
    }
    const QDate first = localDateTime(*from).date(), last = localDateTime(period.to).date();
    const QString form =
        first.year() == last.year() ? tr("d MMMM", "form of a date") : tr("d MMMM yyyy", "form of a date");
    eyebrow_->setText(tr("Patterns · %1 to %2", "dates")
                          .arg(displayLocale().toString(first, form), displayLocale().toString(last, form)));
}

/// The sentence is as large as two lines allow.
void PatternsPane::fitHeadline(int width) {
    for (const TextStyle& style : {Type::recordTitle, Type::overlayTitle, Type::emptyTitle, Type::cardName}) {
        headline_->setStyle(style);
        if (headline_->heightForWidth(width) <= 2 * style.line)
            return;
    }
}

void PatternsPane::arrange() {
    const int width = std::max(
        std::min(this->width(), content_->maximumWidth()) - Measure::detailLeft - Measure::detailRight, 1);
    const bool enough = patterns().visits() >= VisitPatterns::fewest;
    const bool beside = enough && width >= besideLeast;
    fitHeadline(width);
    upper_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    upper_->setSpacing(beside ? Measure::gap28 : Measure::gap20);
    upper_->setContentsMargins(0, enough ? 0 : Measure::gap24, 0, 0);
    facts_->setInColumn(beside);
    fitCharts(width, beside ? width - Measure::gap28 - factsWidth : width);
}

/// The map is as wide as its column, but leaves room below it for the matrix, which takes what is left.
void PatternsPane::fitCharts(int width, int column) {
    const int matrix = std::min(width, matrix_->sizeHint().width());
    const int others = Measure::pageMargins.top() + static_cast<int>(Type::eyebrow.line) + Measure::gap4 +
                       headline_->heightForWidth(width) + Measure::gap16 + Measure::gap12 + key_->height() +
                       aboveMatrix + matrix_->heightForWidth(matrix) + Measure::pageMargins.bottom();
    const int highest = std::max(height() - others, mapLeastHeight);
    const int full = map_->heightForWidth(column);
    const QSize map = full <= highest ? QSize(column, full) : QSize(column * highest / full, highest);
    map_->setFixedSize(map);
    mapPart_->setFixedWidth(map.width());
    const int spare = std::max(height() - others - map.height(), 0) / daysInWeek;
    times_->setFixedWidth(std::min(width, matrix + spare * hoursInDay));
}

void PatternsPane::resizeEvent(QResizeEvent*) {
    arrange();
}

} // namespace velmora
