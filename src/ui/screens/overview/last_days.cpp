#include "ui/screens/overview/last_days.h"

#include "ui/blocks/layouts.h"
#include "ui/blocks/link_button.h"
#include "ui/blocks/text.h"
#include "ui/charts/chart_measures.h"
#include "ui/charts/pattern_figures.h"
#include "ui/charts/pattern_words.h"
#include "ui/charts/visit_matrix.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

constexpr std::chrono::days span(30);
constexpr int leastRoom = 200; // pixels

} // namespace

LastDays::LastDays(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      sentence_(new Text({}, Type::body, SB::body, this)),
      matrix_(new VisitMatrix(VisitMatrix::Form::small, this)),
      cameras_(new CountBars(CountBars::Interaction::readOnly, this)) {
    auto* patterns = new LinkButton(tr("Patterns →"), this);
    auto* heading = new QHBoxLayout;
    heading->addWidget(new Text(tr("The last 30 days"), Type::groupHeading, SB::ink, this), 1);
    heading->addWidget(patterns, 0, Qt::AlignVCenter);
    sentence_->setMaximumLines(2);
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addLayout(heading);
    column->addSpacing(Measure::gap8);
    column->addWidget(sentence_);
    column->addSpacing(Measure::gap12);
    column->addWidget(matrix_);
    column->addSpacing(Measure::gap12);
    column->addWidget(cameras_);
    connect(patterns, &QAbstractButton::clicked, this, [this] { store_.openPatterns(); });
    hide();
}

void LastDays::refresh() {
    if (store_.historyIsLoaded() && isVisible() && count())
        showFigures();
}

/// Returns whether the figures changed.
bool LastDays::count() {
    const auto& history = store_.history();
    const Date from = store_.now() - span;
    const bool withDemo = !store_.settings().linkMode;
    const bool goesOn = counted_ && counted_->withDemo == withDemo && counted_->precede(history) &&
                        patterns_.first().value_or(from) >= from;
    const std::size_t added = history.size() - (goesOn ? counted_->visits : 0);
    if (goesOn && added == 0)
        return false;
    if (!goesOn)
        patterns_ = VisitPatterns(Site());
    for (std::size_t i = 0; i < added; ++i)
        if (const MissionRecord& record = *history[i].record;
            record.start >= from && (withDemo || !record.demo))
            patterns_.add(record);
    counted_ = {history.size(), history.empty() ? RecordKey() : history.front().key, withDemo};
    return true;
}

/// Whether the history has the counted visits, with others before them at most.
bool LastDays::Counted::precede(const std::vector<HistoryEntry>& history) const {
    return history.size() >= visits && (visits == 0 || history[history.size() - visits].key == newest);
}

void LastDays::showFigures() {
    const Sentence sentence = patternSentence(patterns_, VisitSpan::unnamed);
    sentence_->setText(sentence.lead + sentence.emphasis + sentence.tail);
    matrix_->setTimes(VisitTimes::of(patterns_));
    matrix_->setVisible(patterns_.visits() > 0);
    cameras_->setRows(cameraRows(patterns_));
    fitCameras();
}

void LastDays::setRoom(int room) {
    if (room == room_)
        return;
    room_ = room;
    fitCameras();
    setVisible(room >= leastRoom);
}

void LastDays::setGapAbove(int gap) {
    layout()->setContentsMargins(0, gap, 0, 0);
}

/// A list that is cut short would seem to be all.
void LastDays::fitCameras() {
    constexpr std::size_t most = 5; // of many cameras
    const int others = static_cast<int>(Type::groupHeading.line) + Measure::gap8 +
                       sentence_->heightForWidth(width()) + Measure::gap12 +
                       matrix_->heightForWidth(width()) + Measure::gap12;
    const std::size_t rows = std::min(patterns_.byCamera().size(), most);
    cameras_->setShownRows(rows);
    cameras_->setVisible(rows > 0 && room_ - others >= static_cast<int>(rows) * ChartMeasure::countRow);
}

void LastDays::showEvent(QShowEvent*) {
    refresh();
}

} // namespace velmora
