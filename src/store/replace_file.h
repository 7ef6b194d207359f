#pragma once

#include <QString>

#include <string_view>

namespace velmora {

/// Atomically writes `bytes` to `path` (mode 0600), creating it if needed. After a crash or a full disk the
/// file holds the old or the new content. Follows symlinks. Returns false if the file is unchanged.
bool replaceFile(const QString& path, std::string_view bytes);

} // namespace velmora
