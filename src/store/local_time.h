#pragma once

#include "model/date.h"

#include <optional>

namespace velmora {

/// The instant at which the local clock shows hour:minute:00, `daysAgo` calendar days before `now`. If a
/// clock change skips that time, returns the first instant after the gap; if it occurs twice, the first of
/// the two. nullopt if the system cannot convert the time.
std::optional<Date> localTimeDaysAgo(Date now, int daysAgo, int hour, int minute);

} // namespace velmora
