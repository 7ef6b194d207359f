#pragma once

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

    struct Press {
        bool isRepeat = false;
        bool othersUp = true; ///< none of the other keys is held
    };

    /// `stamp` is the event's time stamp, 0 for none; `flagged` is Qt's auto-repeat flag.
    Press pressed(int key, std::uint64_t stamp, bool flagged);
    void released(int key, std::uint64_t stamp);
    /// Forgets which keys are held: another window gets their releases.
    void forget() { held_.clear(); }

private:
    std::set<int> held_;
    std::map<int, std::uint64_t> releasedAt_;
};

} // namespace velmora
