#pragma once

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// The journal on disk: journal.jsonl holds the current year, journal-2026.jsonl and so on the years before.
/// Uses files and nothing else; one thread at a time.
class JournalFile {
public:
    explicit JournalFile(const QString& directory);

    const QString& path() const { return path_; }

    /// Appends lines (without line ends) and waits until they are on disk. Creates the file (mode 0600) and
    /// its directory if they are missing. If the file holds a year before `year`, starts a new one. Returns
    /// false if not all lines are on disk; then a full disk holds none of them.
    bool append(const std::vector<std::string>& lines, int year);

    /// All lines, oldest first. Of a file larger than 16 MB only the last 16 MB are read.
    std::vector<std::string> read() const;

private:
    void keepEarlierYear(int year);

    QString directory_;
    QString path_;
    std::optional<int> year_; ///< of the lines in the file; nullopt if it is unknown
};

} // namespace velmora
