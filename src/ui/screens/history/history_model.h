#pragma once

#include "store/app_store.h"
#include "ui/screens/history/history_filter.h"

#include <QAbstractListModel>

#include <optional>
#include <vector>

namespace velmora {

/// The history as the list shows it: records newest first under a caption for each day, as far as the filter
/// lets them.
class HistoryModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { captionRole = Qt::UserRole }; ///< the day's name on a caption, nothing on a record

    HistoryModel(AppStore& store, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    const HistoryFilter& filter() const { return filter_; }
    void setFilter(const HistoryFilter& filter);

    /// Names the days anew when another one has begun.
    void followDay();

    /// The records shown, in order.
    const std::vector<RecordKey>& shown() const { return shown_; }
    /// Absent for a caption.
    std::optional<RecordKey> keyAt(const QModelIndex& index) const;
    /// Invalid for a record that is not shown.
    QModelIndex indexOf(RecordKey key) const;
    /// The record in a row; null for a caption.
    const MissionRecord* recordAt(const QModelIndex& index) const;

private:
    struct Row {
        QString caption;
        std::size_t entry = 0; ///< index in the store's history, which every change of it rebuilds
    };

    void rebuild();
    const HistoryEntry* entryAt(const QModelIndex& index) const;

    AppStore& store_;
    HistoryFilter filter_;
    Date namedAt_; ///< when the days were named
    std::vector<Row> rows_;
    std::vector<RecordKey> shown_;
};

} // namespace velmora
