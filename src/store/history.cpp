#include "store/history.h"

#include <algorithm>
#include <iterator>

namespace velmora {

History::History(DataFiles& files, Seed seed) : files_(files), seed_(std::move(seed)) {}

std::vector<HistoryEntry>& History::loaded() const {
    if (entries_)
        return *entries_;
    auto records = files_.loadHistory().value_or(std::vector<MissionRecord>());
    const bool seeds = records.empty() && seed_;
    if (seeds)
        records = seed_();
    entries_.emplace();
    for (MissionRecord& record : records)
        entries_->push_back(entryFor(std::move(record)));
    if (seeds)
        save();
    return *entries_;
}

HistoryEntry History::entryFor(MissionRecord record) const {
    return {RecordKey{++lastKey_}, std::make_shared<const MissionRecord>(std::move(record))};
}

const HistoryEntry* History::find(RecordKey key) const {
    const auto entry = std::ranges::find(loaded(), key, &HistoryEntry::key);
    return entry == loaded().end() ? nullptr : &*entry;
}

void History::add(std::vector<MissionRecord> records) {
    std::vector<HistoryEntry> added;
    for (MissionRecord& record : records)
        added.push_back(entryFor(std::move(record)));
    loaded().insert(loaded().begin(), std::make_move_iterator(added.begin()),
                    std::make_move_iterator(added.end()));
    save();
}

void History::clearDemo() {
    std::erase_if(loaded(), [](const HistoryEntry& entry) { return entry.record->demo; });
    save();
}

std::optional<RemovedEntry> History::remove(RecordKey key) {
    const auto found = std::ranges::find(loaded(), key, &HistoryEntry::key);
    if (found == loaded().end())
        return std::nullopt;
    RemovedEntry removed{std::move(*found), {}};
    const auto next = loaded().erase(found);
    std::ranges::transform(next, loaded().end(), std::back_inserter(removed.below), &HistoryEntry::key);
    save();
    return removed;
}

void History::restore(RemovedEntry removed) {
    const auto below = std::ranges::find_first_of(loaded(), removed.below, {}, &HistoryEntry::key);
    loaded().insert(below, std::move(removed.entry));
    save();
}

void History::save() const {
    DataFiles::Records records(loaded().size());
    std::ranges::transform(loaded(), records.begin(), &HistoryEntry::record);
    files_.saveHistory(std::move(records));
}

} // namespace velmora
