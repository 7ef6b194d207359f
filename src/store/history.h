#pragma once

#include "store/data_files.h"

#include <cstdint>
#include <memory>

namespace velmora {

/// Identifies a record while the program runs; record ids are not unique.
enum class RecordKey : std::uint32_t {};

struct HistoryEntry {
    RecordKey key{};
    std::shared_ptr<const MissionRecord> record; ///< never null
};

/// A removed record and its position in the history.
struct RemovedEntry {
    HistoryEntry entry;
    std::vector<RecordKey> below; ///< the records that followed it, in order
};

/// The finished missions, newest first, in memory and in history.json. Every change is saved.
class History {
public:
    /// Reads the file; empty if there is none or it cannot be read. `files` must outlive the history.
    explicit History(DataFiles& files);

    const std::vector<HistoryEntry>& entries() const { return entries_; }
    /// The record with this key; null if there is none.
    const HistoryEntry* find(RecordKey key) const;

    /// Inserts finished missions, newest first, before all others.
    void add(std::vector<MissionRecord> records);
    /// Removes the rehearsed missions.
    void clearDemo();
    /// Removes one record and returns it; nullopt if there is none with this key.
    std::optional<RemovedEntry> remove(RecordKey key);
    /// Inserts a removed record again, with its key, above the records that followed it.
    void restore(RemovedEntry removed);

private:
    void save();
    HistoryEntry entryFor(MissionRecord record);

    DataFiles& files_;
    std::uint32_t lastKey_ = 0;
    std::vector<HistoryEntry> entries_;
};

} // namespace velmora
