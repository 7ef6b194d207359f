#pragma once

#include "model/enums.h"

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

/// The words of the journal, which are never translated.
template <>
inline constexpr auto rawValuesOf<Failure> = std::to_array<std::pair<Failure, std::string_view>>({
    {Failure::invalidAddress, "invalid address"},
    {Failure::hostNotFound, "host not found"},
    {Failure::refused, "connection refused"},
    {Failure::unreachable, "network unreachable"},
    {Failure::timedOut, "timed out"},
    {Failure::badResponse, "bad response"},
    {Failure::unreadable, "unreadable state"},
    {Failure::other, "other"},
});

/// Error text for the owner. `detail` is the path and problem in the state, or the system's text.
QString failureText(Failure failure, const QString& detail = {});

} // namespace velmora
