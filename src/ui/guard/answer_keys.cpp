#include "ui/guard/answer_keys.h"

#include <Qt>

#include <algorithm>

namespace velmora {

bool AnswerKeys::contains(int key) {
    constexpr int keys[] = {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select, Qt::Key_Escape};
    return std::ranges::find(keys, key) != std::end(keys);
}

AnswerKeys::Press AnswerKeys::pressed(int key, std::uint64_t stamp, bool flagged) {
    const auto release = releasedAt_.find(key);
    const bool afterItsRelease = stamp != 0 && release != releasedAt_.end() && release->second == stamp;
    const bool wasHeld = !held_.insert(key).second;
    return {flagged || afterItsRelease || wasHeld, held_.size() == 1};
}

void AnswerKeys::released(int key, std::uint64_t stamp) {
    held_.erase(key);
    releasedAt_[key] = stamp;
}

} // namespace velmora
