#pragma once

#include "sim/simulator.h"

#include <optional>
#include <string>

namespace velmora::standin {

/// A simulated site with visits at regular intervals.
class SimulatedSite {
public:
    /// `visitor` comes two seconds after `start`, then at the interval `every`; 0 for one visit only. Visits
    /// that are due during a mission are skipped. `random` must outlive the site.
    SimulatedSite(Scenario visitor, Seconds every, Date start, Random& random);

    const LiveState& state() const { return simulator_.state; }

    /// Advances the simulation to `now`, by at most five seconds.
    void advance(Date now);

    /// Carries out the command if `mission` is the current one; "" if no mission is in progress.
    void carryOut(Command command, const std::string& mission, Date now);

private:
    Simulator simulator_;
    Scenario visitor_;
    Seconds every_;
    Date lastAdvance_;
    std::optional<Date> nextVisit_;
};

} // namespace velmora::standin
