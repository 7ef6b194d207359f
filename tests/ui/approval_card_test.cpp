#include "ui/approval_buttons.h"
#include "ui/blocks/sb_button.h"
#include "ui/screens/alert/approval_overlay.h"
#include "ui/screens/time_left.h"
#include "ui/served_fixture.h"

#include <QMenuBar>

namespace velmora {

namespace {

/// What the card of a server's alert shows and takes.
class ApprovalCardTest : public ServedTest {
protected:
    void serveAlert() { serve(alert_); }
    /// Lets a server that repeats the alert answer for so long.
    void repeatAlert(double seconds) {
        for (double passed = 0; passed < seconds; passed += 0.5) {
            pass(0.5);
            clock.advance(std::chrono::milliseconds(500));
            serveAlert();
        }
    }
    /// Ticks without an answer of the server, while the clock of the user interface runs, too.
    void staySilent(double seconds) {
        for (double passed = 0; passed < seconds; passed += 0.25) {
            pass(0.25);
            clock.advance(std::chrono::milliseconds(250));
        }
    }
    /// Tries every way to answer, and none of them may work.
    void tryToAnswer() {
        for (const QString& name : {launch, ignore})
            if (shows(name)) {
                clickThrough(name);
                pressByAccessibility(name);
                find(name)->setFocus();
                press(Qt::Key_Space);
                press(Qt::Key_Return);
            }
        press(Qt::Key_Return, Qt::ControlModifier);
        press(Qt::Key_Escape, Qt::ControlModifier);
    }
    bool cardIsOpen() { return window().findChild<ApprovalOverlay*>()->isOpen(); }
    bool showsText(const QString& start) {
        const auto widgets = window().findChildren<QWidget*>();
        return std::ranges::any_of(widgets, [&](const QWidget* widget) {
            return widget->isVisible() && widget->accessibleName().contains(start);
        });
    }

    LiveState alert_ = mission(Phase::awaitingApproval);
};

TEST_F(ApprovalCardTest, AnAnswerIsSentOnceUntilTheServerActsOrFails) {
    window();
    serveAlert();
    outwaitGuard();
    clickThrough(launch);
    EXPECT_EQ(link.posts.size(), 1U);
    EXPECT_TRUE(find<SBButton>(launch)->isSent());
    repeatAlert(3);
    tryToAnswer();
    EXPECT_EQ(link.posts.size(), 1U) << "the answer is on its way";
    repeatAlert(2.5);
    EXPECT_FALSE(find<SBButton>(launch)->isSent());
    EXPECT_TRUE(shows("velmora has not answered. Try again."));

    outwaitGuard();
    clickThrough(ignore);
    ASSERT_EQ(link.posts.size(), 2U);
    EXPECT_FALSE(showsText("Try again")) << "a new press takes the message away";
    link.posts.back().done(LinkError{"The connection was refused"});
    EXPECT_TRUE(shows("The connection was refused. Try again."));
    EXPECT_FALSE(shows("velmora did not confirm “Ignore”. The connection was refused.")) << "reported once";
    outwaitGuard();
    clickThrough(ignore);
    serve(mission(Phase::docked));
    EXPECT_FALSE(cardIsOpen());
    EXPECT_EQ(link.posts.size(), 3U);
}

TEST_F(ApprovalCardTest, ASilentLinkKeepsTheCardWithoutAnswersUntilItsDeadline) {
    window();
    serveAlert();
    outwaitGuard();
    staySilent(4);
    mouse(QEvent::MouseButtonPress, *find(hide));
    serveAlert();
    mouse(QEvent::MouseButtonRelease, *find(ignore));
    EXPECT_TRUE(cardIsOpen());
    EXPECT_TRUE(link.posts.empty()) << "the press began on another button";
    staySilent(4);
    EXPECT_TRUE(shows("velmora is silent — this picture is 4 s old"));
    EXPECT_FALSE(find<SBButton>(launch)->isEnabled());
    tryToAnswer();
    serveAlert();
    EXPECT_TRUE(link.posts.empty()) << "no answer is kept for later";
    outwaitGuard();
    EXPECT_TRUE(shows(ignore));
    while (now < *alert_.approvalDeadline - Seconds{1})
        staySilent(0.25);
    EXPECT_TRUE(cardIsOpen());
    staySilent(2);
    EXPECT_FALSE(cardIsOpen()) << "its deadline is over";
}

TEST_F(ApprovalCardTest, HidePutsTheCardAwayUntilTheLinkIsBack) {
    window();
    serveAlert();
    staySilent(4);
    clickThrough(hide);
    EXPECT_FALSE(cardIsOpen());
    staySilent(2);
    EXPECT_FALSE(cardIsOpen());
    serveAlert();
    EXPECT_TRUE(cardIsOpen());
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(link.posts.empty()) << "the guard is closed again";
    outwaitGuard();
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(lastPosted(), Command::approve);
}

/// Qt would pass the focus of a hidden button on to "Launch drone" when the window becomes active again.
TEST_F(ApprovalCardTest, TheFocusNeverMovesToTheLaunchByItself) {
    window();
    serveAlert();
    staySilent(4);
    find(hide)->setFocus();
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return other.isActiveWindow(); }));
    serveAlert();
    window().activateWindow();
    ASSERT_TRUE(waitUntil([&] { return window().isActiveWindow(); }));
    EXPECT_EQ(qobject_cast<QAbstractButton*>(QApplication::focusWidget()), nullptr);
    outwaitGuard();
    press(Qt::Key_Space);
    EXPECT_TRUE(link.posts.empty());
}

