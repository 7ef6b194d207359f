#include "desktop/deliberate_answer_fixture.h"
#include "desktop/x11_client.h"

namespace velmora {

namespace {

TEST_F(DeliberateAnswerTest, HeldCtrlReturnApprovesNoAlert) {
    start();
    hold("ctrl+Return");
    for (int i = 0; i < 50; ++i)
        ASSERT_TRUE(raiseAlert(i % 5 == 0) && polled(2));
    xdotool({"keyup", "ctrl+Return"});
    expectNoneApproved();
}

TEST_F(DeliberateAnswerTest, AKeyHeldOnTheButtonOfOneAlertApprovesNoOther) {
    start();
    for (const char* held : {"Return", "space"}) {
        ASSERT_TRUE(raiseAlert(true) && polled(3));
        key("shift+Tab"); // to the last button, which launches
        server.excuseAlert();
        hold(held);
        for (int i = 0; i < 7; ++i)
            ASSERT_TRUE(raiseAlert(i % 5 == 4) && polled(2));
        xdotool({"keyup", held});
    }
    expectNoneApproved();
}

TEST_F(DeliberateAnswerTest, AKeyHeldWhileAnotherWindowClosesApprovesNothing) {
    start();
    for (const char* held : {"ctrl+Return", "Return", "space", "ctrl+Return", "Return", "space"}) {
        ASSERT_TRUE(raiseAlert(false) && polled(3));
        key("shift+Tab");
        RunningProgram other = openAnotherWindow();
        hold(held);
        qsizetype presses = 0;
        ASSERT_TRUE(waitUntil([&] {
            return (presses += other->readAllStandardOutput().count("KeyPress event")) > 8;
        })) << "no repeats";
        other.reset();
        ASSERT_TRUE(waitUntil([this] { return isActive(); }));
        QTest::qWait(guard + 200);
        xdotool({"keyup", held});
    }
    expectNoneApproved();
}

TEST_F(DeliberateAnswerTest, APressRightAfterAnotherWindowClosesApprovesNothing) {
    start();
    for (int i = 0; i < 5; ++i) {
        ASSERT_TRUE(raiseAlert(i == 0));
        RunningProgram other = openAnotherWindow();
        ASSERT_TRUE(polled(4));
        QElapsedTimer sinceClosing;
        sinceClosing.start();
        other.reset();
        ASSERT_TRUE(waitUntil([this] { return isActive(); }));
        key("ctrl+Return");
        if (sinceClosing.elapsed() > guard / 2)
            server.excuseAlert();
    }
    expectNoneApproved();
}

TEST_F(DeliberateAnswerTest, AClickWhileTheProgramStallsOverANewAlertApprovesNothing) {
    const QPoint launch = startAndLocateLaunch();
    expectNoneApprovedInStalls([&] { click(launch); });
}

TEST_F(DeliberateAnswerTest, AKeyWhileTheProgramStallsOverANewAlertApprovesNothing) {
    start();
    expectNoneApprovedInStalls([&] { key("ctrl+Return"); });
}

TEST_F(DeliberateAnswerTest, AnswersToASilentServerDoNotPileUp) {
    start();
    ASSERT_TRUE(raiseAlert(true) && polled(4));
    server.hangs = true;
    for (const int pause : {400, 4100, 4000, 4000}) {
        QTest::qWait(pause);
        key("ctrl+Return");
    }
    QTest::qWait(500);
    server.hangs = false;
    ASSERT_TRUE(polled(server.sent() + 3));
    EXPECT_LE(server.approvals(), 1);
    expectNextApproved();
}

TEST_F(DeliberateAnswerTest, AnswersFromALongStallDoNotCount) {
    const QPoint launch = startAndLocateLaunch();
    ASSERT_TRUE(raiseAlert(false) && polled(4));
    stop();
    server.dock();
    click(launch);
    key("ctrl+Return");
    QTest::qWait(5000);
    resume();
    expectNoneApproved();
}

TEST_F(DeliberateAnswerTest, AnAlertClosesTheHistorysMenusSoThatTheFirstClickCounts) {
    startWithScreenReader();
    key("ctrl+3");
    const QPoint menus[] = {reader.centerOf(QString::fromUtf8("Export…")), reader.centerOf("All cameras")};
    const QPoint launch = startAndLocateLaunch();
    for (const QPoint& menu : menus) {
        server.dock();
        ASSERT_TRUE(polled(3));
        key("ctrl+3");
        click(menu);
        ASSERT_TRUE(waitUntil([&] { return windows() == 2; }));
        ASSERT_TRUE(raiseAlert(false) && polled(3));
        EXPECT_EQ(windows(), 1);
        expectApproved([&] { click(launch); });
    }
}

TEST_F(DeliberateAnswerTest, AnAlertTakesNoFocusAndClosesTheMenuOfAnOldTrayWhichAnswersIt) {
    start();
    const RunningProgram other = openAnotherWindow();
    QTest::qWait(guard); // Qt reports the loss of the focus late
    OldTray tray(display);
    ASSERT_TRUE(tray.embed());
    const QPoint launchLine(60, 103); // of the menu, which opens at the pointer
    const auto menuIsOpen = [&, closed = windows()] { return windows() > closed; };
    const auto openMenu = [&] {
        xdotool({"mousemove", "16", "16", "click", "3"});
        return waitUntil(menuIsOpen);
    };
    for (const bool afterNone : {true, false}) {
        ASSERT_TRUE(openMenu());
        xdotool({"mousemove", "800", "900"}); // away from the icon and its tooltip
        ASSERT_TRUE(raiseAlert(afterNone) && polled(3));
        EXPECT_FALSE(menuIsOpen()) << "the alert closes the menu";
        EXPECT_FALSE(isActive());
    }
    expectApproved([&] {
        ASSERT_TRUE(openMenu());
        click(launchLine);
    });
}

TEST_F(DeliberateAnswerTest, AKeyThatOpenedAMenuIsNotTakenForHeld) {
    startWithScreenReader();
    key("ctrl+3");
    const QPoint menu = reader.centerOf("All cameras");
    start();
    key("ctrl+3");
    click(menu); // also gives it the focus
    ASSERT_TRUE(waitUntil([this] { return windows() == 2; }));
    key("Escape");
    ASSERT_TRUE(waitUntil([this] { return windows() == 1; }));
    xdotool({"keydown", "Return"});
    ASSERT_TRUE(waitUntil([this] { return windows() == 2; }));
    xdotool({"keyup", "Return"}); // the release goes to the menu's window
    ASSERT_TRUE(raiseAlert(false) && polled(3));
    EXPECT_EQ(windows(), 1);
    expectApproved([this] { key("ctrl+Return"); });
}

TEST_F(DeliberateAnswerTest, AKeyWhoseReleaseWasLostIsNotTakenForHeld) {
    start();
    for (const char* lost : {"Escape", "Return"}) {
        xdotool({"keydown", lost});
        {
            const KeyboardGrab other(display);
            ASSERT_TRUE(other.succeeded());
            xdotool({"keyup", lost});
        }
        ASSERT_TRUE(raiseAlert(true) && polled(3));
        expectApproved([this] { key("ctrl+Return"); });
    }
    hold("Escape");
    ASSERT_TRUE(raiseAlert(true) && polled(3));
    key("ctrl+Return");
    xdotool({"keyup", "Escape"});
    EXPECT_EQ(server.approvals(), 2);
    expectNextApproved();
}

TEST_F(DeliberateAnswerTest, AScreenReaderAnswersOnlyAnAlertThatIsPastItsGuard) {
    startWithScreenReader();
    ASSERT_TRUE(raiseAlert(true) && polled(3));
    const QString underTheCard = reader.button("Launch (approve)");
    ASSERT_FALSE(underTheCard.isEmpty());
    server.excuseAlert();
    ASSERT_TRUE(raiseAlert(false));
    QTest::qWait(100);
    reader.press(underTheCard);
    excuseIfSlow();
    ASSERT_TRUE(polled(4));
    EXPECT_EQ(server.approvals(), 0);
    expectApproved([this] { EXPECT_TRUE(reader.press(reader.button("Launch drone"))); });
}

TEST_F(DeliberateAnswerTest, ADroppedConnectionRepeatsNoCommand) {
    start();
    server.dropsPosts = true;
    for (const bool kept : {true, false}) {
        server.keepsConnections = kept;
        ASSERT_TRUE(raiseAlert(true));
        expectApproved([this] { key("ctrl+Return"); });
    }
}

TEST_F(DeliberateAnswerTest, AStormOfPressesOnAlertsThatReplaceEachOtherApprovesNone) {
    const QPoint launch = startAndLocateLaunch();
    for (int i = 0; i < 20; ++i) {
        server.alert();
        ASSERT_TRUE(waitUntil([&] {
            click(launch);
            xdotool({"key", "Return", "space", "ctrl+Return", "KP_Enter"});
            return server.sent() > 0;
        }));
    }
    EXPECT_EQ(
        std::ranges::count_if(server.posts,
                              [](const auto& post) { return post.command == "approve" && post.age < guard; }),
        0);
    expectNextApproved();
}

TEST_F(DeliberateAnswerTest, EveryDeliberatePressApprovesItsAlertOnce) {
    const QPoint launch = startAndLocateLaunch();
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(raiseAlert(i % 5 == 0));
        if (i % 2 == 0)
            expectApproved([&] { click(launch); });
        else
            expectApproved([this] { key("ctrl+Return"); });
    }
}

} // namespace

} // namespace velmora
