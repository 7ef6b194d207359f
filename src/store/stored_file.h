#pragma once

#include "store/replace_file.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace velmora {

/// One file of the data directory. Before it overwrites content that it neither understood nor wrote, it
/// copies that content to NAME.unreadable or NAME.replaced, or to the first free one of NAME.unreadable.2, .3
/// and so on. Uses files and nothing else; one thread at a time.
class StoredFile {
public:
    explicit StoredFile(const QString& path, ReplaceFile replace = replaceFile);

    const QString& path() const { return path_; }

    /// The content; nullopt if there is no file or it cannot be read.
    std::optional<QByteArray> read();
    /// The content that was read makes no sense.
    void markUnreadable() { unreadable_ = true; }
    /// Replaces the content; creates the file if it is missing. Returns false if the file is unchanged, also
    /// because a copy is needed and failed.
    bool replace(std::string_view bytes);

private:
    bool keepCopy();

    QString path_;
    ReplaceFile replace_;
    // what was last read, copied or written
    std::optional<FileStamp> stamp_;  ///< nullopt: no file
    std::optional<std::size_t> hash_; ///< of the content; nullopt if it is unknown
    bool unreadable_ = false;         ///< the content was not understood, and is not copied
};

} // namespace velmora
