#pragma once

#include "store/app_store.h"
#include "ui/guard/answer_keys.h"
#include "ui/guard/press_rule.h"

#include <QTimer>

#include <functional>

class QInputEvent;
class QKeyEvent;
class QWidget;

namespace velmora {

/// The one guard before every answer that the window can give: by its buttons, its menu, its shortcuts and
/// its accessible actions. It watches the window's input events, withholds key presses that may not answer,
/// and passes the owner's answer to the store with the alert that he saw.
class AnswerGuard : public QObject {
    Q_OBJECT

public:
    /// A press that counts, from its beginning to the answer that it gives.
    struct Press {
        AlertId alert;
        int round; ///< the guard time that it came through
    };

    /// Installs itself on the window, which must not be shown yet. `clock` is steady.
    AnswerGuard(AppStore& store, QWidget& window, std::function<EventTime()> clock);

    /// The card of the waiting alert has been painted.
    void cardPainted();
    /// Whether a press that begins now would count.
    bool isOpen() const;
    /// The press that begins now, by an input event with this time stamp or without any event; absent if it
    /// does not count.
    std::optional<Press> admit(std::uint64_t stamp = 0);
    /// Gives the owner's answer, unless the alert, or what he could see of it, has changed since the press
    /// began.
    void answer(Command command, const std::optional<Press>& press);

signals:
    /// The guard opened or closed. When it closes, presses that are under way do not count any more.
    void changed();
    /// An answer went out to this alert.
    void answered(const velmora::AlertId& alert);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followAlert();
    void followWindow(const QEvent& event);
    void beat();
    void closeAgain();
    void update();
    bool withholds(QKeyEvent& key);
    bool mayPress(const QKeyEvent& key);

    AppStore& store_;
    QWidget& window_;
    std::function<EventTime()> clock_;
    PressRule rule_;
    EventClock eventClock_;
    AnswerKeys keys_;
    QTimer beat_; ///< runs while an alert waits
    std::optional<AlertId> alert_;
    int round_ = 0; ///< counts the guard times
    bool wasOpen_ = false;
    std::uint64_t judgedStamp_ = 0; ///< of the last key press, which comes twice: as shortcut and as press
    int judgedKey_ = 0;
    bool judgedMayPress_ = false;
};

/// The steady clock of the running program.
EventTime steadyTime();

} // namespace velmora
