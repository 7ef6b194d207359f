#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"

#include <QWidget>

namespace velmora {

class HistoryFilters;
class PatternsSummary;
class RecordList;
class SBButton;
class SegmentedChoice;

/// The left pane of the history: headline, the choice between visits and patterns, filters, the visits or a
/// summary of them, and a footer with undo and "Clear demo history".
class HistoryList : public QWidget {
    Q_OBJECT

public:
    enum class Mode { visits, patterns };

    HistoryList(AppStore& store, QWidget* parent);

    Mode mode() const { return mode_; }
    /// Emits modeChanged() if it differs.
    void setMode(Mode mode);
    HistoryFilters& filters() { return *filters_; }
    PatternsSummary& summary() { return *summary_; }
    /// The records that match the filters, in order.
    const std::vector<RecordKey>& shown() const;
    std::vector<HistoryEntry> entries() const;
    void refresh();
    /// Highlights the selected record of the store, and scrolls to it when another one was selected.
    void showSelection();
    /// Moves the keyboard focus to the search field.
    void focusSearch();
    /// Moves the keyboard focus to the records, or to the patterns' rows of counts.
    void focusContent(Qt::FocusReason reason = Qt::OtherFocusReason);
    /// Offers for ten seconds to restore the deleted record.
    void offerUndo(RemovedEntry removed);

signals:
    void modeChanged();
    void filterChanged();
    void selected(velmora::RecordKey key);
    void deleteRequested(velmora::RecordKey key);
    /// The owner pressed Enter on a record.
    void opened();
    /// The owner pressed Space on a record.
    void playRequested();
    void clearDemoRequested();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QLayout* buildTop();
    QWidget* buildNothing();
    QWidget* buildNoMatch();
    QWidget* buildFooter();
    void connectRecords();
    void applyFilter();
    void showParts();
    void showFooter();
    void undo();

    AppStore& store_;
    Mode mode_ = Mode::visits;
    SegmentedChoice* modes_;
    HistoryFilters* filters_;
    QWidget* nothing_;
    QWidget* noMatch_;
    RecordList* records_;
    PatternsSummary* summary_;
    QWidget* footer_;
    SBButton* clearDemo_;
    QWidget* undoLine_;
    UiTimer undoTime_{std::chrono::seconds(10), UiTimer::Mode::singleShot};
    std::optional<RemovedEntry> deleted_;
};

} // namespace velmora
