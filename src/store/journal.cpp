#include "store/journal.h"

#include "model/json.h"
#include "store/journal_file.h"

#include <iterator>
#include <mutex>

namespace velmora {

namespace {

using namespace std::chrono_literals;

constexpr auto longestWait = 200ms;
constexpr std::size_t longestBacklog = 1000; // lines that are kept while the disk refuses them
constexpr SaveThread::Limits limits{.pause = 0ms, .hanging = 1s};
constexpr Seconds fraction{1}; // times on file have no fractions of a second

} // namespace

/// The lines that are not on disk yet.
struct Journal::Backlog {
    explicit Backlog(const QString& directory) : file(directory) {}

    bool write();

    JournalFile file; ///< belongs to the thread
    std::mutex mutex; ///< guards what follows
    std::vector<std::string> lines;
    int year = 0; ///< of the newest line
};

bool Journal::Backlog::write() {
    std::unique_lock lock(mutex);
    std::vector<std::string> writing = std::exchange(lines, {});
    const int yearOfNewest = year;
    lock.unlock();
    if (writing.empty() || file.append(writing, yearOfNewest))
        return true;
    lock.lock();
    writing.insert(writing.end(), std::make_move_iterator(lines.begin()),
                   std::make_move_iterator(lines.end()));
    if (writing.size() > longestBacklog)
        writing.resize(longestBacklog);
    lines = std::move(writing);
    return false;
}

Journal::Journal(const QDir& directory)
    : directory_(directory), backlog_(std::make_shared<Backlog>(directory.absolutePath())), thread_(limits) {}

void Journal::append(const JournalEntry& entry) {
    remember(entry);
    auto line = encode(entry);
    if (!line)
        return;
    {
        const std::lock_guard lock(backlog_->mutex);
        backlog_->lines.push_back(std::move(*line));
        backlog_->year = yearOf(entry.time);
    }
    thread_.save("journal", [backlog = backlog_] { return backlog->write(); });
}

void Journal::sync() {
    thread_.flush(longestWait);
}

std::optional<JournalEntry> Journal::answerTo(const MissionRecord& record) {
    if (!std::exchange(fileWasRead_, true))
        readFile();
    std::optional<JournalEntry> last;
    const auto [from, to] = answers_.equal_range(record.id);
    for (auto answer = from; answer != to; ++answer) {
        const JournalEntry& entry = answer->second;
        const bool during = entry.time > record.start - fraction && entry.time < record.end + fraction;
        if (during && (!last || entry.time >= last->time))
            last = entry;
    }
    return last;
}

void Journal::readFile() {
    for (const std::string& line : JournalFile(directory_.absolutePath()).read())
        if (const auto entry = decode<JournalEntry>(line))
            remember(*entry.value);
}

void Journal::remember(const JournalEntry& entry) {
    if (answersAlert(entry.command) && entry.result == CommandResult::sent && entry.mission)
        answers_.emplace(*entry.mission, entry);
}

} // namespace velmora
