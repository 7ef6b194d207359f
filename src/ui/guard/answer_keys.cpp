#include "ui/guard/answer_keys.h"

#include <Qt>

#include <algorithm>

namespace velmora {

namespace {

/// Whether press and release happened at the same moment. Under a screen reader releases arrive late and
/// without a time stamp: then a press that is not clearly younger than the arrival belongs to the release.
bool followsAtOnce(const AnswerKeys::Event& press, const AnswerKeys::Event& release) {
    constexpr EventTime inaccuracy{10};
    if (press.stamp == 0 || release.stamp != 0)
        return press.stamp != 0 && press.stamp == release.stamp;
    return press.time <= release.time + inaccuracy;
}

} // namespace

bool AnswerKeys::contains(int key) {
    constexpr int keys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select, Qt::Key_Escape};
    return std::ranges::find(keys, key) != std::end(keys);
}

AnswerKeys::Press AnswerKeys::pressed(const Event& press) {
    const bool wasHeld = !held_.insert(press.key).second;
    const auto release = lastRelease_.find(press.key);
    const bool repeats = release != lastRelease_.end() && followsAtOnce(press, release->second);
    return {press.flagged || wasHeld || repeats, held_.size() == 1};
}

void AnswerKeys::released(const Event& release) {
    held_.erase(release.key);
    lastRelease_[release.key] = release;
}

} // namespace velmora
