#pragma once

#include "ui/guard/answer_button.h"

class QVBoxLayout;

namespace velmora {

class MessageLine;
class Text;

/// The lower end of the approval card: a note or a message, and the answers. It shows whether an answer has
/// arrived, and that nothing can be answered while the server is silent.
class AnswerPanel : public QWidget {
    Q_OBJECT

public:
    AnswerPanel(AppStore& store, AnswerGuard& guard, QWidget* parent);

    /// Forgets the messages about the last alert.
    void reset();
    void refresh();
    /// Space between the note and the buttons, pixels.
    void setGap(int gap);
    /// Offers "Hide" instead of "Ignore" also over a live link.
    void setHideable(bool hideable);

signals:
    /// The owner clicked "Hide".
    void hideRequested();

private:
    QWidget* buildButtons(AnswerGuard& guard);
    void showFailure(Command command, const QString& reason);
    void showMessage(const QString& message);
    void offer(SBButton* button, bool offered);
    void releaseFocus(SBButton* button);

    AppStore& store_;
    Text* note_;
    MessageLine* message_;
    AnswerButton* ignore_;
    AnswerButton* launch_;
    SBButton* hide_; ///< replaces "Ignore" while the server is silent
    QVBoxLayout* rows_;
    bool hideable_ = false;
    QString failure_;
    UiTimer failureTimer_;
};

} // namespace velmora
