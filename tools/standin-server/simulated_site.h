#pragma once

#include "sim/simulator.h"

#include <optional>
#include <string>

namespace velmora::standin {

/// Grounds that are watched by the simulator, with a visitor every so often.
class SimulatedSite {
public:
    /// `visitor` comes two seconds after `start` and then every so many seconds, 0 for never again. A visit
    /// that falls due while the drone is out is left out. `random` must outlive the site.
    SimulatedSite(Scenario visitor, Seconds every, Date start, Random& random);

    const LiveState& state() const { return simulator_.state; }

    /// Lets the time pass up to `now`; a longer gap than five seconds counts as five.
    void advance(Date now);

    /// Carries out the command if the mission named is the open one; "" stands for none.
    void carryOut(Command command, const std::string& mission, Date now);

private:
    Simulator simulator_;
    Scenario visitor_;
    Seconds every_;
    Date lastAdvance_;
    std::optional<Date> nextVisit_;
};

} // namespace velmora::standin
