#include "ui/screens/history/history_model.h"

#include "model/mission_evidence.h"
#include "ui/screens/outcomes.h"
#include "ui/words.h"

#include <algorithm>

namespace velmora {

HistoryModel::HistoryModel(AppStore& store, QObject* parent) : QAbstractListModel(parent), store_(store) {
    connect(&store_, &AppStore::historyChanged, this, &HistoryModel::rebuild);
    rebuild();
}

void HistoryModel::setFilter(const HistoryFilter& filter) {
    if (filter == filter_)
        return;
    filter_ = filter;
    rebuild();
}

void HistoryModel::followDay() {
    if (dayName(namedAt_, store_.now()) != dayName(store_.now(), store_.now()))
        rebuild();
}

void HistoryModel::rebuild() {
    beginResetModel();
    rows_.clear();
    shown_.clear();
    const auto& history = store_.history();
    const Date now = store_.now();
    namedAt_ = now;
    QString day;
    for (std::size_t place = 0; place < history.size(); ++place) {
        if (!filter_.matches(history[place]))
            continue;
        if (const QString name = dayName(history[place].start, now); name != day) {
            day = name;
            rows_.push_back({day, place});
        }
        rows_.push_back({{}, place});
        shown_.push_back(place);
    }
    endResetModel();
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

std::optional<std::size_t> HistoryModel::placeOf(const QModelIndex& index) const {
    if (!index.isValid())
        return std::nullopt;
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    return row.caption.isEmpty() ? std::optional(row.place) : std::nullopt;
}

QModelIndex HistoryModel::indexOf(std::size_t place) const {
    const auto row =
        std::ranges::find_if(rows_, [&](const Row& r) { return r.caption.isEmpty() && r.place == place; });
    return row == rows_.end() ? QModelIndex() : index(static_cast<int>(row - rows_.begin()));
}

const MissionRecord* HistoryModel::recordAt(const QModelIndex& index) const {
    const auto place = placeOf(index);
    return place && *place < store_.history().size() ? &store_.history()[*place] : nullptr;
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    if (role == captionRole)
        return row.caption.isEmpty() ? QVariant() : QVariant(row.caption);
    if (role != Qt::DisplayRole)
        return {};
    const MissionRecord* record = recordAt(index);
    if (!record)
        return row.caption;
    const QString text =
        QStringList{outcomeText(record->outcome), toQString(record->cameraName),
                    dayAndTime(record->start, store_.now()), duration(Seconds{lengthOf(*record)})}
            .join(QStringLiteral(", "));
    return record->demo ? text + tr(", demo") : text;
}

Qt::ItemFlags HistoryModel::flags(const QModelIndex& index) const {
    return recordAt(index) ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::ItemFlags(Qt::NoItemFlags);
}

} // namespace velmora
