#include "standin-server/simulated_site.h"

#include <algorithm>

namespace velmora::standin {

namespace {

constexpr Seconds firstVisitAfter{2};
constexpr Seconds longestStep{0.05};
constexpr Seconds longestGap{5};

} // namespace

SimulatedSite::SimulatedSite(Scenario visitor, Seconds every, Date start, Random& random)
    : simulator_(LiveState::initial(), Settings{}, random),
      visitor_(visitor),
      every_(every),
      lastAdvance_(start),
      nextVisit_(start + firstVisitAfter) {}

void SimulatedSite::advance(Date now) {
    Seconds left = std::min(now - lastAdvance_, longestGap);
    lastAdvance_ = now;
    while (left > Seconds{0}) {
        const Seconds step = std::min(left, longestStep);
        left -= step;
        simulator_.step(step.count(), now - left);
    }
    if (!nextVisit_ || now < *nextVisit_)
        return;
    simulator_.trigger(visitor_, now);
    nextVisit_ = every_ > Seconds{0} ? std::optional(now + every_) : std::nullopt;
}

void SimulatedSite::carryOut(Command command, const std::string& mission, Date now) {
    advance(now);
    if (mission == simulator_.state.missionId.value_or(""))
        simulator_.send(command, now);
}

} // namespace velmora::standin
