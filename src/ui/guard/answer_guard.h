#pragma once

#include "store/app_store.h"
#include "ui/guard/key_presses.h"
#include "ui/guard/press_rule.h"
#include "ui/look/ui_clock.h"

class QKeyEvent;
class QWidget;

namespace velmora {

/// Guards every answer that the window can give: by its buttons, its menu, its shortcuts and its accessible
/// actions. It filters the program's input events, drops key presses that may not answer, and passes the
/// owner's answer to the store with the alert that was shown. Repeats of a held key trigger no button, no
/// shortcut and no deletion.
class AnswerGuard : public QObject {
    Q_OBJECT

public:
    /// A press that counts, from its beginning to its answer.
    struct Press {
        AlertId alert;
        int round; ///< number of the guard time after which it began
    };

    /// `window` owns the guard and must not be shown yet.
    AnswerGuard(AppStore& store, QWidget& window);

    /// Call when the card of the waiting alert has been painted.
    void cardPainted();
    /// Whether a press that begins now would count.
    bool isOpen() const;
    /// Admits a press that begins with an input event of this time stamp, or without an event (0). nullopt if
    /// the press does not count.
    std::optional<Press> admit(std::uint64_t stamp = 0);
    /// Sends the answer, unless the guard time has restarted since the press began.
    void answer(Command command, const std::optional<Press>& press, CommandSource source);

signals:
    /// The guard opened or closed. When it closes, presses in progress no longer count.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A key press is delivered twice: as a possible shortcut, then as a press.
    struct Verdict {
        int key = 0;
        std::uint64_t stamp = 0;
        bool mayPress = false;
    };

    void followAlert();
    void followWindow(const QEvent& event);
    void beat();
    bool passesStallCheck();
    void noticeKeysUp();
    void invalidatePresses();
    void update();
    bool dropsKey(QKeyEvent& key);
    bool dropsPress(QKeyEvent& key);
    bool mayPress(const QKeyEvent& key);
    KeyPresses::Event eventOf(const QKeyEvent& key, EventTime time) const;

    AppStore& store_;
    QWidget& window_;
    PressRule rule_;
    EventClock eventClock_;
    KeyPresses keys_;
    UiClock& clock_ = UiClock::current();
    UiTimer beat_{std::chrono::milliseconds(50)}; ///< runs while an alert waits
    std::optional<AlertId> alert_;
    std::optional<Verdict> verdict_; ///< on the last ShortcutOverride
    int round_ = 0;                  ///< incremented when presses in progress become invalid
    bool wasOpen_ = false;
};

} // namespace velmora
