#pragma once

#include "ui/look/motion.h"
#include "ui/look/ui_clock.h"

namespace velmora {

/// The clock of a replay: a position in seconds, from 0 to the mission's length, that advances while playing.
class ReplayPlayer : public QObject {
    Q_OBJECT

public:
    explicit ReplayPlayer(QObject* parent);

    /// Loads a mission of `length` seconds, paused at its end, where the map shows the complete paths.
    void load(double length);
    double length() const { return length_; }
    double position() const { return position_; }
    bool isPlaying() const { return frames_.isActive(); }

    /// Restarts from the beginning if the position is at the end.
    void play();
    void pause();
    void setPosition(double seconds);
    void setSpeed(double speed) { speed_ = speed; }

signals:
    /// The position changed, or playing started or paused.
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
