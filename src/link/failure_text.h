#pragma once

#include "link/exchange.h"

#include <optional>

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
    other       ///< the text that Qt gives
};

/// The kind of failure of an exchange that has ended; nullopt for a complete reply with status 200.
std::optional<Failure> failureOf(const Exchange::End& end);

/// Error text for the owner. `detail` is the path and problem in the state, or Qt's text.
QString failureText(Failure failure, const QString& detail = {});

} // namespace velmora
