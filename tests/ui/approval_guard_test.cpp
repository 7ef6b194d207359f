#include "ui/served_fixture.h"
#include "ui/tray/tray.h"

#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QMouseEvent>
#include <QSignalSpy>

namespace velmora {

namespace {

const QString launch = QStringLiteral("Launch drone"), ignore = QStringLiteral("Ignore"),
              offer = QStringLiteral("Launch (approve)");

/// Alerts of a server that come and give way to others, and hands that are too quick or too slow for them.
class ApprovalGuardTest : public ServedTest {
protected:
    void alert(const std::string& id) {
        LiveState state = mission(Phase::awaitingApproval);
        state.missionId = id;
        serve(state);
    }
    void namelessAlert(double begun) {
        LiveState state = mission(Phase::awaitingApproval);
        state.missionId.reset();
        state.missionStart = now + Seconds{begun};
        serve(state);
    }
    QAbstractButton& button(const QString& name) {
        EXPECT_TRUE(waitUntil([&] { return shows(name); })) << name.toStdString();
        return *find<QAbstractButton>(name);
    }
    /// Holds the mouse on a button, as soon as its guard lets it.
    QAbstractButton& hold(const QString& name) {
        QAbstractButton& held = button(name);
        EXPECT_TRUE(waitUntil([&] {
            QTest::mousePress(&held, Qt::LeftButton);
            return held.isDown();
        }));
        return held;
    }
    /// Tries the other answer by key until the guard is over, and lets go of it. The focus stays where it is.
    void outwaitGuard() {
        QAbstractButton& tried = button(ignore);
        EXPECT_TRUE(waitUntil([&] {
            QTest::keyPress(&tried, Qt::Key_Space);
            return tried.isDown();
        }));
        tried.setDown(false);
    }
    /// Moves the held mouse off the button, back onto it, and lets go.
    void dragBackAndRelease(QAbstractButton& pressed) {
        for (const QPoint at : {QPoint(-9, -9), pressed.rect().center()}) {
            QMouseEvent move(QEvent::MouseMove, at, pressed.mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                             {});
            QApplication::sendEvent(&pressed, &move);
        }
        QTest::mouseRelease(&pressed, Qt::LeftButton);
        settle();
    }
    void key(QWidget& widget, Qt::Key key, bool repeated, Qt::KeyboardModifiers modifiers = {}) {
        QTest::simulateEvent(&widget, true, key, modifiers, {}, repeated);
        QTest::simulateEvent(&widget, false, key, modifiers, {}, repeated);
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

TEST_F(ApprovalGuardTest, AClickBegunForOneAlertDoesNotAnswerTheNext) {
    window();
    alert("M-1");
    QAbstractButton& pressed = hold(launch);
    alert("M-2");
    outwaitGuard();
    dragBackAndRelease(pressed);
    EXPECT_EQ(launches(), Missions());
    QTest::mouseRelease(&hold(launch), Qt::LeftButton);
    EXPECT_EQ(launches(), Missions({"M-2"}));
}

TEST_F(ApprovalGuardTest, AlertsOfAServerThatNamesNoMissionAreToldApartByTheirBeginning) {
    window();
    namelessAlert(-9);
    QAbstractButton& pressed = hold(launch);
    namelessAlert(-2);
    outwaitGuard();
    dragBackAndRelease(pressed);
    EXPECT_EQ(launches(), Missions());
}

TEST_F(ApprovalGuardTest, AKeyHeldForOneAlertDoesNotAnswerTheNext) {
    window();
    alert("M-1");
    outwaitGuard();
    QAbstractButton& focused = button(launch);
    focused.setFocus();
    QTest::keyPress(&focused, Qt::Key_Space);
    EXPECT_TRUE(focused.isDown());
    alert("M-2");
    EXPECT_EQ(qobject_cast<QAbstractButton*>(QApplication::focusWidget()), nullptr);
    outwaitGuard();
    QTest::keyRelease(&focused, Qt::Key_Space);
    press(Qt::Key_Return);
    EXPECT_EQ(launches(), Missions());
}

TEST_F(ApprovalGuardTest, AHeldKeyAnswersNothingHoweverLongItRepeats) {
    window();
    alert("M-1");
    outwaitGuard();
    QAbstractButton& focused = button(launch);
    focused.setFocus();
    for (int i = 0; i < 50; ++i)
        for (const Qt::Key repeated : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            key(focused, repeated, true);
    key(focused, Qt::Key_Return, true, Qt::ControlModifier);
    EXPECT_EQ(launches(), Missions());
    key(focused, Qt::Key_Return, false, Qt::ControlModifier);
    EXPECT_EQ(launches(), Missions({"M-1"}));
}

TEST_F(ApprovalGuardTest, ADoubleClickLaunchesOnce) {
    window();
    alert("M-1");
    outwaitGuard();
    QTest::mouseClick(&button(launch), Qt::LeftButton);
    QTest::mouseDClick(&button(launch), Qt::LeftButton);
    QTest::mouseRelease(&button(launch), Qt::LeftButton);
    EXPECT_EQ(launches(), Missions({"M-1"}));
}

TEST_F(ApprovalGuardTest, NothingPressedWhileTheCardComesUpCounts) {
    window();
    alert("M-1");
    const QPoint place = button(launch).mapTo(&window(), button(launch).rect().center());
    serve(mission(Phase::docked));
    alert("M-2"); // while the first card still goes
    QWidget& card = *QApplication::focusWidget();
    for (const Qt::Key impatient : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(&card, impatient); // a paint between two presses would take real time
    QTest::keyClick(&card, Qt::Key_Return, Qt::ControlModifier);
    QTest::mouseClick(&button(launch), Qt::LeftButton);
    EXPECT_EQ(launches(), Missions());

    serve(mission(Phase::docked));
    ASSERT_TRUE(waitUntil([&] { return !shows(launch); }));
    QTest::mousePress(window().windowHandle(), Qt::LeftButton, {}, place);
    alert("M-3");
    outwaitGuard();
    QTest::mouseRelease(window().windowHandle(), Qt::LeftButton, {}, place);
    settle();
    EXPECT_EQ(launches(), Missions());
}

TEST_F(ApprovalGuardTest, TheCardOfAServerThatHeedsNoAnswerStepsAsideUntilTheNextAlert) {
    window();
    alert("M-1");
    QTest::mouseRelease(&hold(launch), Qt::LeftButton);
    for (int second = 0; second < 4; ++second) {
        pass(1);
        alert("M-1");
    }
    EXPECT_TRUE(shows(launch)) << "a command may be slow";
    pass(2);
    alert("M-1");
    EXPECT_TRUE(waitUntil([&] { return !shows(launch); }));
    EXPECT_TRUE(shows(offer));
    alert("M-2");
    EXPECT_TRUE(waitUntil([&] { return shows(launch); }));

    pass(3); // the link is silent
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(launches(), Missions({"M-1", "M-2"}));
    pass(6);
    alert("M-2");
    EXPECT_TRUE(waitUntil([&] { return shows(launch); })) << "that answer may never have arrived";
}

TEST_F(ApprovalGuardTest, TheOverviewsButtonAnswersTheAlertThatItWasPressedFor) {
    window();
    alert("M-1");
    pass(3); // the link is silent, so the card is gone
    ASSERT_TRUE(waitUntil([&] { return !shows(launch); }));
    QTest::mousePress(&button(offer), Qt::LeftButton);
    alert("M-2");
    dragBackAndRelease(button(offer));
    EXPECT_EQ(launches(), Missions());
    pass(3);
    QTest::mouseClick(&button(offer), Qt::LeftButton);
    EXPECT_EQ(launches(), Missions({"M-2"}));
}

TEST_F(ApprovalGuardTest, ATrayMenuAnswersTheAlertThatItWasOpenedFor) {
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
    EXPECT_EQ(windowCalls.count(), 2) << "the window asks anew";
    open();
    line->trigger();
    EXPECT_EQ(launches(), Missions({"M-2"}));
}

TEST_F(ApprovalGuardTest, AnAlertClosesTheWindowsMenus) {
    serve(mission(Phase::docked));
    for (const char* next : {"M-1", "M-2"}) {
        auto menus = window().findChildren<QMenu*>();
        for (QMenu* menu : menus)
            menu->popup(window().mapToGlobal(QPoint(20, 20)));
        ASSERT_TRUE(std::ranges::any_of(menus, &QMenu::isVisible));
        alert(next);
        EXPECT_TRUE(std::ranges::none_of(menus, &QMenu::isVisible)) << next;
    }
}

TEST_F(ApprovalGuardTest, ANotificationAnswersOnlyItsOwnAlert) {
    alert("M-1");
    alert("M-2");
    store().answer(Command::approve, "M-1");
    store().answer(Command::approve, "det");
    EXPECT_EQ(launches(), Missions());
    store().answer(Command::approve, "M-2");
    EXPECT_EQ(launches(), Missions({"M-2"}));

    namelessAlert(-9);
    LiveState next = store().state();
    next.missionStart = now;
    LinkedUiTest::serve(next);
    store().answer(Command::approve, "det"); // before the tick that notifies of the next one
    EXPECT_EQ(launches(), Missions({"M-2"}));
}

} // namespace

} // namespace velmora
