#include "store/journal_file.h"

#include "model/journal_entry.h"
#include "model/json.h"
#include "store/data_files.h"
#include "store/replace_file.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {

namespace {

constexpr qint64 longestRead = 4 << 20; // bytes of all files

/// An open file that closes itself.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0)
            ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }

private:
    int number_;
};

bool writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Whether the last line has its end.
bool endsWithLine(int file, off_t size) {
    char last = 0;
    return size == 0 || (::pread(file, &last, 1, size - 1) == 1 && last == '\n');
}

/// The end of the file, at most `limit` bytes, from the start of a line.
QByteArray endOf(const QString& path, qint64 limit) {
    QFile file(path);
    if (limit <= 0 || !QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    if (file.size() > limit) {
        file.seek(file.size() - limit);
        file.readLine();
    }
    return file.read(limit);
}

/// The year of the last line that can be read; nullopt if there is none.
std::optional<int> lastYearIn(const QString& path) {
    constexpr qint64 enough = 64 << 10; // bytes
    const QList<QByteArray> lines = endOf(path, enough).split('\n');
    for (auto line = lines.rbegin(); line != lines.rend(); ++line)
        if (const auto entry = decode<JournalEntry>(line->toStdString()))
            return yearOf(entry.value->time);
    return std::nullopt;
}

} // namespace

/// EINVAL: the file system does not support it.
bool syncFile(int descriptor) {
    return ::fdatasync(descriptor) == 0 || errno == EINVAL;
}

JournalFile::JournalFile(const QString& directory, SyncFile sync)
    : directory_(directory), path_(directory + QStringLiteral("/journal.jsonl")), sync_(std::move(sync)) {}

std::size_t JournalFile::append(const std::vector<Line>& lines) {
    DataFiles::makeDirectory(QDir(directory_));
    std::size_t done = 0;
    while (done < lines.size()) {
        const int year = lines[done].year;
        std::string text;
        std::size_t next = done;
        for (; next < lines.size() && lines[next].year == year; ++next)
            text += lines[next].text + '\n';
        keepOtherYear(year);
        if (!append(text))
            break;
        year_ = year;
        done = next;
    }
    return done;
}

/// O_NONBLOCK: opening a pipe of this name must not wait. What cannot be synced is taken back, because it
/// will be written again.
bool JournalFile::append(const std::string& text) {
    const Descriptor file(::open(QFile::encodeName(path_).constData(),
                                 O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY,
                                 S_IRUSR | S_IWUSR));
    struct stat info {};
    if (file.number() < 0 || ::fstat(file.number(), &info) != 0 || !S_ISREG(info.st_mode))
        return false;
    ::fchmod(file.number(), S_IRUSR | S_IWUSR);
    const bool lineIsOpen = !endsWithLine(file.number(), info.st_size);
    const bool written = writeAll(file.number(), lineIsOpen ? '\n' + text : text);
    if (!written || !sync_(file.number()))
        return ::ftruncate(file.number(), info.st_size) != 0 && written;
    if (info.st_size == 0)
        syncDirectoryOf(path_);
    return true;
}

/// Renames a file that holds another year, later or earlier: a clock may have been wrong.
void JournalFile::keepOtherYear(int year) {
    if (!year_)
        year_ = lastYearIn(path_);
    if (!year_ || *year_ == year || QFileInfo(path_).isSymLink())
        return;
    const QString base = directory_ + QStringLiteral("/journal-%1").arg(*year_);
    QString name = base + QStringLiteral(".jsonl");
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = base + QStringLiteral(".%1.jsonl").arg(number);
    std::rename(QFile::encodeName(path_).constData(), QFile::encodeName(name).constData());
}

std::vector<std::string> JournalFile::read() const {
    static const QRegularExpression ofOneYear(QStringLiteral("^journal-\\d+(\\.\\d+)?\\.jsonl$"));
    QStringList names = QDir(directory_).entryList(QDir::Files, QDir::Name).filter(ofOneYear);
    names.append(QFileInfo(path_).fileName());
    QByteArray newest;
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        newest.prepend(endOf(directory_ + '/' + *name, longestRead - newest.size()) + '\n');
    std::vector<std::string> lines;
    for (const QByteArray& line : newest.split('\n'))
        if (!line.isEmpty())
            lines.push_back(line.toStdString());
    return lines;
}

} // namespace velmora
