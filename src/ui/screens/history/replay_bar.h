#pragma once

#include "model/mission_record.h"

#include <QWidget>

namespace velmora {

class IconButton;
class ReplayPlayer;
class ReplaySlider;
class SegmentedChoice;
class Text;

/// Controls of the replay: play button, time slider with marks and gaps, and speed. Space plays and pauses;
/// the arrow keys step.
class ReplayBar : public QWidget {
    Q_OBJECT

public:
    ReplayBar(ReplayPlayer& player, QWidget* parent);

    void setRecord(const MissionRecord& record);
    /// Moves the keyboard focus to the slider.
    void focusSlider();
    /// Plays or pauses.
    void toggle();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void refresh();

    ReplayPlayer& player_;
    IconButton* play_;
    ReplaySlider* slider_;
    Text* time_;
    SegmentedChoice* speed_;
};

} // namespace velmora
