#include "store/journal_file.h"

#include "model/journal_entry.h"
#include "model/json.h"
#include "store/data_files.h"
#include "store/replace_file.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {

namespace {

constexpr qint64 longestRead = 16 << 20; // bytes

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

/// O_NONBLOCK: opening a pipe of this name must not wait.
bool appendText(const QString& path, std::string text) {
    const Descriptor file(::open(QFile::encodeName(path).constData(),
                                 O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY,
                                 S_IRUSR | S_IWUSR));
    struct stat info {};
    if (file.number() < 0 || ::fstat(file.number(), &info) != 0 || !S_ISREG(info.st_mode))
        return false;
    ::fchmod(file.number(), S_IRUSR | S_IWUSR);
    if (!endsWithLine(file.number(), info.st_size))
        text.insert(0, 1, '\n');
    if (!writeAll(file.number(), text)) {
        ::ftruncate(file.number(), info.st_size); // the lines will be written again
        return false;
    }
    const bool synced = ::fdatasync(file.number()) == 0 || errno == EINVAL;
    if (info.st_size == 0)
        syncDirectoryOf(path);
    return synced;
}

QByteArray lastBytesOf(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    if (file.size() > longestRead) {
        file.seek(file.size() - longestRead);
        file.readLine(); // the rest of a line
    }
    return file.read(longestRead);
}

/// The year of the first line that can be read; nullopt if there is none.
std::optional<int> firstYearIn(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    constexpr qint64 longestLine = 4096;
    for (int line = 0; line < 100 && !file.atEnd(); ++line) {
        const auto entry = decode<JournalEntry>(file.readLine(longestLine).toStdString());
        if (entry)
            return yearOf(entry.value->time);
    }
    return std::nullopt;
}

} // namespace

JournalFile::JournalFile(const QString& directory)
    : directory_(directory), path_(directory + QStringLiteral("/journal.jsonl")) {}

bool JournalFile::append(const std::vector<std::string>& lines, int year) {
    DataFiles::makeDirectory(QDir(directory_));
    keepEarlierYear(year);
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return appendText(path_, std::move(text));
}

/// Renames the file of an earlier year. If that fails, for example because the name is taken, its lines and
/// the new ones share the file.
void JournalFile::keepEarlierYear(int year) {
    if (!year_)
        year_ = firstYearIn(path_);
    if (year_ && *year_ < year) {
        const QString earlier = directory_ + QStringLiteral("/journal-%1.jsonl").arg(*year_);
        ::renameat2(AT_FDCWD, QFile::encodeName(path_).constData(), AT_FDCWD,
                    QFile::encodeName(earlier).constData(), RENAME_NOREPLACE);
    }
    year_ = std::max(year, year_.value_or(year));
}

std::vector<std::string> JournalFile::read() const {
    QStringList names =
        QDir(directory_).entryList({QStringLiteral("journal-*.jsonl")}, QDir::Files, QDir::Name);
    names.append(QFileInfo(path_).fileName());
    std::vector<std::string> lines;
    for (const QString& name : names)
        for (const QByteArray& line : lastBytesOf(directory_ + '/' + name).split('\n'))
            if (!line.isEmpty())
                lines.push_back(line.toStdString());
    return lines;
}

} // namespace velmora
