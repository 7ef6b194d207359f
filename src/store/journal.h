#pragma once

#include "model/journal_entry.h"
#include "model/mission_record.h"
#include "store/journal_file.h"
#include "store/save_thread.h"

#include <QDir>

#include <memory>

namespace velmora {

/// Every command that was given to the drone from here, and what became of it: journal.jsonl in the data
/// directory, one line of JSON for each entry. Lines are appended and never changed. Errors are silent; lines
/// that could not be written are written with the next ones, the newest thousand. Main thread only.
class Journal {
public:
    /// Begins to read the answers on file. `sync` runs on the journal's thread.
    explicit Journal(const QDir& directory, SyncFile sync = syncFile);

    /// Appends the entry on a thread of its own.
    void append(const JournalEntry& entry);
    /// Waits until all entries are on disk, but at most 0.1 s, and not again while the disk hangs.
    void sync();
    /// Waits until all entries are on disk, also those that the disk refused. Returns whether they are,
    /// within the limit.
    bool flush(std::chrono::milliseconds limit);

    /// The last answer to the alert of this mission that was sent and did not fail; nullopt if there is none,
    /// or while the file is being read.
    std::optional<JournalEntry> answerTo(const MissionRecord& record) const;

private:
    struct Shared;

    std::shared_ptr<Shared> shared_; ///< with the jobs of the thread
    bool hangs_ = false;             ///< the disk did not end the last wait in time
    SaveThread thread_;
};

} // namespace velmora
