#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace velmora {

/// A moment on the clock of the user interface, which counts from boot.
using EventTime = std::chrono::milliseconds;

/// Decides from times alone whether a press may answer an alert: only if it began 600 ms or more after the
/// alert's card was first painted, in a window that was active for as long, with no stall of the event loop
/// in between.
class PressRule {
public:
    static constexpr EventTime guardTime{600};
    /// Longest time between two calls of `beat`. After a longer one the event loop has stalled, and presses
    /// made for an older picture may still be queued.
    static constexpr EventTime longestGap{250};

    /// Call when the alert's card is first painted, and when it is not shown any more.
    void cardPainted(EventTime now);
    void cardGone() { painted_.reset(); }
    bool cardWasPainted() const { return painted_.has_value(); }
    void windowActivated(EventTime now) { activated_ = now; }
    void windowDeactivated() { activated_.reset(); }
    /// Restarts the guard time, for example after an answer.
    void restart(EventTime now) { restarted_ = now; }
    /// Reports that the event loop runs; called several times a second while a card is shown. After a stall
    /// it restarts the guard time and returns false.
    bool beat(EventTime now);

    /// Whether a press that began at this moment counts.
    bool counts(EventTime began) const;

private:
    std::optional<EventTime> painted_;
    std::optional<EventTime> activated_;
    EventTime restarted_{};
    EventTime lastBeat_{};
};

/// Converts the window system's time stamps to that clock. The offset between the two clocks is
/// unknown, so the fastest event of the last minute is taken as delivered without delay.
class EventClock {
public:
    /// When the event happened. `stamp`: milliseconds, of which the low 32 bits are used; 0 for an event
    /// without a time stamp, which gives `now`.
    EventTime began(std::uint64_t stamp, EventTime now);

private:
    std::optional<std::uint32_t> offset_; ///< clock minus stamp of the promptest event
    EventTime sampledAt_{};
};

} // namespace velmora
