#include "store/save_thread.h"

#include <algorithm>
#include <condition_variable>
#include <csignal>
#include <map>
#include <mutex>
#include <optional>
#include <utility>

namespace velmora {

namespace {

using Clock = std::chrono::steady_clock;

/// Starts a thread that handles no signals, so that handlers interrupt only the other threads.
template <class Function>
std::thread threadWithoutSignals(Function function) {
    sigset_t all, before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::thread thread(std::move(function));
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return thread;
}

} // namespace

struct SaveThread::Shared {
    struct File {
        Job job; ///< empty while none waits
        Clock::time_point due;
        Clock::time_point earliest; ///< the end of the pause after the previous job
        bool saved = true;          ///< the result of the previous job
    };

    explicit Shared(const Limits& chosen) : limits(chosen) {}

    void run();
    File* nextFile(std::unique_lock<std::mutex>& lock);
    bool isIdle() const {
        return !runningSince &&
               std::ranges::all_of(files, [](const auto& item) { return item.second.job == nullptr; });
    }

    const Limits limits;
    std::mutex mutex; ///< guards what follows
    std::condition_variable changed;
    std::map<std::string, File> files;
    std::optional<Clock::time_point> runningSince; ///< the start of the job that runs
    bool urgent = false;                           ///< a flush waits: skip the pauses
    bool stopping = false;                         ///< the thread ends when no job waits
    bool abandoned = false;                        ///< the job that runs hangs: the thread ends after it
};

/// Waits for a file whose job is due. Null when the thread must end.
SaveThread::Shared::File* SaveThread::Shared::nextFile(std::unique_lock<std::mutex>& lock) {
    while (!abandoned) {
        File* next = nullptr;
        for (auto& [name, file] : files)
            if (file.job && (!next || file.due < next->due))
                next = &file;
        if (next && (urgent || stopping || next->due <= Clock::now()))
            return next;
        if (!next && stopping)
            return nullptr;
        if (next)
            changed.wait_until(lock, next->due);
        else
            changed.wait(lock);
    }
    return nullptr;
}

void SaveThread::Shared::run() {
    std::unique_lock lock(mutex);
    while (File* file = nextFile(lock)) {
        Job job = std::exchange(file->job, nullptr);
        runningSince = Clock::now();
        lock.unlock();
        const bool saved = job();
        job = nullptr;
        lock.lock();
        file->saved = saved;
        file->earliest = Clock::now() + limits.pause;
        file->due = std::max(file->due, file->earliest);
        runningSince.reset();
        changed.notify_all();
    }
}

SaveThread::SaveThread() : SaveThread(Limits{}) {}

SaveThread::SaveThread(const Limits& limits) : shared_(std::make_shared<Shared>(limits)) {}

SaveThread::~SaveThread() {
    if (!thread_.joinable())
        return;
    std::unique_lock lock(shared_->mutex);
    shared_->stopping = true;
    shared_->changed.notify_all();
    while (!shared_->isIdle() && !shared_->abandoned) {
        const auto giveUpAt = shared_->runningSince.value_or(Clock::now()) + shared_->limits.hanging;
        shared_->changed.wait_until(lock, giveUpAt);
        const auto& since = shared_->runningSince;
        shared_->abandoned = since && Clock::now() >= *since + shared_->limits.hanging;
    }
    lock.unlock();
    if (shared_->abandoned)
        thread_.detach();
    else
        thread_.join();
}

void SaveThread::save(const std::string& file, Job job) {
    {
        const std::lock_guard lock(shared_->mutex);
        Shared::File& entry = shared_->files[file];
        if (!entry.job)
            entry.due = std::max(Clock::now(), entry.earliest);
        entry.job.swap(job); // a replaced job is destroyed without the lock
        shared_->changed.notify_all();
    }
    if (!thread_.joinable())
        thread_ = threadWithoutSignals([shared = shared_] { shared->run(); });
}

bool SaveThread::isIdle() const {
    const std::lock_guard lock(shared_->mutex);
    return shared_->isIdle();
}

bool SaveThread::flush(std::chrono::milliseconds limit) {
    std::unique_lock lock(shared_->mutex);
    shared_->urgent = true;
    shared_->changed.notify_all();
    const bool idle = shared_->changed.wait_for(lock, limit, [this] { return shared_->isIdle(); });
    shared_->urgent = false;
    return idle && std::ranges::all_of(shared_->files, [](const auto& item) { return item.second.saved; });
}

} // namespace velmora
