#pragma once

#include "ui/look/motion.h"
#include "ui/look/ui_clock.h"

namespace velmora {

/// The clock of a replay: a position between 0 and the mission's length that play moves on.
class ReplayPlayer : public QObject {
    Q_OBJECT

public:
    explicit ReplayPlayer(QObject* parent);

    /// A new mission of so many seconds: paused at its end, which is the whole picture.
    void load(double length);
    double length() const { return length_; }
    double position() const { return position_; }
    bool isPlaying() const { return frames_.isActive(); }

    /// From the end it begins anew.
    void play();
    void pause();
    void setPosition(double seconds);
    void setSpeed(double speed) { speed_ = speed; }

signals:
    /// The position changed, or play began or paused.
    void changed();

private:
    void advance();

    UiTimer frames_{Motion::frame};
    std::chrono::milliseconds lastFrame_{};
    double length_ = 0;   ///< seconds
    double position_ = 0; ///< seconds
    double speed_ = 1;
};

} // namespace velmora
