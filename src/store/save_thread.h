#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>

namespace velmora {

/// Saves files on a thread of its own, so that the caller waits for a disk only if it asks to. Each file has
/// at most one waiting job: a newer one replaces it and keeps its turn. Jobs run one at a time, in the order
/// in which they became due: at once, or a pause after the end of the file's previous job.
class SaveThread {
public:
    /// Writes a file. Returns false if the file is unchanged. Runs, and is destroyed, without any lock held.
    using Job = std::function<bool()>;

    struct Limits {
        std::chrono::milliseconds pause{500};      ///< between two jobs of one file
        std::chrono::milliseconds hanging{10'000}; ///< a job that takes longer never ends
    };

    SaveThread();
    explicit SaveThread(const Limits& limits);
    /// Runs the waiting jobs without their pauses. If a job hangs, the destructor gives up the waiting ones
    /// and leaves the thread behind.
    ~SaveThread();

    SaveThread(const SaveThread&) = delete;
    SaveThread& operator=(const SaveThread&) = delete;

    /// Runs `job` as soon as it is due. `file` identifies the file.
    void save(const std::string& file, Job job);
    /// Whether no job runs or waits.
    bool isIdle() const;
    /// Runs the waiting jobs without their pauses and waits for them, at most as long as `limit`. Returns
    /// whether all ended and the newest job of each file succeeded.
    bool flush(std::chrono::milliseconds limit);

private:
    struct Shared;

    std::shared_ptr<Shared> shared_; ///< outlives this object while a job hangs
    std::thread thread_;             ///< starts with the first job
};

} // namespace velmora
