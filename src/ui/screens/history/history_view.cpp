#include "ui/screens/history/history_view.h"

#include "model/walk_map.h"
#include "ui/blocks/empty_state.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/sb_button.h"
#include "ui/look/measures.h"
#include "ui/look/words.h"
#include "ui/report/report_job.h"
#include "ui/report/report_paper.h"
#include "ui/report/report_words.h"
#include "ui/screens/grounds.h"
#include "ui/screens/history/history_filters.h"
#include "ui/screens/history/history_list.h"
#include "ui/screens/history/record_detail.h"
#include "ui/screens/patterns/patterns_pane.h"
#include "ui/screens/patterns/patterns_summary.h"

#include <QBuffer>
#include <QFileDialog>
#include <QMenu>
#include <QStandardPaths>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

namespace velmora {

namespace {

/// A file name that is valid on every file system.
QString fileNameFor(const MissionRecord& record) {
    constexpr qsizetype longest = 60;
    QString name = QStringLiteral("velmora-") + toQString(record.id).left(longest);
    for (QChar& character : name)
        if (!character.isLetterOrNumber() && character != '-')
            character = '-';
    return name;
}

/// "Visitor left your grounds, Thursday 19 November 2026, 20:24:10 to 20:26:30 (UTC+0)".
QString reportTitle(const MissionRecord& record) {
    return HistoryView::tr("Visit report: %1, %2", "outcome, times")
        .arg(shownText(rawValue(record.outcome)), visitTimes(record));
}

ReportSetting reportSetting(const AppStore& store) {
    return {groundsFor(store).site, store.settings(), store.now(), paperFor(paperLocale())};
}

QByteArray pngOf(const QPixmap& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return bytes;
}

} // namespace

HistoryView::HistoryView(AppStore& store, QWidget* parent)
    : Screen(store, parent),
      list_(new HistoryList(store, this)),
      detail_(new RecordDetail(store, this)),
      patterns_(new PatternsPane(this)),
      nothingListed_(new QWidget(this)),
      empty_(buildEmpty()) {
    auto* row = bareLayout<QHBoxLayout>(this);
    row->addWidget(list_);
    row->addWidget(detail_, 1);
    row->addWidget(patterns_, 1);
    row->addWidget(nothingListed_, 1);
    row->addWidget(empty_, 1);
    connect(list_, &HistoryList::selected, &store_, &AppStore::setSelectedRecord);
    connect(list_, &HistoryList::deleteRequested, this, &HistoryView::remove);
    connect(list_, &HistoryList::opened, detail_, &RecordDetail::focusReplay);
    connect(list_, &HistoryList::playRequested, detail_, &RecordDetail::togglePlaying);
    connect(list_, &HistoryList::clearDemoRequested, this, &HistoryView::clearDemoRequested);
    connect(detail_, &RecordDetail::exportRequested, this, &HistoryView::offerExports);
    connect(detail_, &RecordDetail::deleteRequested, this, [this] {
        if (const auto& selected = store_.selectedRecord())
            remove(*selected);
    });
    connect(&store_, &AppStore::selectedRecordChanged, this, &HistoryView::showSelection);
    connect(&store_, &AppStore::attentionRequested, detail_, &RecordDetail::pause);
    connectPatterns();
    refreshOn({&AppStore::historyChanged, &AppStore::settingsChanged, &AppStore::freshnessChanged});
}

void HistoryView::connectPatterns() {
    PatternsSummary& summary = list_->summary();
    connect(list_, &HistoryList::modeChanged, this, &HistoryView::showParts);
    connect(list_, &HistoryList::filterChanged, this, &HistoryView::showParts);
    connect(&summary, &PatternsSummary::cameraChosen, this, [this](const QString& name) {
        changeFilter(
            [&](HistoryFilter& filter) { filter.camera = filter.camera == name ? QString() : name; });
    });
    connect(&summary, &PatternsSummary::outcomeChosen, this, [this](Outcome outcome) {
        changeFilter([&](HistoryFilter& filter) {
            filter.outcome = filter.outcome == outcome ? std::nullopt : std::optional(outcome);
        });
    });
    connect(patterns_, &PatternsPane::hoursChosen, this, [this](int weekday, int from, int to) {
        showVisits([&](HistoryFilter& filter) { filter.hours = {weekday, from, to}; });
    });
    connect(patterns_, &PatternsPane::placeChosen, this, &HistoryView::showVisitsPast);
}

void HistoryView::changeFilter(const std::function<void(HistoryFilter&)>& change) {
    HistoryFilter filter = list_->filters().filter();
    change(filter);
    list_->filters().setFilter(filter);
}

void HistoryView::showVisits(const std::function<void(HistoryFilter&)>& change) {
    changeFilter(change);
    list_->setMode(HistoryList::Mode::visits);
    list_->focusContent();
}

/// Does nothing for a place that no visit passed.
void HistoryView::showVisitsPast(P place) {
    const auto passes = [&](const HistoryEntry& visit) {
        return passesWithin(*visit.record, place, WalkMap::passed);
    };
    if (std::ranges::any_of(list_->entries(), passes))
        showVisits([&](HistoryFilter& filter) { filter.place = place; });
}

bool HistoryView::isListed(const std::optional<RecordKey>& record) const {
    return record && std::ranges::find(list_->shown(), *record) != list_->shown().end();
}

void HistoryView::openRecord(RecordKey key) {
    list_->setMode(HistoryList::Mode::visits);
    if (!isListed(key))
        list_->filters().setFilter({});
    store_.setSelectedRecord(key);
}

void HistoryView::openPatterns() {
    HistoryFilter lastDays;
    lastDays.span = VisitSpan::month;
    lastDays.demo = store_.settings().linkMode ? HistoryFilter::Demo::without : HistoryFilter::Demo::with;
    list_->filters().setFilter(lastDays);
    list_->setMode(HistoryList::Mode::patterns);
    list_->focusContent();
}

void HistoryView::focusContent() {
    list_->focusContent();
}

void HistoryView::focusSearch() {
    list_->focusSearch();
}

QWidget* HistoryView::buildEmpty() {
    simulate_ = new SBButton(tr("Simulate a visitor"), {.kind = SBButtonKind::secondary}, this);
    connect(simulate_, &SBButton::clicked, this,
            [this] { store_.simulate(rawValuesOf<Scenario>.front().first); });
    auto* empty = new EmptyState(Icon::history, simulate_, this);
    empty->setTexts(
        tr("No visit to replay yet"),
        tr("Every alert ends as a record here, with its paths on the map, its log and how it ended."));
    return empty;
}

void HistoryView::refresh() {
    list_->refresh();
    showParts();
    const auto& history = store_.history();
    simulate_->setVisible(!store_.settings().linkMode);
    const auto& selected = store_.selectedRecord();
    if (history.empty())
        store_.setSelectedRecord(std::nullopt);
    else if (!selected || !store_.findRecord(*selected))
        store_.setSelectedRecord(history.front().key);
    else
        showSelection();
}

/// The detail shows, exports and deletes only a visit that is listed.
void HistoryView::showParts() {
    const bool any = !store_.history().empty(), visits = list_->mode() == HistoryList::Mode::visits;
    const bool listed = !list_->shown().empty();
    if (visits && listed && !isListed(store_.selectedRecord()))
        store_.setSelectedRecord(list_->shown().front());
    detail_->setVisible(visits && listed);
    nothingListed_->setVisible(any && visits && !listed);
    patterns_->setVisible(any && !visits);
    empty_->setVisible(!any);
    showPatterns();
}

/// Computes nothing while the patterns are not shown.
void HistoryView::showPatterns() {
    if (!patterns_->isVisible())
        return;
    const HistoryFilter& filter = list_->filters().filter();
    const Date now = store_.now();
    const VisitSpan span = filter.isOnlySpan() ? filter.span : VisitSpan::unnamed;
    patterns_->setVisits(list_->entries(), {span, filter.spanStart(now), now}, groundsFor(store_),
                         store_.settings());
    list_->summary().setPatterns(patterns_->patterns());
}

void HistoryView::showSelection() {
    const auto& selected = store_.selectedRecord();
    if (const HistoryEntry* entry = selected ? store_.findRecord(*selected) : nullptr)
        detail_->setEntry(*entry);
    list_->showSelection();
}

/// The record to select when this one is removed: the next in the list, or the previous if it is the last.
std::optional<RecordKey> HistoryView::neighbour(RecordKey key) const {
    const std::vector<RecordKey>& keys = list_->shown();
    const auto found = std::ranges::find(keys, key);
    if (found == keys.end() || keys.size() < 2)
        return std::nullopt;
    return found + 1 != keys.end() ? *(found + 1) : *(found - 1);
}

void HistoryView::remove(RecordKey key) {
    store_.setSelectedRecord(neighbour(key));
    if (auto removed = store_.removeRecord(key))
        list_->offerUndo(std::move(*removed));
}

void HistoryView::offerExports(QRect above) {
    const MissionRecord record = *detail_->record();
    const QString name = fileNameFor(record), csv = QStringLiteral("csv");
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto offer = [&](const Export& offered, auto prepare) {
        connect(menu->addAction(offered.title), &QAction::triggered, this,
                [=, this] { saveAs(offered, prepare()); });
    };
    const QString pdf = QStringLiteral("pdf"), pdfs = tr("PDF (*.pdf)"),
                  list = QStringLiteral("velmora-visits");
    offer({tr("Report (PDF)…"), name, pdf, pdfs}, [this] { return report(); });
    offer({tr("Record as JSON…"), name, QStringLiteral("json"), tr("JSON (*.json)")},
          [=, this] { return std::bind_front(&AppStore::exportRecord, &store_, record); });
    offer({tr("Paths and notices as CSV…"), name, csv, tr("CSV (*.csv)")},
          [=, this] { return std::bind_front(&AppStore::exportPaths, &store_, record); });
    offer({tr("Map as a picture…"), name, QStringLiteral("png"), tr("PNG (*.png)")}, [this] {
        return std::bind_front(&AppStore::exportPicture, &store_, pngOf(detail_->mapPicture()));
    });
    menu->addSeparator();
    offer({tr("Report of the list (PDF)…"), list, pdf, pdfs}, [this] { return listReport(); });
    offer({tr("The list as CSV…"), list, csv, tr("CSV (*.csv)")},
          [this] { return std::bind_front(&AppStore::exportList, &store_, list_->shown()); });
    const int left = std::min(above.left(), above.left() + above.width() - menu->sizeHint().width());
    menu->popup({left, above.top() + above.height() + Measure::gap4});
}

HistoryView::Write HistoryView::report() {
    return [this, record = detail_->record()](const QString& path) {
        ReportContent content{reportTitle(*record), reportSetting(store_), {}, false, {}};
        content.visits.push_back({record, store_.answerTo(*record)});
        startReport(path, std::move(content));
        return QString();
    };
}

HistoryView::Write HistoryView::listReport() {
    return [this, entries = list_->entries()](const QString& path) {
        ReportContent content{
            tr("Report of the visits"), reportSetting(store_), {}, true, list_->filters().words()};
        for (const HistoryEntry& entry : entries)
            content.visits.push_back({entry.record, store_.answerTo(*entry.record)});
        startReport(path, std::move(content));
        return QString();
    };
}

void HistoryView::startReport(const QString& path, ReportContent content) {
    auto* job = new ReportJob(store_.openExport(path), std::move(content), this);
    connect(job, &ReportJob::finished, this, [this](const QString& error) {
        if (!error.isEmpty())
            emit exportFailed(error);
    });
    emit reportStarted(job);
    job->start();
}

void HistoryView::saveAs(const Export& chosen, Write write) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto* dialog = new QFileDialog(window(), chosen.title, documents, chosen.filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(chosen.suffix);
    dialog->selectFile(chosen.name + '.' + chosen.suffix);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QFileDialog::fileSelected, this, [this, write = std::move(write)](const QString& path) {
        if (const QString why = write(path); !why.isEmpty())
            emit exportFailed(why);
    });
    dialog->open();
}

void HistoryView::resizeEvent(QResizeEvent*) {
    const bool narrow = window()->width() < Measure::narrowWindow;
    list_->setFixedWidth(narrow ? Measure::historyPaneNarrow : Measure::historyPane);
}

void HistoryView::showEvent(QShowEvent* event) {
    Screen::showEvent(event);
    list_->focusContent();
}

} // namespace velmora
