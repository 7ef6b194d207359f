#include "ui/screens/history/history_list.h"

#include "ui/blocks/choice.h"
#include "ui/blocks/focus_ring.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/headline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/link_button.h"
#include "ui/blocks/menu_button.h"
#include "ui/blocks/overlay_scroll_bar.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/blocks/text_field.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/history/record_delegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListView>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

namespace velmora {

HistoryList::HistoryList(AppStore& store, QWidget* parent)
    : QWidget(parent), store_(store), model_(new HistoryModel(store, this)) {
    filters_ = buildFilters();
    nothing_ = buildNothing();
    noMatch_ = buildNoMatch();
    auto* records = buildRecords();
    footer_ = buildFooter();
    auto* above = new QVBoxLayout; // the records extend a little further on both sides
    above->setContentsMargins(Measure::recordInset, 0, Measure::recordInset, 0);
    above->setSpacing(0);
    above->addWidget(new Eyebrow(tr("History"), false, this));
    above->addSpacing(Measure::gap4);
    above->addWidget(
        new Headline(Sentence::marked(tr("Every visit,\n*on record*.")), Type::historyHeadline, false, this));
    above->addSpacing(Measure::gap20);
    above->addWidget(filters_);
    above->addWidget(nothing_);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->addLayout(above);
    column->addWidget(noMatch_);
    column->addWidget(records, 1);
    column->addStretch();
    column->addWidget(footer_);
    connect(model_, &QAbstractItemModel::modelAboutToBeReset, this, &HistoryList::saveScrollPosition);
    connect(model_, &QAbstractItemModel::modelReset, this, [this] {
        showSelection();
        restoreScrollPosition();
    });
    connect(&undoTime_, &UiTimer::timeout, this, [this] {
        deleted_.reset();
        refresh();
    });
    refresh();
}

QWidget* HistoryList::buildFilters() {
    auto* block = new QWidget(this);
    search_ = new TextField(tr("Search the history"), tr("Search"), block);
    search_->setClearButtonEnabled(false);
    search_->installEventFilter(this);
    flight_ =
        new SegmentedChoice(tr("Which visits"), {tr("All"), tr("Flown"), tr("Stayed docked")}, true, block);
    camera_ = new MenuButton(tr("Camera"), block);
    demo_ = new MenuButton(tr("Demo visits"), block);
    count_ = new Label2({}, false, block);
    count_->setMaximumLines(1);
    auto* menus = new QHBoxLayout;
    menus->setSpacing(Measure::gap16);
    menus->addWidget(camera_);
    menus->addWidget(demo_);
    menus->addStretch(1);
    menus->addWidget(count_, 0, Qt::AlignVCenter);
    auto* column = bareLayout<QVBoxLayout>(block, Measure::gap12);
    column->addWidget(search_);
    column->addWidget(flight_);
    column->addLayout(menus);
    column->addWidget(new Hairline(block));
    connect(search_, &QLineEdit::textChanged, this, &HistoryList::applyFilter);
    connect(flight_, &SegmentedChoice::activated, this, &HistoryList::applyFilter);
    connect(camera_, &MenuButton::chose, this, [this](int option) {
        HistoryFilter filter = model_->filter();
        filter.camera = option == 0 ? QString() : cameras_.value(option - 1);
        setFilter(filter);
    });
    connect(demo_, &MenuButton::chose, this, [this](int option) {
        HistoryFilter filter = model_->filter();
        filter.demo = static_cast<HistoryFilter::Demo>(option);
        setFilter(filter);
    });
    return block;
}

QWidget* HistoryList::buildRecords() {
    records_ = new QListView(this);
    records_->setModel(model_);
    records_->setItemDelegate(new RecordDelegate(*model_, records_));
    records_->setFrameShape(QFrame::NoFrame);
    records_->setAccessibleName(tr("Visits"));
    records_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    records_->setAutoScroll(false); // showSelection() scrolls
    records_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    records_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    records_->installEventFilter(this);
    FocusRing::setRingStyle(records_, {Measure::buttonRadius});
    auto* onRecords = new QHBoxLayout(records_);
    onRecords->setContentsMargins(0, 0, Measure::scrollBarEdge, 0);
    onRecords->addWidget(new OverlayScrollBar(records_->verticalScrollBar(), records_), 0, Qt::AlignRight);
    connect(records_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& chosen) { // assistive technology selects only
                if (!chosen.isEmpty())
                    records_->setCurrentIndex(chosen.indexes().front());
            });
    connect(records_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                if (const auto key = model_->keyAt(index); key && key != store_.selectedRecord())
                    emit selected(*key);
            });
    return records_;
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
    connect(all, &SBButton::clicked, this, &HistoryList::clearFilters);
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

void HistoryList::applyFilter() {
    HistoryFilter filter = model_->filter();
    filter.text = search_->text();
    filter.flight = static_cast<HistoryFilter::Flight>(flight_->currentIndex());
    setFilter(filter);
}

void HistoryList::clearFilters() {
    search_->clear();
    flight_->setCurrentIndex(0);
    setFilter({});
    records_->setFocus(Qt::OtherFocusReason);
}

/// Other records are in view then, so the list scrolls to the selected one, or to its top.
void HistoryList::setFilter(const HistoryFilter& filter) {
    model_->setFilter(filter);
    showFilters();
    showCount();
    records_->scrollToTop();
    reveal(records_->currentIndex());
}

