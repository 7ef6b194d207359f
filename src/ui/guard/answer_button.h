#pragma once

#include "ui/blocks/sb_button.h"
#include "ui/guard/answer_guard.h"

namespace velmora {

/// A button that answers the waiting alert. While the guard is closed it is paler and ignores presses. It
/// answers the alert that waited when the press began, by mouse, key or accessible action.
class AnswerButton : public SBButton {
    Q_OBJECT

public:
    AnswerButton(Command answer, CommandSource source, AnswerGuard& guard, const QString& text,
                 const SBButtonStyle& style, QWidget* parent);

protected:
    bool event(QEvent* event) override;

private:
    void followGuard();

    AnswerGuard& guard_;
    std::optional<AnswerGuard::Press> press_; ///< in progress
    bool byMouse_ = false;                    ///< the mouse began the press
};

} // namespace velmora
