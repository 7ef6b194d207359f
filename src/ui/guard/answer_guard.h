#pragma once

#include "store/app_store.h"
#include "ui/guard/key_presses.h"
#include "ui/guard/press_rule.h"
#include "ui/look/ui_clock.h"

class QKeyEvent;
class QWidget;

namespace velmora {

/// The one guard before every answer that the window can give: by its buttons, its menu, its shortcuts and
/// its accessible actions. It watches the program's input events, drops key presses that may not answer, and
/// passes the owner's answer to the store with the alert that he saw. Repeats of a held key trigger no button
/// and no shortcut.
class AnswerGuard : public QObject {
    Q_OBJECT

public:
    /// A press that counts, from its beginning to the answer that it gives.
    struct Press {
        AlertId alert;
        int round; ///< the guard time after which it began
    };

    /// Watches the window, which must not be shown yet.
    AnswerGuard(AppStore& store, QWidget& window);

    /// Call when the card of the waiting alert has been painted.
    void cardPainted();
    /// Whether a press that begins now would count.
    bool isOpen() const;
    /// The press that begins now, by an input event with this time stamp or without any event; absent if it
    /// does not count.
    std::optional<Press> admit(std::uint64_t stamp = 0);
    /// Sends the owner's answer, unless the guard time has begun again since the press.
    void answer(Command command, const std::optional<Press>& press);

signals:
    /// The guard opened or closed. When it closes, presses that are under way do not count any more.
    void changed();
    /// An answer went out.
    void answered();

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
    void invalidatePresses();
    void update();
    bool dropsKey(QKeyEvent& key);
    bool dropsAnswerKey(QKeyEvent& key);
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
    std::optional<Verdict> verdict_; ///< on the last possible shortcut
    int round_ = 0;                  ///< counts the guard times
    bool wasOpen_ = false;
};

} // namespace velmora
