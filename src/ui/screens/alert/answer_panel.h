#pragma once

#include "ui/guard/answer_button.h"

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

signals:
    /// The owner clicked "Hide" while the server is silent.
    void hideRequested();

private:
    QWidget* buildButtons(AnswerGuard& guard);
    void showFailure(Command command, const QString& reason);
    void showMessage(const QString& message);
    void offer(SBButton* button, bool offered);

    AppStore& store_;
    Text* note_;
    MessageLine* message_;
    AnswerButton* ignore_;
    AnswerButton* launch_;
    SBButton* hide_; ///< takes the place of "Ignore" while the server is silent
    QString failure_;
    UiTimer failureTimer_;
};

} // namespace velmora
