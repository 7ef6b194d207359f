#pragma once

#include <QString>

namespace velmora {

/// The kinds of failure that have their own text.
enum class Failure {
    invalidAddress,
    hostNotFound,
    refused,
    unreachable,
    timedOut,
    badResponse,
    unreadable, ///< with the path and the problem in the state
    other       ///< with the system's text
};

/// Error text for the owner. `detail` is the path and problem in the state, or the system's text.
QString failureText(Failure failure, const QString& detail = {});

} // namespace velmora
