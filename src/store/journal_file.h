#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

/// Waits until the content of an open file is on disk. Returns false if it cannot be written.
using SyncFile = std::function<bool(int descriptor)>;
bool syncFile(int descriptor);

/// The journal on disk: journal.jsonl holds the current year, journal-2026.jsonl and so on the years before.
/// Uses files and nothing else; one thread at a time.
class JournalFile {
public:
    /// Without its line end.
    struct Line {
        int year = 0;
        std::string text;
    };

    explicit JournalFile(const QString& directory, SyncFile sync = syncFile);

    /// Appends the lines and waits until they are on disk. Creates the file (mode 0600) and its directory if
    /// they are missing. Starts a new file for another year, unless the file is a link. Returns the number
    /// of lines on disk; the file holds nothing of the others.
    std::size_t append(const std::vector<Line>& lines);

    /// The newest lines of all years, about 4 MB, the oldest first.
    std::vector<std::string> read() const;

private:
    bool append(const std::string& text);
    void keepOtherYear(int year);

    QString directory_;
    QString path_;
    SyncFile sync_;
    std::optional<int> year_; ///< of the last line in the file; nullopt if it is unknown
};

} // namespace velmora
