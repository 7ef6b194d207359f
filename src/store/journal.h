#pragma once

#include "model/journal_entry.h"
#include "model/mission_record.h"
#include "store/save_thread.h"

#include <QDir>

#include <map>
#include <memory>

namespace velmora {

/// Every command that was given to the drone from here, and what became of it: journal.jsonl in the data
/// directory, one line of JSON for each entry. Lines are appended and never changed. Errors are silent; lines
/// that could not be written are written with the next ones. Main thread only.
class Journal {
public:
    explicit Journal(const QDir& directory);

    /// Appends the entry on a thread of its own.
    void append(const JournalEntry& entry);
    /// Waits until all entries are on disk, but at most 0.2 s, so that a disk never holds a command up.
    void sync();
    /// Waits until all entries are on disk. Returns whether they are, within the limit.
    bool flush(std::chrono::milliseconds limit) { return thread_.flush(limit); }

    /// The last answer that was sent to the alert of this mission; nullopt if none was. The first call reads
    /// the file.
    std::optional<JournalEntry> answerTo(const MissionRecord& record);

private:
    struct Backlog;

    void readFile();
    void remember(const JournalEntry& entry);

    QDir directory_;
    std::shared_ptr<Backlog> backlog_; ///< shared with the jobs of the thread
    bool fileWasRead_ = false;
    std::multimap<std::string, JournalEntry> answers_; ///< sent ones, by mission
    SaveThread thread_;
};

} // namespace velmora
