#include "ui/guard/key_presses.h"

#include <Qt>

#include <algorithm>

namespace velmora {

namespace {

/// Whether the press follows the release at once, as a repeat does. Under a screen reader releases arrive
/// late and without a time stamp; then a press that is not clearly later than the arrival counts as a repeat.
bool followsAtOnce(const KeyPresses::Event& press, const KeyPresses::Event& release) {
    constexpr EventTime inaccuracy{10};
    if (press.stamp == 0 || release.stamp != 0)
        return press.stamp != 0 && press.stamp == release.stamp;
    return press.time <= release.time + inaccuracy;
}

} // namespace

bool KeyPresses::isAnswerKey(int key) {
    constexpr int keys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select, Qt::Key_Escape};
    return std::ranges::find(keys, key) != std::end(keys);
}

KeyPresses::Press KeyPresses::pressed(const Event& press) {
    const bool wasHeld = !held_.try_emplace(press.code, press.answers).second;
    const auto release = lastRelease_.find(press.code);
    const bool repeats = release != lastRelease_.end() && followsAtOnce(press, release->second);
    const bool othersUp =
        std::ranges::none_of(held_, [&](const auto& key) { return key.first != press.code && key.second; });
    return {press.flagged || wasHeld || repeats, othersUp};
}

void KeyPresses::released(const Event& release) {
    held_.erase(release.code);
    lastRelease_[release.code] = release;
}

} // namespace velmora
