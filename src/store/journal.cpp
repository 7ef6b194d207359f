#include "store/journal.h"

#include "model/json.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <map>
#include <mutex>

namespace velmora {

namespace {

using namespace std::chrono_literals;

constexpr auto longestWait = 100ms;
constexpr std::size_t longestBacklog = 1000; // lines
constexpr SaveThread::Limits limits{.pause = 0ms, .hanging = 1s};
constexpr Seconds tolerance{1}; // times on file have no fractions of a second

/// Answers that were sent, by mission.
class Answers {
public:
    void add(const JournalEntry& entry) {
        if (!answersAlert(entry.command) || !entry.mission)
            return;
        if (entry.result == CommandResult::sent)
            answers_.emplace(*entry.mission, entry);
        else if (entry.result == CommandResult::failed)
            removeLast(*entry.mission, entry.command);
    }
    std::optional<JournalEntry> answerTo(const MissionRecord& record) const {
        std::optional<JournalEntry> last;
        const auto [from, to] = answers_.equal_range(record.id);
        for (auto answer = from; answer != to; ++answer) {
            const Date time = answer->second.time;
            const bool during = time > record.start - tolerance && time < record.end + tolerance;
            if (during && (!last || time >= last->time))
                last = answer->second;
        }
        return last;
    }

private:
    void removeLast(const std::string& mission, Command command) {
        const auto [from, to] = answers_.equal_range(mission);
        auto last = to;
        for (auto answer = from; answer != to; ++answer)
            if (answer->second.command == command)
                last = answer;
        if (last != to)
            answers_.erase(last);
    }

    std::multimap<std::string, JournalEntry> answers_; ///< those of one mission in the order of the journal
};

} // namespace

struct Journal::Shared {
    Shared(const QString& directory, SyncFile sync) : file(directory, std::move(sync)) {}

    bool read();
    bool write();

    JournalFile file; ///< belongs to the thread
    std::mutex mutex; ///< guards what follows
    std::deque<JournalFile::Line> backlog;
    Answers onFile, given; ///< given: since the start
};

bool Journal::Shared::read() {
    Answers answers;
    for (const std::string& line : file.read())
        if (const auto entry = decode<JournalEntry>(line))
            answers.add(*entry.value);
    const std::lock_guard lock(mutex);
    onFile = std::move(answers);
    return true;
}

/// Returns whether no line is left.
bool Journal::Shared::write() {
    std::unique_lock lock(mutex);
    const std::vector<JournalFile::Line> lines(std::make_move_iterator(backlog.begin()),
                                               std::make_move_iterator(backlog.end()));
    backlog.clear();
    lock.unlock();
    const std::size_t done = file.append(lines);
    if (done == lines.size())
        return true;
    lock.lock();
    backlog.insert(backlog.begin(), lines.begin() + static_cast<std::ptrdiff_t>(done), lines.end());
    return false;
}

Journal::Journal(const QDir& directory, SyncFile sync)
    : shared_(std::make_shared<Shared>(directory.absolutePath(), std::move(sync))), thread_(limits) {
    thread_.save("answers", [shared = shared_] { return shared->read(); });
}

void Journal::append(const JournalEntry& entry) {
    auto line = encode(entry);
    hangs_ = hangs_ && !thread_.isIdle();
    {
        const std::lock_guard lock(shared_->mutex);
        shared_->given.add(entry);
        if (line)
            shared_->backlog.push_back({yearOf(entry.time), std::move(*line)});
        while (shared_->backlog.size() > longestBacklog)
            shared_->backlog.pop_front();
    }
    thread_.save("journal", [shared = shared_] { return shared->write(); });
}

void Journal::sync() {
    if (hangs_)
        return;
    thread_.flush(longestWait);
    hangs_ = !thread_.isIdle();
}

bool Journal::flush(std::chrono::milliseconds limit) {
    thread_.save("journal", [shared = shared_] { return shared->write(); });
    return thread_.flush(limit);
}

std::optional<JournalEntry> Journal::answerTo(const MissionRecord& record) const {
    const std::lock_guard lock(shared_->mutex);
    const auto answer = shared_->given.answerTo(record);
    return answer ? answer : shared_->onFile.answerTo(record);
}

} // namespace velmora
