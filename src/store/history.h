#pragma once

#include "store/data_files.h"

#include <cstdint>

namespace velmora {

/// Names one record for as long as the program runs; ids are not unique.
enum class RecordKey : std::uint32_t {};

struct HistoryEntry {
    RecordKey key{};
    MissionRecord record;
};

/// The finished missions, newest first, in memory and on file. Every change is saved at once.
class History {
public:
    /// Reads the file; empty if there is none or it cannot be read. `files` must outlive the history.
    explicit History(DataFiles& files);

    const std::vector<HistoryEntry>& entries() const { return entries_; }
    /// Null if there is no such record (any more).
    const HistoryEntry* find(RecordKey key) const;

    /// Puts finished missions, newest first, in front of the others.
    void add(std::vector<MissionRecord> records);
    /// Removes the rehearsed missions.
    void clearDemo();
    /// Removes one record and returns it; absent if there is none.
    std::optional<HistoryEntry> remove(RecordKey key);
    /// Puts a removed record back, with its key, above the older ones.
    void restore(HistoryEntry entry);

private:
    void save();
    HistoryEntry entryFor(MissionRecord record);

    DataFiles& files_;
    std::uint32_t lastKey_ = 0;
    std::vector<HistoryEntry> entries_;
};

} // namespace velmora
