#include "ui/approval_buttons.h"
#include "ui/look/words.h"
#include "ui/served_fixture.h"
#include "ui/tray/tray.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QSignalSpy>

namespace velmora {

namespace {

const QString offer = QStringLiteral("Launch (approve)");

/// Alerts of a server that replace each other while input is in progress.
class ApprovalGuardTest : public ServedTest {
protected:
    void alert(const std::string& id) {
        LiveState state = mission(Phase::awaitingApproval);
        state.missionId = id;
        serve(state);
    }
    QAbstractButton& button(const QString& name) {
        EXPECT_TRUE(waitUntil([&] { return shows(name); })) << name.toStdString();
        return *find<QAbstractButton>(name);
    }
    /// Waits until the guard is open, then presses and holds the mouse on the button.
    QAbstractButton& hold(const QString& name) {
        QAbstractButton& held = button(name);
        outwaitGuard();
        mouse(QEvent::MouseButtonPress, held);
        EXPECT_TRUE(held.isDown());
        return held;
    }
    /// Drags the held mouse off the button and back, then releases it.
    void dragBackAndRelease(QAbstractButton& pressed) {
        mouse(QEvent::MouseMove, pressed, true);
        mouse(QEvent::MouseMove, pressed);
        mouse(QEvent::MouseButtonRelease, pressed);
        settle();
    }
    std::vector<std::string> launches() const {
        std::vector<std::string> missions;
        for (const FakeLink::Posted& post : link.posts)
            if (post.command == Command::approve)
                missions.push_back(post.mission.value_or(""));
        return missions;
    }
    using Missions = std::vector<std::string>;
};

TEST_F(ApprovalGuardTest, AClickStartedForOneAlertDoesNotAnswerTheNext) {
    window();
    alert("M-1");
    QAbstractButton& pressed = hold(launch);
    alert("M-2");
    outwaitGuard();
    dragBackAndRelease(pressed);
    EXPECT_EQ(launches(), Missions());
    mouse(QEvent::MouseButtonRelease, hold(launch));
    EXPECT_EQ(launches(), Missions({"M-2"}));
}

TEST_F(ApprovalGuardTest, DistinguishesAlertsWithoutAMissionId) {
    window();
    LiveState state = mission(Phase::awaitingApproval);
    state.missionId.reset();
    const auto changes = {+[](LiveState& next) { *next.missionStart -= Seconds{7}; },
                          +[](LiveState& next) { *next.approvalDeadline += Seconds{7}; },
                          +[](LiveState& next) { next.visitor->cameraId = "garden"; }};
    for (const auto change : changes) {
        serve(state);
        QAbstractButton& pressed = hold(launch);
        change(state);
        serve(state);
        outwaitGuard();
        dragBackAndRelease(pressed);
        EXPECT_EQ(launches(), Missions());
    }
}

TEST_F(ApprovalGuardTest, AKeyHeldForOneAlertDoesNotAnswerTheNext) {
    window();
    alert("M-1");
    outwaitGuard();
    QAbstractButton& focused = button(launch);
    focused.setFocus();
    QTest::keyPress(window().windowHandle(), Qt::Key_Space);
    EXPECT_TRUE(focused.isDown());
    alert("M-2");
    EXPECT_EQ(qobject_cast<QAbstractButton*>(QApplication::focusWidget()), nullptr);
    outwaitGuard();
    press(Qt::Key_Return, Qt::ControlModifier); // while the space bar is still down
    QTest::keyRelease(window().windowHandle(), Qt::Key_Space);
    EXPECT_EQ(launches(), Missions());
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(launches(), Missions({"M-2"}));
}

TEST_F(ApprovalGuardTest, AMouseHeldWhenAnAlertEndsDoesNotBlockKeysForTheNext) {
    window();
    alert("M-1");
    QAbstractButton& held = hold(launch);
    serve(mission(Phase::docked));
    ASSERT_TRUE(waitUntil([&] { return !shows(launch); }));
    alert("M-2");
    button(launch).setFocus();
    outwaitGuard();
    EXPECT_EQ(&held, find<QAbstractButton>(launch));
    press(Qt::Key_Space);
    EXPECT_EQ(launches(), Missions({"M-2"}));
}

TEST_F(ApprovalGuardTest, ADoubleClickLaunchesOnce) {
    window();
    alert("M-1");
    outwaitGuard();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                            QEvent::MouseButtonRelease})
        mouse(type, button(launch));
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(launches(), Missions({"M-1"}));
}

