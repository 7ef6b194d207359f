#pragma once

#include "model/mission_record.h"

#include <QWidget>

namespace velmora {

class IconButton;
class ReplayPlayer;
class ReplaySlider;
class SegmentedChoice;
class Text;

/// Plays a mission: button, time slider with marks and gaps, and the speed. Space plays and pauses, arrows
/// step.
class ReplayBar : public QWidget {
    Q_OBJECT

public:
    ReplayBar(ReplayPlayer& player, QWidget* parent);

    void setRecord(const MissionRecord& record);
    /// Gives the slider the keyboard.
    void focusSlider();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void refresh();
    void toggle();

    ReplayPlayer& player_;
    IconButton* play_;
    ReplaySlider* slider_;
    Text* time_;
    SegmentedChoice* speed_;
};

} // namespace velmora
