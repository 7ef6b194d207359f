#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace velmora {

/// A moment on the steady clock of the event loop.
using EventTime = std::chrono::milliseconds;

/// Decides from times alone whether a press may answer an alert: only if it began 600 ms or more after the
/// alert's card was first painted, in a window that was active for as long, with no stall of the event loop
/// in between.
class PressRule {
public:
    static constexpr EventTime guardTime{600};
    /// Between two calls of `beat`; after a longer one the event loop has stalled, and presses made for an
    /// older picture may still be queued.
    static constexpr EventTime longestGap{250};

    /// The alert's card is on the screen, or no card of it is.
    void cardPainted(EventTime now);
    void cardGone() { painted_.reset(); }
    bool cardWasPainted() const { return painted_.has_value(); }
    void windowActivated(EventTime now) { activated_ = now; }
    void windowDeactivated() { activated_.reset(); }
    /// Begins the guard time again, as after an answer.
    void restart(EventTime now) { restarted_ = now; }
    /// The event loop runs; called several times a second while a card is up. Returns false after a stall,
    /// which begins the guard time again.
    bool beat(EventTime now);

    /// Whether a press that began at this moment counts.
    bool counts(EventTime began) const;

private:
    std::optional<EventTime> painted_;
    std::optional<EventTime> activated_;
    EventTime restarted_{};
    EventTime lastBeat_{};
};

/// Tells when an input event happened, on the steady clock, from the time stamps of the window system. Their
/// zero is unknown, so the promptest event of the last minute counts as delivered without delay.
class EventClock {
public:
    /// `stamp`: milliseconds of which the low 32 bits count; 0 for an event without a time stamp.
    EventTime began(std::uint64_t stamp, EventTime now);

private:
    std::optional<std::uint32_t> offset_; ///< steady clock minus stamp of the promptest event
    EventTime sampledAt_{};
};

} // namespace velmora
