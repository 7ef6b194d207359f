#include "ui/screens/history/history_list.h"

#include "ui/blocks/choice.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/headline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/link_button.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/screens/history/history_filters.h"
#include "ui/screens/history/record_list.h"
#include "ui/screens/patterns/patterns_summary.h"

#include <QApplication>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace velmora {

HistoryList::HistoryList(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      records_(new RecordList(store, this)),
      summary_(new PatternsSummary(this)) {
    auto* column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->addLayout(buildTop());
    noMatch_ = buildNoMatch();
    footer_ = buildFooter();
    column->addWidget(noMatch_, 1);
    column->addWidget(records_, 1);
    column->addWidget(summary_, 1);
    column->addStretch();
    column->addWidget(footer_);
    connect(modes_, &SegmentedChoice::activated, this,
            [this](int index) { setMode(static_cast<Mode>(index)); });
    connect(filters_, &HistoryFilters::changed, this, &HistoryList::applyFilter);
    connect(filters_, &HistoryFilters::left, this, [this] { focusContent(Qt::TabFocusReason); });
    connect(&undoTime_, &UiTimer::timeout, this, [this] {
        deleted_.reset();
        refresh();
    });
    connectRecords();
    refresh();
}

/// The records extend a little further on both sides than what is above them.
QLayout* HistoryList::buildTop() {
    auto* top = new QVBoxLayout;
    top->setContentsMargins(Measure::recordInset, 0, Measure::recordInset, 0);
    top->setSpacing(0);
    top->addWidget(new Eyebrow(tr("History"), false, this));
    top->addSpacing(Measure::gap4);
    top->addWidget(
        new Headline(Sentence::marked(tr("Every visit,\n*on record*.")), Type::historyHeadline, false, this));
    top->addSpacing(Measure::gap16);
    modes_ = new SegmentedChoice(tr("What the history shows"), {tr("Visits"), tr("Patterns")}, false, this);
    modes_->setMinimumWidth(Measure::historyModes);
    top->addWidget(modes_);
    top->addSpacing(Measure::gap12);
    filters_ = new HistoryFilters(this);
    nothing_ = buildNothing();
    top->addWidget(filters_);
    top->addWidget(nothing_);
    return top;
}

void HistoryList::connectRecords() {
    connect(records_, &RecordList::moved, this, &HistoryList::selected);
    connect(records_, &RecordList::deleteRequested, this, &HistoryList::deleteRequested);
    connect(records_, &RecordList::opened, this, &HistoryList::opened);
    connect(records_, &RecordList::playRequested, this, &HistoryList::playRequested);
    connect(records_, &RecordList::escaped, filters_, &HistoryFilters::clearSearch);
}

QWidget* HistoryList::buildNothing() {
    auto* block = new QWidget(this);
    auto* column = bareLayout<QVBoxLayout>(block, Measure::gap20);
    column->addWidget(new Hairline(block));
    column->addWidget(
        new Text(tr("Nothing yet. When a camera spots someone you don't know, it appears here."),
                 Type::emptyNote, SB::body, block));
    return block;
}

QWidget* HistoryList::buildNoMatch() {
    auto* block = new QWidget(this);
    auto* all = new SBButton(tr("Show all"), {.kind = SBButtonKind::quiet}, block);
    auto* words = new QHBoxLayout;
    words->setContentsMargins(Measure::recordInset, Measure::gap16, 0, 0);
    words->addWidget(new Text(tr("No visits match."), Type::body, SB::body, block));
    auto* column = new QVBoxLayout(block);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(words);
    column->addWidget(all, 0, Qt::AlignLeft);
    column->addStretch(1);
    connect(all, &SBButton::clicked, this, [this] {
        filters_->setFilter({});
        focusContent();
    });
    return block;
}

QWidget* HistoryList::buildFooter() {
    auto* foot = new QWidget(this);
    clearDemo_ = new SBButton(tr("Clear demo history"), {.kind = SBButtonKind::quiet}, foot);
    undoLine_ = new QWidget(foot);
    auto* undo = new LinkButton(tr("Undo"), undoLine_);
    auto* line = new QHBoxLayout(undoLine_);
    line->setContentsMargins(Measure::recordInset, 0, 0, 0);
    line->addWidget(new Text(tr("Visit deleted."), Type::body, SB::body, undoLine_), 0, Qt::AlignVCenter);
    line->addWidget(undo);
    line->addStretch(1);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, Measure::gap12, Measure::recordInset, Measure::gap12);
    row->addWidget(clearDemo_, 0, Qt::AlignLeft);
    row->addStrut(Measure::buttonHeight);
    row->addWidget(undoLine_, 1);
    auto* column = bareLayout<QVBoxLayout>(foot);
    auto* above = new QHBoxLayout;
    above->setContentsMargins(Measure::recordInset, 0, Measure::recordInset, 0);
    above->addWidget(new Hairline(foot));
    column->addLayout(above);
    column->addLayout(row);
    connect(clearDemo_, &SBButton::clicked, this, &HistoryList::clearDemoRequested);
    connect(undo, &QAbstractButton::clicked, this, &HistoryList::undo);
    return foot;
}

