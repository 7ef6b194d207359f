#pragma once

#include <QString>

#include <functional>
#include <string_view>

namespace velmora {

/// Atomically writes `bytes` to `path` (mode 0600), creating it if needed, and waits until content and name
/// are on disk. After a crash or a full disk the file holds the old or the new content. Follows symlinks.
/// Returns false if the file is unchanged. Uses files and nothing else, so any thread may call it.
bool replaceFile(const QString& path, std::string_view bytes);

/// The type of replaceFile.
using ReplaceFile = std::function<bool(const QString& path, std::string_view bytes)>;

} // namespace velmora
