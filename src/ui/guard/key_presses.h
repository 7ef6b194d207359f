#pragma once

#include "ui/guard/press_rule.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

namespace velmora {

/// Distinguishes new key presses from repeats of a held key. Qt's auto-repeat flag is not enough: on X11 it
/// misses repeats under load. A repeat has the time stamp of the release just before it; a new press never
/// has.
class KeyPresses {
public:
    /// Whether the key, a Qt::Key, presses buttons or gives answers: Return, Enter, Space, Select or Escape.
    static bool isAnswerKey(int key);

    /// A press or release.
    struct Event {
        std::uint32_t code = 0;  ///< of the physical key, whose name can change while it is held
        bool answers = false;    ///< an answer key
        std::uint64_t stamp = 0; ///< of the window system; 0 for none
        EventTime time{};        ///< when a press happened, or when a release arrived
        bool flagged = false;    ///< Qt's auto-repeat flag
    };
    struct Press {
        bool isRepeat = false;
        bool othersUp = true; ///< no other answer key is held
    };

    Press pressed(const Event& press);
    void released(const Event& release);
    bool anyHeld() const { return !held_.empty(); }
    /// Notes which keys the keyboard reports as up. They are not held at a press with a later time stamp,
    /// even if the release was lost: that of a key which closed a menu or a dialog may reach no window.
    void noticeUp(const std::function<bool(std::uint32_t code)>& isUp, EventTime now);
    /// Forgets which keys are held. Call when another program gets their releases.
    void forget() { held_.clear(); }

private:
    struct Held {
        bool answers = false;
        std::optional<EventTime> upAt; ///< when the keyboard first reported it as up
    };

    static bool wasHeldAt(const Event& press, const Held& key);

    std::map<std::uint32_t, Held> held_; ///< by code; pressed, and no release arrived
    std::map<std::uint32_t, Event> lastRelease_;
};

} // namespace velmora
