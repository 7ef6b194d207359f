#pragma once

#include "link/exchange.h"

#include <optional>

namespace velmora {

/// The kinds of failure that the owner can be told apart.
enum class Failure {
    invalidAddress,
    hostNotFound,
    refused,
    unreachable,
    timedOut,
    badResponse,
    unreadable, ///< followed by where and why
    other       ///< Qt's own text
};

/// What kind of failure an ended exchange is; absent when it brought a whole reply with status 200.
std::optional<Failure> failureOf(const Exchange::End& end);

/// The owner's words for the failure; `detail` is the path and problem in the state, or Qt's text.
QString failureText(Failure failure, const QString& detail = {});

} // namespace velmora