/// A filter that the menus do not offer any more would hide records without a visible reason.
void HistoryList::dropFiltersWithoutRecords(bool demo) {
    HistoryFilter filter = model_->filter();
    if (!filter.camera.isEmpty() && !cameras_.contains(filter.camera))
        filter.camera.clear();
    if (!demo)
        filter.demo = HistoryFilter::Demo::with;
    if (filter != model_->filter())
        setFilter(filter);
}

void HistoryList::showFilters() {
    const HistoryFilter& filter = model_->filter();
    camera_->setOptions(QStringList{tr("All cameras")} + cameras_,
                        static_cast<int>(cameras_.indexOf(filter.camera)) + 1);
    demo_->setOptions({tr("With demo"), tr("No demo"), tr("Only demo")}, static_cast<int>(filter.demo));
}

/// Updates the count, and shows the parts of the pane that apply to it.
void HistoryList::showCount() {
    const std::size_t all = store_.history().size(), shown = model_->shown().size();
    count_->setText(shown < all ? tr("%1 of %2").arg(shown).arg(all)
                    : all == 1  ? tr("1 visit")
                                : tr("%1 visits").arg(all));
    count_->setMinimumWidth(count_->sizeHint().width());
    filters_->setVisible(all > 0);
    nothing_->setVisible(all == 0);
    noMatch_->setVisible(all > 0 && shown == 0);
    records_->setVisible(shown > 0);
}

void HistoryList::refresh() {
    QStringList cameras;
    for (const HistoryEntry& entry : store_.history())
        if (const QString name = shownText(entry.record->cameraName);
            !name.isEmpty() && !cameras.contains(name))
            cameras.append(name);
    cameras.sort(Qt::CaseInsensitive);
    cameras_ = cameras;
    const bool demo =
        std::ranges::any_of(store_.history(), [](const HistoryEntry& entry) { return entry.record->demo; });
    dropFiltersWithoutRecords(demo);
    demo_->setVisible(demo);
    model_->updateDayNames();
    showFilters();
    showCount();
    showFooter(demo);
}

/// Hiding the focused "Undo" would move the focus to another control, which the next key press would
/// trigger.
void HistoryList::showFooter(bool demo) {
    if (!deleted_ && undoLine_->isAncestorOf(QApplication::focusWidget()))
        (records_->isVisible() ? records_ : window())->setFocus(Qt::OtherFocusReason);
    clearDemo_->setVisible(demo && !deleted_);
    undoLine_->setVisible(deleted_.has_value());
    footer_->setVisible(demo || deleted_);
}

void HistoryList::showSelection() {
    const auto& key = store_.selectedRecord();
    const QModelIndex index = key ? model_->indexOf(*key) : QModelIndex();
    records_->setCurrentIndex(index);
    if (isVisible() && std::exchange(highlighted_, key) != key)
        reveal(index);
}

/// Also reveals the day's caption when scrolling to the first record of a day.
void HistoryList::reveal(const QModelIndex& index) {
    const QModelIndex above = index.siblingAtRow(index.row() - 1);
    if (above.isValid() && !model_->keyAt(above))
        records_->scrollTo(above);
    records_->scrollTo(index);
}

void HistoryList::saveScrollPosition() {
    scrollPosition_.reset();
    if (records_->verticalScrollBar()->value() == 0)
        return;
    QModelIndex first = records_->indexAt({0, 0});
    if (first.isValid() && !model_->keyAt(first))
        first = first.siblingAtRow(first.row() + 1);
    if (const auto key = model_->keyAt(first))
        scrollPosition_ = {*key, records_->visualRect(first).top()};
}

void HistoryList::restoreScrollPosition() {
    const QModelIndex index = scrollPosition_ ? model_->indexOf(scrollPosition_->record) : QModelIndex();
    if (!index.isValid())
        return;
    records_->doItemsLayout();
    QScrollBar& bar = *records_->verticalScrollBar();
    bar.setValue(bar.value() + records_->visualRect(index).top() - scrollPosition_->top);
}

void HistoryList::focusSearch() {
    search_->setFocus(Qt::ShortcutFocusReason);
}

void HistoryList::focusRecords() {
    records_->setFocus(Qt::OtherFocusReason);
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

bool HistoryList::handleListKey(int key) {
    const QModelIndex current = records_->currentIndex();
    const int last = model_->rowCount() - 1;
    switch (key) {
    case Qt::Key_Space:
        emit playRequested();
        return true;
    case Qt::Key_Delete:
        if (const auto record = model_->keyAt(current))
            emit deleteRequested(*record);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit opened();
        return true;
    case Qt::Key_Home: // row 0 is a day's caption
        records_->setCurrentIndex(model_->index(std::min(1, last)));
        records_->scrollToTop();
        return true;
    case Qt::Key_End:
        records_->setCurrentIndex(model_->index(last));
        records_->scrollToBottom();
        return true;
    case Qt::Key_Escape:
        search_->clear();
        return true;
    default:
        return false;
    }
}

bool HistoryList::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (watched == records_ && handleListKey(key))
            return true;
        const bool leavesSearch = key == Qt::Key_Escape || key == Qt::Key_Down || key == Qt::Key_Return;
        if (watched == search_ && leavesSearch) {
            if (key == Qt::Key_Escape)
                search_->clear();
            records_->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
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
