#pragma once

#include "model/live_state.h"
#include "model/settings.h"

namespace velmora {

/// The time left to answer an alert, by the clock of this computer.
struct TimeLeft {
    double seconds = 0;
    double share = 0; ///< of the time to answer, 0 to 1

    /// The last ten seconds.
    bool isShort() const;
};

/// nullopt without a deadline, after it, or if it is so late that a clock must be wrong.
std::optional<TimeLeft> timeLeft(const LiveState& state, const Settings& settings, Date now);

} // namespace velmora
