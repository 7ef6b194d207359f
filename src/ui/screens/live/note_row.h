#pragma once

#include "ui/look/transition.h"
#include "ui/screens/live/latest_notice.h"

#include <QWidget>

namespace velmora {

class Text;

/// The row below the live map: a note for the owner, for ten seconds the newest caution or alert or why a
/// command failed, and at the right what limits the drone or the picture.
class NoteRow : public QWidget {
    Q_OBJECT

public:
    NoteRow(AppStore& store, QWidget* parent);

    void refresh();
    /// Uses the height for low windows.
    void setLow(bool low);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    class Message;
    class Remark;

    /// A command that failed.
    struct Failure {
        QString text;
        Date at;
        Phase phase; ///< in which it failed
    };

    void showFailure(Command command, const QString& reason);
    void dropOldFailure();
    void dropFailure();
    void showNewest();
    QString remark() const;
    void place();

    AppStore& store_;
    LatestNotice latest_;
    std::optional<Failure> failure_;
    Text* note_;
    Message* message_;
    Remark* remark_;
    Transition shown_; ///< of the message: 0 hidden, 1 shown
    UiTimer failureTimer_{std::chrono::milliseconds(250)};
    bool low_ = false;
};

} // namespace velmora
