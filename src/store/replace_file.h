#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace velmora {

/// Identifies one version of a file.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0; ///< bytes
    std::int64_t modifiedSeconds = 0;
    std::int64_t modifiedNanoseconds = 0;

    bool operator==(const FileStamp&) const = default;
};

/// nullopt if there is no file. A file that cannot be examined differs from every other one.
std::optional<FileStamp> stampOf(const QString& path);

/// Waits until the name of a new file is on disk. Errors are ignored: the content is there already.
void syncDirectoryOf(const QString& path);

/// Atomically writes `bytes` to `path` (mode 0600), creating it if needed, and waits until content and name
/// are on disk. After a crash or a full disk the file holds the old or the new content. Follows symlinks.
/// Returns the stamp of the new file, or nullopt if the file is unchanged. Uses files and nothing else, so
/// any thread may call it.
std::optional<FileStamp> replaceFile(const QString& path, std::string_view bytes);

/// The type of replaceFile.
using ReplaceFile = std::function<std::optional<FileStamp>(const QString& path, std::string_view bytes)>;

} // namespace velmora
