#pragma once

#include <QString>

namespace velmora {

/// The accessible names of what an alert's card offers.
inline const QString launch = QStringLiteral("Launch drone"), ignore = QStringLiteral("Ignore"),
                     hide = QStringLiteral("Hide"), enlarge = QStringLiteral("Enlarge the picture"),
                     reduce = QStringLiteral("Show the picture smaller");

} // namespace velmora
