#include "store/local_time.h"

#include <algorithm>
#include <cmath>
#include <ctime>

namespace velmora {

namespace {

using namespace std::chrono;

std::optional<std::tm> localCalendar(std::time_t instant) {
    std::tm calendar{};
    if (!localtime_r(&instant, &calendar))
        return std::nullopt;
    return calendar;
}

/// Seconds by which local time is ahead of UTC at the instant.
std::optional<std::time_t> offsetAt(std::time_t instant) {
    const auto calendar = localCalendar(instant);
    return calendar ? std::optional(calendar->tm_gmtoff) : std::nullopt;
}

/// The first instant after `before` with another offset; `after` must have another one.
std::time_t changeBetween(std::time_t before, std::time_t after) {
    const auto old = offsetAt(before);
    while (after - before > 1) {
        const std::time_t middle = before + (after - before) / 2;
        (offsetAt(middle) == old ? before : after) = middle;
    }
    return after;
}

/// Converts a local wall-clock time to an instant. `wall` is in seconds since 1970 as if local time were UTC.
std::optional<std::time_t> instantOfWallClock(std::time_t wall) {
    constexpr std::time_t day = 86400;
    const auto before = offsetAt(wall - day);
    const auto after = offsetAt(wall + day);
    if (!before || !after)
        return std::nullopt;
    const std::time_t first = wall - std::max(*before, *after);
    const std::time_t second = wall - std::min(*before, *after);
    for (const std::time_t candidate : {first, second})
        if (offsetAt(candidate) == wall - candidate)
            return candidate;
    return changeBetween(first, second);
}

} // namespace

std::optional<Date> localTimeDaysAgo(Date now, int daysAgo, int hour, int minute) {
    const auto today = localCalendar(static_cast<std::time_t>(std::floor(secondsSince1970(now))));
    if (!today)
        return std::nullopt;
    const year_month_day date{year{today->tm_year + 1900}, month{unsigned(today->tm_mon + 1)},
                              day{unsigned(today->tm_mday)}};
    const sys_seconds wall = sys_days{date} - days{daysAgo} + hours{hour} + minutes{minute};
    const auto instant = instantOfWallClock(wall.time_since_epoch().count());
    return instant ? std::optional(dateFromSeconds(static_cast<double>(*instant))) : std::nullopt;
}

} // namespace velmora
