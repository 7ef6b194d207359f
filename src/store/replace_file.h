#pragma once

#include <QString>

#include <string_view>

namespace velmora {

/// Replaces the content of a file, or makes it, for the owner's eyes only (mode 0600). Whatever happens
/// meanwhile, a kill or a full disk, the file holds the old content or the new. A link stays a link: what it
/// names is written. False when the content is the old one.
bool replaceFile(const QString& path, std::string_view bytes);

} // namespace velmora