TEST_F(ApprovalCardTest, AFailureIsReportedAlsoWhenTheLinkHasGoneSilent) {
    window();
    serveAlert();
    outwaitGuard();
    clickThrough(launch);
    staySilent(3);
    link.posts.back().done(LinkError{"The connection timed out"});
    EXPECT_TRUE(shows("velmora did not confirm “Launch drone”. The connection timed out."));
}

TEST_F(ApprovalCardTest, AnAlertThatTheServerKeepsAfterItsDeadlineCanBeHidden) {
    window();
    serveAlert();
    const auto repeatUntil = [&](double secondsAfterDeadline) {
        while (now < *alert_.approvalDeadline + Seconds{secondsAfterDeadline})
            repeatAlert(0.5);
    };
    repeatUntil(3);
    EXPECT_TRUE(shows(ignore));
    repeatUntil(6);
    clickThrough(hide);
    EXPECT_FALSE(cardIsOpen());
    repeatAlert(2);
    EXPECT_FALSE(cardIsOpen());
    alert_.missionId = "M-2";
    serveAlert();
    EXPECT_TRUE(cardIsOpen());
    EXPECT_TRUE(link.posts.empty());
}

/// A server whose clock is behind: its deadlines are over when they arrive.
TEST_F(ApprovalCardTest, ADeadlineThatWasNeverAheadClosesNothing) {
    window();
    alert_.approvalDeadline = now - Seconds{90};
    serveAlert();
    EXPECT_TRUE(cardIsOpen());
    staySilent(10);
    EXPECT_TRUE(cardIsOpen());
    repeatAlert(10);
    EXPECT_TRUE(shows(ignore));
}

TEST_F(ApprovalCardTest, TheBarShowsTheShareOfTheWholeTime) {
    LiveState state = mission(Phase::awaitingApproval);
    Settings settings;
    settings.approvalSeconds = 40;
    state.missionStart = now;
    state.approvalDeadline = now + Seconds{50};
    EXPECT_DOUBLE_EQ(timeLeft(state, settings, now + Seconds{20})->share, 0.6);
    EXPECT_FALSE(timeLeft(state, settings, now + Seconds{39})->isShort());
    EXPECT_TRUE(timeLeft(state, settings, now + Seconds{40})->isShort());
    state.missionStart.reset();
    EXPECT_DOUBLE_EQ(timeLeft(state, settings, now + Seconds{30})->share, 0.5);
    EXPECT_EQ(timeLeft(state, settings, now + Seconds{50}), std::nullopt);
    state.approvalDeadline.reset();
    EXPECT_EQ(timeLeft(state, settings, now), std::nullopt);
}

TEST_F(ApprovalCardTest, TellsWhyFlyingIsRisky) {
    window();
    alert_.windKmh = 30;
    alert_.drone.battery = 30.2;
    serveAlert();
    EXPECT_FALSE(showsText("limit of") || showsText("return level of"));
    alert_.windKmh = 30.4;
    alert_.drone.battery = 30;
    serveAlert();
    outwaitGuard();
    EXPECT_TRUE(shows("Wind, 30 km/h, over your limit of 30"));
    EXPECT_TRUE(shows("Battery, 30 %, under your return level of 30"));
    EXPECT_TRUE(find(launch)->isEnabled()) << "the server decides";
}

TEST_F(ApprovalCardTest, TheEnlargedPictureLeavesTheButtonsInReachAndTheGuardOpen) {
    for (const QSize size : {QSize(1120, 720), QSize(1360, 860), QSize(2560, 1440)}) {
        window().resize(size);
        alert_.missionId = std::to_string(size.width());
        serveAlert();
        outwaitGuard();
        find(enlarge)->setFocus();
        press(Qt::Key_Space);
        clock.advance(std::chrono::milliseconds(400));
        ASSERT_TRUE(shows(reduce));
        EXPECT_EQ(QApplication::focusWidget(), find(reduce));
        const QRect picture(find(reduce)->mapTo(&window(), QPoint()), find(reduce)->size());
        EXPECT_NEAR(double(picture.width()) / (picture.height() - 6), 16.0 / 9, 0.01);
        for (const QString& name : {ignore, launch}) {
            const QRect button(find(name)->mapTo(&window(), QPoint()), find(name)->size());
            EXPECT_TRUE(window().rect().adjusted(16, 36, -16, -16).contains(button));
            EXPECT_GT(button.top(), picture.bottom());
        }
        EXPECT_TRUE(window().findChild<AnswerGuard*>()->isOpen()) << "the buttons were there before";
        press(Qt::Key_Escape);
        EXPECT_TRUE(waitUntil([&] { return shows(enlarge) && find(enlarge)->width() == 520; }));
    }
    EXPECT_TRUE(link.posts.empty());
}

TEST_F(ApprovalCardTest, TheTitleStripStaysUsableAboveTheVeil) {
    auto* menus = window().findChild<QMenuBar*>();
    serveAlert();
    outwaitGuard();
    EXPECT_EQ(window().childAt(menus->mapTo(&window(), menus->rect().center())), menus);
    const QWidget* close = find("Close");
    EXPECT_EQ(window().childAt(close->mapTo(&window(), close->rect().center())), close);
    QAction* approve = nullptr;
    for (QMenu* menu : menus->findChildren<QMenu*>())
        for (QAction* action : menu->actions())
            approve = action->text() == "Launch (approve)" ? action : approve;
    ASSERT_TRUE(approve && approve->isEnabled());
    approve->trigger();
    EXPECT_EQ(lastPosted(), Command::approve);
    EXPECT_FALSE(approve->isEnabled()) << "while the answer is on its way";
}

} // namespace

} // namespace velmora
