#include "store/history.h"

#include <algorithm>
#include <iterator>

namespace velmora {

History::History(DataFiles& files) : files_(files) {
    if (auto records = files_.loadHistory())
        for (MissionRecord& record : *records)
            entries_.push_back(entryFor(std::move(record)));
}

HistoryEntry History::entryFor(MissionRecord record) {
    return {RecordKey{++lastKey_}, std::make_shared<const MissionRecord>(std::move(record))};
}

const HistoryEntry* History::find(RecordKey key) const {
    const auto entry = std::ranges::find(entries_, key, &HistoryEntry::key);
    return entry == entries_.end() ? nullptr : &*entry;
}

void History::add(std::vector<MissionRecord> records) {
    std::vector<HistoryEntry> added;
    for (MissionRecord& record : records)
        added.push_back(entryFor(std::move(record)));
    entries_.insert(entries_.begin(), std::make_move_iterator(added.begin()),
                    std::make_move_iterator(added.end()));
    save();
}

void History::clearDemo() {
    std::erase_if(entries_, [](const HistoryEntry& entry) { return entry.record->demo; });
    save();
}

std::optional<RemovedEntry> History::remove(RecordKey key) {
    const auto found = std::ranges::find(entries_, key, &HistoryEntry::key);
    if (found == entries_.end())
        return std::nullopt;
    RemovedEntry removed{std::move(*found), {}};
    const auto next = entries_.erase(found);
    std::ranges::transform(next, entries_.end(), std::back_inserter(removed.below), &HistoryEntry::key);
    save();
    return removed;
}

void History::restore(RemovedEntry removed) {
    const auto below = std::ranges::find_first_of(entries_, removed.below, {}, &HistoryEntry::key);
    entries_.insert(below, std::move(removed.entry));
    save();
}

void History::save() {
    DataFiles::Records records(entries_.size());
    std::ranges::transform(entries_, records.begin(), &HistoryEntry::record);
    files_.saveHistory(std::move(records));
}

} // namespace velmora
