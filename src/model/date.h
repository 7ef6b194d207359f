#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// A length of time in seconds.
using Seconds = std::chrono::duration<double>;

/// An instant: 64-bit float seconds since 1 January 1970 UTC.
using Date = std::chrono::time_point<std::chrono::system_clock, Seconds>;

constexpr Date dateFromSeconds(double secondsSince1970) {
    return Date{Seconds{secondsSince1970}};
}
constexpr double secondsSince1970(Date date) {
    return date.time_since_epoch().count();
}

/// `date` as "2025-06-01T14:03:12Z": UTC, fractions of a second dropped. nullopt outside the years 0 to 9999.
std::optional<std::string> dateText(Date date);

/// The calendar year of this instant, in UTC.
int yearOf(Date date);

/// Parses exactly that format; nullopt for any other text and for impossible dates.
std::optional<Date> dateFromText(std::string_view text);

} // namespace velmora
