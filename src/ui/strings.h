#pragma once

#include <QString>

#include <string_view>

namespace velmora {

/// A record's UTF-8 text as the screens use it.
inline QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace velmora