const std::vector<RecordKey>& HistoryList::shown() const {
    return records_->records().shown();
}

std::vector<HistoryEntry> HistoryList::entries() const {
    return records_->records().entries();
}

void HistoryList::setMode(Mode mode) {
    if (mode == mode_)
        return;
    mode_ = mode;
    modes_->setCurrentIndex(static_cast<int>(mode));
    showParts();
    emit modeChanged();
}

/// Other records are in view then, so the list scrolls to the selected one, or to its top.
void HistoryList::applyFilter() {
    records_->records().setFilter(filters_->filter());
    showParts();
    records_->revealSelection();
    emit filterChanged();
}

void HistoryList::refresh() {
    filters_->offer(store_.history());
    records_->records().followTime();
    showParts();
    showFooter();
}

/// Shows the parts of the pane that apply, and how many visits match.
void HistoryList::showParts() {
    const std::size_t all = store_.history().size(), matching = shown().size();
    filters_->setCount(matching, all);
    modes_->setVisible(all > 0);
    filters_->setVisible(all > 0);
    nothing_->setVisible(all == 0);
    noMatch_->setVisible(all > 0 && matching == 0);
    records_->setVisible(matching > 0 && mode_ == Mode::visits);
    summary_->setVisible(matching > 0 && mode_ == Mode::patterns);
}

/// Hiding the focused "Undo" would move the focus to another control, which the next key press would
/// trigger.
void HistoryList::showFooter() {
    const bool demo =
        std::ranges::any_of(store_.history(), [](const HistoryEntry& entry) { return entry.record->demo; });
    if (!deleted_ && undoLine_->isAncestorOf(QApplication::focusWidget()))
        focusContent();
    clearDemo_->setVisible(demo && !deleted_);
    undoLine_->setVisible(deleted_.has_value());
    footer_->setVisible(demo || deleted_);
}

void HistoryList::showSelection() {
    records_->showSelection();
}

void HistoryList::focusSearch() {
    filters_->focusSearch();
}

void HistoryList::focusContent(Qt::FocusReason reason) {
    if (records_->isVisible())
        records_->setFocus(reason);
    else if (summary_->isVisible())
        summary_->focusFirst(reason);
    else
        window()->setFocus(reason);
}

void HistoryList::offerUndo(RemovedEntry removed) {
    deleted_ = std::move(removed);
    undoTime_.start();
    refresh();
}

void HistoryList::undo() {
    if (!deleted_)
        return;
    RemovedEntry removed = std::move(*std::exchange(deleted_, std::nullopt));
    const RecordKey key = removed.entry.key;
    undoTime_.stop();
    store_.restoreRecord(std::move(removed));
    emit selected(key);
}

void HistoryList::resizeEvent(QResizeEvent*) {
    const bool narrow = width() <= Measure::historyPaneNarrow;
    const int left = narrow ? Measure::historyLeftNarrow : Measure::historyLeft;
    layout()->setContentsMargins(left - Measure::recordInset, Measure::pageMargins.top(),
                                 Measure::historyRight - Measure::recordInset + 1, 0);
}

void HistoryList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintHairline(painter, {width() - 1, 0, 1, height()}, SB::rule);
}

} // namespace velmora
