#pragma once

#include <QString>

namespace velmora {

/// Chooses the text that names the machine on which the program runs: `mac` if it is built for one.
inline QString forThisMachine([[maybe_unused]] const QString& computer, [[maybe_unused]] const QString& mac) {
#ifdef Q_OS_MACOS
    return mac;
#else
    return computer;
#endif
}

} // namespace velmora
