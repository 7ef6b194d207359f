#include "ui/screens/time_left.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr double longest = 3600; // seconds
constexpr double shortTime = 10; // seconds

bool isPlausible(double seconds) {
    return seconds > 0 && seconds <= longest;
}

} // namespace

bool TimeLeft::isShort() const {
    return seconds <= shortTime;
}

/// The time to answer runs from the start of the mission; without a plausible start it is the owner's
/// setting.
std::optional<TimeLeft> timeLeft(const LiveState& state, const Settings& settings, Date now) {
    if (!state.approvalDeadline)
        return std::nullopt;
    const double seconds = (*state.approvalDeadline - now).count();
    if (!isPlausible(seconds))
        return std::nullopt;
    const double sinceStart =
        state.missionStart ? (*state.approvalDeadline - *state.missionStart).count() : 0;
    const double total = isPlausible(sinceStart) ? sinceStart : settings.approvalSeconds;
    return TimeLeft{seconds, std::clamp(seconds / std::max(total, 1.0), 0.0, 1.0)};
}

} // namespace velmora
