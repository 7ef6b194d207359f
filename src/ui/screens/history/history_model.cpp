#include "ui/screens/history/history_model.h"

#include "model/mission_evidence.h"
#include "ui/look/words.h"
#include "ui/screens/outcomes.h"

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

void HistoryModel::updateDayNames() {
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
    for (std::size_t i = 0; i < history.size(); ++i) {
        if (!filter_.matches(*history[i].record))
            continue;
        if (const QString name = dayName(history[i].record->start, now); name != day) {
            day = name;
            rows_.push_back({day, i});
        }
        rows_.push_back({{}, i});
        shown_.push_back(history[i].key);
    }
    endResetModel();
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

const HistoryEntry* HistoryModel::entryAt(const QModelIndex& index) const {
    if (!index.isValid())
        return nullptr;
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    const bool isRecord = row.caption.isEmpty() && row.entry < store_.history().size();
    return isRecord ? &store_.history()[row.entry] : nullptr;
}

std::optional<RecordKey> HistoryModel::keyAt(const QModelIndex& index) const {
    const HistoryEntry* entry = entryAt(index);
    return entry ? std::optional(entry->key) : std::nullopt;
}

QModelIndex HistoryModel::indexOf(RecordKey key) const {
    const auto row = std::ranges::find_if(rows_, [&](const Row& candidate) {
        return candidate.caption.isEmpty() && store_.history()[candidate.entry].key == key;
    });
    return row == rows_.end() ? QModelIndex() : index(static_cast<int>(row - rows_.begin()));
}

const MissionRecord* HistoryModel::recordAt(const QModelIndex& index) const {
    const HistoryEntry* entry = entryAt(index);
    return entry ? entry->record.get() : nullptr;
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
                    dayAndTime(record->start, store_.now()), duration(Seconds{durationOf(*record)})}
            .join(QStringLiteral(", "));
    return record->demo ? text + tr(", demo") : text;
}

Qt::ItemFlags HistoryModel::flags(const QModelIndex& index) const {
    return recordAt(index) ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::ItemFlags(Qt::NoItemFlags);
}

} // namespace velmora
