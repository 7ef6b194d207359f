#include "ui/screens/history/replay_player.h"

#include "ui/look/motion.h"

#include <algorithm>

namespace velmora {

ReplayPlayer::ReplayPlayer(QObject* parent) : QObject(parent) {
    timer_.setInterval(Motion::frame);
    connect(&timer_, &QTimer::timeout, this, &ReplayPlayer::advance);
}

void ReplayPlayer::load(double length) {
    timer_.stop();
    length_ = length;
    position_ = length;
    emit changed();
}

void ReplayPlayer::play() {
    if (position_ >= length_)
        position_ = 0;
    sinceLast_.start();
    timer_.start();
    emit changed();
}

void ReplayPlayer::pause() {
    if (!timer_.isActive())
        return;
    timer_.stop();
    emit changed();
}

void ReplayPlayer::setPosition(double seconds) {
    position_ = std::clamp(seconds, 0.0, length_);
    emit changed();
}

void ReplayPlayer::advance() {
    constexpr double millisecondsInSecond = 1000;
    position_ += static_cast<double>(sinceLast_.restart()) / millisecondsInSecond * speed_;
    if (position_ >= length_) {
        position_ = length_;
        timer_.stop();
    }
    emit changed();
}

} // namespace velmora
