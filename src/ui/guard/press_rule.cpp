#include "ui/guard/press_rule.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr EventTime sampleLifetime = std::chrono::minutes(1); // two clocks drift by less than 10 ms in it
constexpr EventTime longestDelay = std::chrono::minutes(1);   // a longer one: the clock was set

} // namespace

void PressRule::cardPainted(EventTime now) {
    painted_ = now;
    lastBeat_ = now;
}

bool PressRule::beat(EventTime now) {
    const bool stalled = now - lastBeat_ > longestGap;
    lastBeat_ = now;
    if (stalled)
        restart(now);
    return !stalled;
}

bool PressRule::counts(EventTime began) const {
    return painted_ && activated_ && began - std::max({*painted_, *activated_, restarted_}) >= guardTime;
}

EventTime EventClock::began(std::uint64_t stamp, EventTime now) {
    if (stamp == 0)
        return now;
    const auto offset = static_cast<std::uint32_t>(now.count()) - static_cast<std::uint32_t>(stamp);
    const EventTime delay{offset_ ? static_cast<std::int32_t>(offset - *offset_) : 0};
    const bool expired = now - sampledAt_ > sampleLifetime;
    if (!offset_ || expired || delay < EventTime::zero() || delay > longestDelay) {
        offset_ = offset;
        sampledAt_ = now;
        return now;
    }
    return now - delay;
}

} // namespace velmora
