#pragma once

#include "store/app_store.h"
#include "ui/screens/history/history_filter.h"

#include <QAbstractListModel>

#include <optional>
#include <vector>

namespace velmora {

/// The rows of the history list: the records that match the filter, newest first, with a caption for each
/// day.
class HistoryModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { captionRole = Qt::UserRole }; ///< the name of the day; empty for a record

    HistoryModel(AppStore& store, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    const HistoryFilter& filter() const { return filter_; }
    void setFilter(const HistoryFilter& filter);

    /// Renames the captions ("Today" …) if the date has changed, and drops the visits that the filter's span
    /// of time has left behind.
    void followTime();

    /// The records shown, in order.
    const std::vector<RecordKey>& shown() const { return shown_; }
    /// The same with the records themselves.
    std::vector<HistoryEntry> entries() const;
    /// Returns nullopt for a caption.
    std::optional<RecordKey> keyAt(const QModelIndex& index) const;
    /// Returns an invalid index if the record is not shown.
    QModelIndex indexOf(RecordKey key) const;
    /// Returns null for a caption. The pointer is valid until the history changes.
    const MissionRecord* recordAt(const QModelIndex& index) const;

private:
    struct Row {
        QString caption;
        RecordKey key{}; ///< of a record
    };

    void rebuild();

    AppStore& store_;
    HistoryFilter filter_;
    Date builtAt_; ///< the time for which the rows hold
    std::vector<Row> rows_;
    std::vector<RecordKey> shown_;
};

} // namespace velmora
