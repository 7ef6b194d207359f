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

    /// Places in the store's history of the records shown, in order.
    const std::vector<std::size_t>& shown() const { return shown_; }
    /// Place in the store's history; absent for a caption.
    std::optional<std::size_t> placeOf(const QModelIndex& index) const;
    QModelIndex indexOf(std::size_t place) const;
    /// The record in a row; null for a caption.
    const MissionRecord* recordAt(const QModelIndex& index) const;

private:
    struct Row {
        QString caption;
        std::size_t place = 0;
    };

    void rebuild();

    AppStore& store_;
    HistoryFilter filter_;
    Date namedAt_; ///< when the days were named
    std::vector<Row> rows_;
    std::vector<std::size_t> shown_;
};

} // namespace velmora
