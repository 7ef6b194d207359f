#include "ui/guard/key_presses.h"

#include <Qt>

#include <algorithm>

namespace velmora {

namespace {

constexpr EventTime inaccuracy{10}; ///< of the time of an event

/// Whether the press follows the release at once, as a repeat does. Under a screen reader releases arrive
/// late and without a time stamp; then a press that is not clearly later than the arrival counts as a repeat.
bool followsAtOnce(const KeyPresses::Event& press, const KeyPresses::Event& release) {
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
    const auto found = held_.find(press.code);
    const bool wasHeld = found != held_.end() && wasHeldAt(press, found->second);
    held_[press.code] = {press.answers, std::nullopt};
    const auto release = lastRelease_.find(press.code);
    const bool repeats = release != lastRelease_.end() && followsAtOnce(press, release->second);
    const bool othersUp = std::ranges::none_of(held_, [&](const auto& key) {
        return key.first != press.code && key.second.answers && wasHeldAt(press, key.second);
    });
    return {press.flagged || wasHeld || repeats, othersUp};
}

void KeyPresses::released(const Event& release) {
    held_.erase(release.code);
    lastRelease_[release.code] = release;
}

void KeyPresses::noticeUp(const std::function<bool(std::uint32_t code)>& isUp, EventTime now) {
    for (auto& [code, key] : held_)
        if (!key.upAt && isUp(code))
            key.upAt = now;
}

bool KeyPresses::wasHeldAt(const Event& press, const Held& key) {
    return !key.upAt || press.stamp == 0 || press.time <= *key.upAt + inaccuracy;
}

} // namespace velmora
