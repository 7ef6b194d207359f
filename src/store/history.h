#pragma once

#include "store/data_files.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

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
    using Seed = std::function<std::vector<MissionRecord>()>;

    /// `seed` makes the missions of an empty history; it may be null. `files` must outlive the history.
    explicit History(DataFiles& files, Seed seed = nullptr);

    /// Whether the file has been read. The first use of the missions reads it. They are empty if there is no
    /// file or it cannot be read.
    bool isLoaded() const { return entries_.has_value(); }

    const std::vector<HistoryEntry>& entries() const { return loaded(); }
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
    std::vector<HistoryEntry>& loaded() const;
    void save() const;
    HistoryEntry entryFor(MissionRecord record) const;

    DataFiles& files_;
    Seed seed_;
    mutable std::uint32_t lastKey_ = 0;
    mutable std::optional<std::vector<HistoryEntry>> entries_; ///< nullopt until the first use
};

} // namespace velmora
