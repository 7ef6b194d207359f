#include "ui/screens/history/replay_player.h"

#include <algorithm>
#include <utility>

namespace velmora {

ReplayPlayer::ReplayPlayer(QObject* parent) : QObject(parent) {
    connect(&frames_, &UiTimer::timeout, this, &ReplayPlayer::advance);
}

void ReplayPlayer::load(double length) {
    frames_.stop();
    length_ = length;
    position_ = length;
    emit changed();
}

void ReplayPlayer::play() {
    if (position_ >= length_)
        position_ = 0;
    lastFrame_ = UiClock::current().now();
    frames_.start();
    emit changed();
}

void ReplayPlayer::pause() {
    if (!frames_.isActive())
        return;
    frames_.stop();
    emit changed();
}

void ReplayPlayer::setPosition(double seconds) {
    position_ = std::clamp(seconds, 0.0, length_);
    emit changed();
}

void ReplayPlayer::advance() {
    const auto now = UiClock::current().now();
    position_ += std::chrono::duration<double>(now - std::exchange(lastFrame_, now)).count() * speed_;
    if (position_ >= length_) {
        position_ = length_;
        frames_.stop();
    }
    emit changed();
}

} // namespace velmora