TEST_F(ApprovalGuardTest, IgnoresInputWhileTheCardOpens) {
    window();
    alert("M-1");
    QAbstractButton& underMouse = button(launch);
    serve(mission(Phase::docked));
    alert("M-2"); // while the first card is still closing
    QTest::keyPress(window().windowHandle(), Qt::Key_Return, Qt::ControlModifier);
    mouse(QEvent::MouseButtonPress, underMouse);
    pressByAccessibility(offer);
    outwaitGuard();
    QTest::keyRelease(window().windowHandle(), Qt::Key_Return, Qt::ControlModifier);
    mouse(QEvent::MouseButtonRelease, underMouse);
    settle();
    EXPECT_EQ(launches(), Missions());
}

TEST_F(ApprovalGuardTest, ActivatingTheWindowRestartsTheGuard) {
    window();
    alert("M-1");
    outwaitGuard();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return other.isActiveWindow(); }));
    QAbstractButton& pressed = button(launch);
    mouse(QEvent::MouseButtonPress, pressed);
    window().activateWindow();
    ASSERT_TRUE(waitUntil([&] { return window().isActiveWindow(); }));
    press(Qt::Key_Return, Qt::ControlModifier);
    mouse(QEvent::MouseButtonRelease, pressed);
    EXPECT_EQ(launches(), Missions());
    outwaitGuard();
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(launches(), Missions({"M-1"}));
}

TEST_F(ApprovalGuardTest, DoesNotAnswerWhileTheLinkIsSilent) {
    Tray tray(store());
    window();
    alert("M-1");
    outwaitGuard();
    const AlertId seen = *store().waitingAlert();
    now += Seconds{3}; // without a tick, as after a pause of the program
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(store().answer(Command::approve, seen, CommandSource::card));
    EXPECT_FALSE(button(launch).isEnabled());
    EXPECT_EQ(launches(), Missions());
}

TEST_F(ApprovalGuardTest, ATrayMenuAnswersOnlyTheAlertItWasOpenedFor) {
    Tray tray(store());
    const QSignalSpy windowCalls(&tray, &Tray::openRequested);
    QAction* line = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets())
        for (QAction* action : widget->actions())
            if (qobject_cast<QMenu*>(widget) && action->text() == launch)
                line = action;
    ASSERT_NE(line, nullptr);
    const auto open = [&] { emit qobject_cast<QMenu*>(line->associatedObjects().front())->aboutToShow(); };
    open();
    alert("M-1");
    line->trigger();
    open();
    alert("M-2");
    line->trigger();
    EXPECT_EQ(launches(), Missions());
    EXPECT_EQ(windowCalls.count(), 2) << "the menu opens the window instead of answering";
    open();
    line->trigger();
    EXPECT_EQ(launches(), Missions({"M-2"}));
}

TEST_F(ApprovalGuardTest, TheJournalTellsWhereEachAnswerWasGiven) {
    window();
    auto next = [this, number = 0]() mutable {
        alert("M-" + std::to_string(++number));
        outwaitGuard();
    };
    next();
    press(Qt::Key_Return, Qt::ControlModifier);
    next();
    for (QAction* action : window().findChildren<QAction*>())
        if (action->text() == offer)
            action->trigger();
    next();
    button(ignore).click();
    next();
    press(Qt::Key_Escape, Qt::ControlModifier);
    QStringList given;
    for (const QByteArray& line : content("journal.jsonl").split('\n'))
        if (const auto entry = decode<JournalEntry>(line.toStdString()))
            given.append(toQString(rawValue(entry.value->command)) + ' ' +
                         toQString(rawValue(entry.value->source)));
    EXPECT_EQ(given, QStringList({"approve shortcut", "approve menu", "ignore card", "ignore shortcut"}));
}

TEST_F(ApprovalGuardTest, AnAlertClosesEveryMenuAndDialog) {
    serve(mission(Phase::docked));
    QMenu otherMenu;
    otherMenu.addAction("Line");
    auto menus = window().findChildren<QMenu*>();
    menus.append(&otherMenu);
    QDialog dialog;
    for (const char* next : {"M-1", "M-2"}) {
        dialog.show();
        for (QMenu* menu : menus)
            menu->popup(window().mapToGlobal(QPoint(20, 20)));
        ASSERT_TRUE(std::ranges::any_of(menus, &QMenu::isVisible));
        alert(next);
        EXPECT_TRUE(std::ranges::none_of(menus, &QMenu::isVisible)) << next;
        EXPECT_FALSE(dialog.isVisible()) << next;
    }
}

} // namespace

} // namespace velmora
