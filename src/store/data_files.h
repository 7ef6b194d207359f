#pragma once

#include "model/mission_record.h"
#include "model/settings.h"
#include "store/save_thread.h"
#include "store/stored_file.h"

#include <QDir>

#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <vector>

namespace velmora {

/// settings.json and history.json in the data directory. Errors are silent: a failed read returns nullopt, a
/// failed write leaves the file unchanged, and the next change saves everything. A file that cannot be read,
/// or that another program replaced, is copied before it is overwritten.
class DataFiles {
public:
    using Records = std::vector<std::shared_ptr<const MissionRecord>>;

    /// Each write creates the directory (mode 0700) and its parents if they are missing. `replace` runs on
    /// the saving thread.
    explicit DataFiles(const QDir& directory, const ReplaceFile& replace = replaceFile);

    /// $XDG_DATA_HOME/Velmora, by default ~/.local/share/Velmora.
    static QDir defaultDirectory();

    /// Creates the directory (mode 0700) and its parents if it is missing.
    static void makeDirectory(const QDir& directory);

    /// Call each before the first save of its file, which then belongs to the saving thread.
    std::optional<Settings> loadSettings();
    std::optional<std::vector<MissionRecord>> loadHistory();
    /// Begins to read the history in a thread, unless it has begun; loadHistory() then waits for it. The
    /// thread calls `done`. The destructor waits for the thread.
    void readHistoryInThread(std::function<void()> done);

    /// Saving encodes and writes on a thread of its own: at once, but at most every half second for each
    /// file. The destructor waits for what is not on file yet, at most ten seconds for one write.
    void saveSettings(const Settings& settings);
    /// Writes the first 200 records.
    void saveHistory(Records history);
    /// Writes now what is not on file yet. Returns whether everything is on file within the limit.
    bool flush(std::chrono::milliseconds limit) { return thread_.flush(limit); }

private:
    template <class T>
    static std::optional<T> load(StoredFile& file, std::string_view root);
    template <class T>
    void save(const std::shared_ptr<StoredFile>& file, T value);

    // shared with the threads
    std::shared_ptr<StoredFile> settings_;
    std::shared_ptr<StoredFile> history_;
    SaveThread thread_;
    std::future<std::optional<std::vector<MissionRecord>>> ahead_; ///< last, so that its thread ends first
};

} // namespace velmora
