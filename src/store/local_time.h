#pragma once

#include "model/date.h"

#include <optional>

namespace velmora {

/// The instant at which the local clock shows hour:minute:00 on the day that lies `daysAgo` calendar days
/// before `now`. A time that the day skips gives the first instant after the gap, one that it has twice the
/// first of them. Absent when the system cannot tell the local time.
std::optional<Date> localTimeDaysAgo(Date now, int daysAgo, int hour, int minute);

} // namespace velmora
