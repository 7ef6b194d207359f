#pragma once

#include <QLocale>
#include <QPageSize>

namespace velmora {

/// Resolution of a report's coordinates, so that they are the pixels of the screens.
inline constexpr int reportDpi = 96;

/// The desktop's locale for paper: LC_ALL, LC_PAPER or LANG, the first that is set.
QLocale paperLocale();

/// Letter where the locale's territory uses it, else A4.
QPageSize paperFor(const QLocale& locale);

} // namespace velmora
