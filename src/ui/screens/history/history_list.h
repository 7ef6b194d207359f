#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"
#include "ui/screens/history/history_model.h"

#include <QWidget>

class QListView;

namespace velmora {

class MenuButton;
class SBButton;
class SegmentedChoice;
class Text;
class TextField;

/// The left pane of the history: headline, search, filters, the records, and a footer with undo and "Clear
/// demo history".
class HistoryList : public QWidget {
    Q_OBJECT

public:
    HistoryList(AppStore& store, QWidget* parent);

    /// The records shown, in order.
    const std::vector<RecordKey>& shown() const { return model_->shown(); }
    void refresh();
    /// Highlights the selected record of the store, and scrolls to it when another one was selected.
    void showSelection();
    /// Moves the keyboard focus to the search field.
    void focusSearch();
    /// Moves the keyboard focus to the records.
    void focusRecords();
    /// Offers for ten seconds to restore the deleted record.
    void offerUndo(RemovedEntry removed);

signals:
    void selected(velmora::RecordKey key);
    void deleteRequested(velmora::RecordKey key);
    /// The owner pressed Enter on a record.
    void opened();
    /// The owner pressed Space on a record.
    void playRequested();
    void clearDemoRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* buildFilters();
    QWidget* buildRecords();
    QWidget* buildNothing();
    QWidget* buildNoMatch();
    QWidget* buildFooter();
    void applyFilter();
    void clearFilters();
    void setFilter(const HistoryFilter& filter);
    void dropFiltersWithoutRecords(bool demo);
    void showFilters();
    void showCount();
    void showFooter(bool demo);
    void saveScrollPosition();
    void restoreScrollPosition();
    void reveal(const QModelIndex& index);
    void undo();
    bool handleListKey(int key);

    AppStore& store_;
    HistoryModel* model_;
    TextField* search_;
    SegmentedChoice* flight_;
    MenuButton* camera_;
    MenuButton* demo_;
    Text* count_;
    QWidget* filters_;
    QWidget* nothing_;
    QWidget* noMatch_;
    QListView* records_;
    QWidget* footer_;
    SBButton* clearDemo_;
    QWidget* undoLine_;
    UiTimer undoTime_{std::chrono::seconds(10), UiTimer::Mode::singleShot};
    std::optional<RemovedEntry> deleted_;
    QStringList cameras_; ///< names in the camera filter
    std::optional<RecordKey> highlighted_;
    /// The first record in view and its distance from the view's top, in pixels.
    struct ScrollPosition {
        RecordKey record;
        int top;
    };
    std::optional<ScrollPosition> scrollPosition_; ///< nullopt while the list is at its top
};

} // namespace velmora
