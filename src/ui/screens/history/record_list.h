#pragma once

#include "ui/screens/history/history_model.h"

#include <QListView>

namespace velmora {

/// The visits that match the filter, as rows under captions of days.
class RecordList : public QListView {
    Q_OBJECT

public:
    RecordList(AppStore& store, QWidget* parent);

    HistoryModel& records() { return *model_; }
    /// Highlights the selected record of the store, and scrolls to it when another one was selected.
    void showSelection();
    /// Scrolls to the selected record, or to the top if it is not shown.
    void revealSelection();

signals:
    /// The owner moved to this record.
    void moved(velmora::RecordKey key);
    void deleteRequested(velmora::RecordKey key);
    /// The owner pressed Enter on a record.
    void opened();
    /// The owner pressed Space on a record.
    void playRequested();
    /// The owner pressed Escape.
    void escaped();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void saveScrollPosition();
    void restoreScrollPosition();
    void reveal(const QModelIndex& index);
    bool handleKey(int key);

    AppStore& store_;
    HistoryModel* model_;
    std::optional<RecordKey> highlighted_;
    /// The first record in view and its distance from the view's top, in pixels.
    struct ScrollPosition {
        RecordKey record;
        int top;
    };
    std::optional<ScrollPosition> scrollPosition_; ///< nullopt while the list is at its top
};

} // namespace velmora
