#pragma once

#include "ui/blocks/sb_button.h"
#include "ui/guard/answer_guard.h"

namespace velmora {

/// A button that answers the waiting alert once the guard lets it; until then it is paler and takes no press.
/// It answers with the alert for which it was pressed, by mouse, key or accessible action.
class AnswerButton : public SBButton {
    Q_OBJECT

public:
    AnswerButton(Command answer, AnswerGuard& guard, const QString& text, const SBButtonStyle& style,
                 QWidget* parent);

protected:
    bool event(QEvent* event) override;

private:
    void followGuard();

    AnswerGuard& guard_;
    std::optional<AnswerGuard::Press> press_; ///< in progress
    bool byMouse_ = false;                    ///< the mouse began the press
};

} // namespace velmora
