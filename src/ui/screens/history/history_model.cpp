#include "ui/screens/history/history_model.h"

#include "model/mission_evidence.h"
#include "ui/charts/outcomes.h"
#include "ui/look/words.h"

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

void HistoryModel::followTime() {
    const Date now = store_.now();
    const auto isOutOfDate = [&](const HistoryEntry& entry) {
        const auto isSince = [&](const std::optional<Date>& start) {
            return start && entry.record->start >= *start;
        };
        return isSince(filter_.spanStart(builtAt_)) != isSince(filter_.spanStart(now));
    };
    if (dayName(builtAt_, now) != dayName(now, now) || std::ranges::any_of(store_.history(), isOutOfDate))
        rebuild();
}

void HistoryModel::rebuild() {
    beginResetModel();
    rows_.clear();
    shown_.clear();
    const Date now = store_.now();
    builtAt_ = now;
    QString day;
    for (const HistoryEntry& entry : store_.history()) {
        if (!filter_.matches(*entry.record, now))
            continue;
        if (const QString name = dayName(entry.record->start, now); name != day) {
            day = name;
            rows_.push_back({day, {}});
        }
        rows_.push_back({{}, entry.key});
        shown_.push_back(entry.key);
    }
    endResetModel();
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

std::vector<HistoryEntry> HistoryModel::entries() const {
    std::vector<HistoryEntry> entries;
    entries.reserve(shown_.size());
    auto next = shown_.begin();
    for (const HistoryEntry& entry : store_.history())
        if (next != shown_.end() && *next == entry.key) {
            entries.push_back(entry);
            ++next;
        }
    return entries;
}

std::optional<RecordKey> HistoryModel::keyAt(const QModelIndex& index) const {
    if (!index.isValid())
        return std::nullopt;
    const Row& row = rows_[static_cast<std::size_t>(index.row())];
    return row.caption.isEmpty() ? std::optional(row.key) : std::nullopt;
}

QModelIndex HistoryModel::indexOf(RecordKey key) const {
    const auto row = std::ranges::find_if(
        rows_, [&](const Row& candidate) { return candidate.caption.isEmpty() && candidate.key == key; });
    return row == rows_.end() ? QModelIndex() : index(static_cast<int>(row - rows_.begin()));
}

const MissionRecord* HistoryModel::recordAt(const QModelIndex& index) const {
    const auto key = keyAt(index);
    const HistoryEntry* entry = key ? store_.findRecord(*key) : nullptr;
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
        QStringList{outcomeText(record->outcome), shownText(record->cameraName),
                    dayNameAndTime(record->start, store_.now()), duration(Seconds{durationOf(*record)})}
            .join(QStringLiteral(", "));
    return record->demo ? tr("%1, demo").arg(text) : text;
}

Qt::ItemFlags HistoryModel::flags(const QModelIndex& index) const {
    return recordAt(index) ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::ItemFlags(Qt::NoItemFlags);
}

} // namespace velmora
