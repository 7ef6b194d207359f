#pragma once

#include "ui/guard/press_rule.h"

#include <cstdint>
#include <map>
#include <set>

namespace velmora {

/// The keys that press buttons and give answers (Return, Enter, Space, Select, Escape): tells the press of a
/// finger from the repeats of a held key. Qt's own flag is not enough: on X11 it misses repeats under load. A
/// repeat carries the time stamp of the release just before it, which a finger never does.
class AnswerKeys {
public:
    /// Whether `key`, a Qt::Key, is one of them.
    static bool contains(int key);

    /// An event of one key.
    struct Event {
        int key = 0;
        std::uint64_t stamp = 0; ///< of the window system; 0 for none
        EventTime time{};        ///< of a press: when it happened; of a release: when it arrived
        bool flagged = false;    ///< Qt's auto-repeat flag
    };
    struct Press {
        bool isRepeat = false;
        bool othersUp = true; ///< none of the other keys is held
    };

    Press pressed(const Event& press);
    void released(const Event& release);
    /// Forgets which keys are held: another window gets their releases.
    void forget() { held_.clear(); }

private:
    std::set<int> held_;
    std::map<int, Event> lastRelease_; ///< by key
};

} // namespace velmora
