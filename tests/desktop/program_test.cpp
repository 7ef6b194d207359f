#include "desktop/program_fixture.h"
#include "desktop/screen_reader.h"
#include "desktop/x11_client.h"

#include <QElapsedTimer>
#include <QTest>
#include <QUdpSocket>

#include <csignal>

namespace velmora {

namespace {

TEST_F(ProgramTest, HelpVersionAndErrorsExitWithoutStarting) {
    const auto help = start({"--help"}), version = start({"--version"}), wrong = start({"--launch"}),
               stray = start({"file"});
    EXPECT_EQ(exitCodeOf(*help), 0);
    EXPECT_TRUE(help->readAllStandardOutput().contains("--hidden"));
    EXPECT_EQ(exitCodeOf(*version), 0);
    EXPECT_TRUE(version->readAllStandardOutput().startsWith("velmora 1."));
    EXPECT_EQ(exitCodeOf(*wrong), 2);
    EXPECT_TRUE(wrong->readAllStandardError().contains("launch"));
    EXPECT_EQ(exitCodeOf(*stray), 2);
    for (const QStringList& section : {QStringList{"--section"},
                                       {"--section", "approve"},
                                       {"--section", "settings"},
                                       {"--section", ""},
                                       {"--section", "live", "--hidden"}}) {
        const auto refused = start(section);
        EXPECT_EQ(exitCodeOf(*refused), 2) << section.join(' ').toStdString();
        EXPECT_TRUE(refused->readAllStandardError().contains("section"));
    }
}

TEST_F(ProgramTest, ASectionIsShownByTheFirstStartAndHandedOverByTheNext) {
    Settings settings;
    settings.onboarded = true;
    write(settings);
    const VirtualDisplay display;
    ScreenReader reader;
    const auto first = run(
        VELMORA_PROGRAM, {"--section", "history"},
        {{"DISPLAY", display.name()}, {"QT_QPA_PLATFORM", "xcb"}, {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"}});
    reader.attach(first->processId());
    EXPECT_NE(reader.button("Clear demo history"), "");
    EXPECT_EQ(exitCodeOf(*start({"--section", "overview"})), 0);
    EXPECT_NE(reader.button("Disarm"), "");
    first->terminate();
    EXPECT_EQ(exitCodeOf(*first), 0);
}

TEST_F(ProgramTest, ASecondStartHandsOverAndASignalEndsTheFirstCleanly) {
    const auto first = start({"--hidden"});
    waitForName();
    const auto second = start({});
    EXPECT_EQ(exitCodeOf(*second), 0);
    EXPECT_EQ(first->state(), QProcess::Running);
    EXPECT_EQ(call("ActivateAction", {"history", QVariantList(), QVariantMap()}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(call("ActivateAction", {"approve", QVariantList(), QVariantMap()}).type(),
              QDBusMessage::ReplyMessage);
    ::kill(static_cast<pid_t>(first->processId()), SIGHUP);
    EXPECT_EQ(exitCodeOf(*first), 0);
    EXPECT_FALSE(owned());
}

/// A window manager that prevents focus stealing compares the time with that of the owner's last input.
TEST_F(ProgramTest, TheWindowAsksForTheFocusAsOfTheTimeWhenTheOwnerStartedIt) {
    const VirtualDisplay display;
    FocusObserver observer(display);
    const auto first = startOn(display, {"--hidden"});
    waitForName();
    const auto startAgain = [&](const QString& token) {
        return exitCodeOf(
            *run(VELMORA_PROGRAM, {},
                 {{"DISPLAY", display.name()}, {"QT_QPA_PLATFORM", "xcb"}, {"DESKTOP_STARTUP_ID", token}}));
    };
    const auto activate = [](const char* key, const QString& token) {
        return call("Activate", {QVariantMap{{key, token}}}).type();
    };
    EXPECT_EQ(startAgain("launcher-1_TIME1234"), 0);
    EXPECT_EQ(observer.nextRequest(), 1234U);
    EXPECT_EQ(observer.nextLauncherMessage(), "remove: ID=\"launcher");
    const xcb_timestamp_t before = observer.time();
    EXPECT_EQ(startAgain({}), 0);
    const xcb_timestamp_t started = observer.nextRequest();
    EXPECT_TRUE(before <= started && started <= observer.time()) << "when the owner started the second";
    EXPECT_EQ(activate("desktop-startup-id", "_TIME1235"), QDBusMessage::ReplyMessage);
    EXPECT_EQ(observer.nextRequest(), 1235U);
    const auto longToken = [](int size) { return QString("_TIME1236").rightJustified(size, 'x'); };
    for (const QString& timeless :
         {QString(), QString("token"), QString("_TIME-1"), QString("_TIME0"), longToken(1000) + '7'})
        EXPECT_EQ(activate("activation-token", timeless), QDBusMessage::ReplyMessage);
    EXPECT_EQ(activate("activation-token", longToken(1000)), QDBusMessage::ReplyMessage);
    EXPECT_EQ(observer.nextRequest(), 1236U) << "the others have no time or are too long";
    first->terminate();
    EXPECT_EQ(exitCodeOf(*first), 0);
}

TEST_F(ProgramTest, TwoStartsAtOnceLeaveOne) {
    const auto one = start({"--hidden"}), other = start({"--hidden"});
    waitForName();
    EXPECT_TRUE(
        waitUntil([&] { return one->state() != QProcess::Running || other->state() != QProcess::Running; }));
    QProcess& left = one->state() == QProcess::Running ? *one : *other;
    QProcess& gone = &left == one.get() ? *other : *one;
    EXPECT_EQ(exitCodeOf(gone), 0);
    EXPECT_EQ(left.state(), QProcess::Running);
    left.terminate();
    EXPECT_EQ(exitCodeOf(left), 0);
}

TEST_F(ProgramTest, WithoutABusASecondStartIsRefused) {
    const auto first = start({"--hidden"}, false);
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(lockPath()); }));
    const auto second = start({"--hidden"}, false);
    EXPECT_EQ(exitCodeOf(*second), 1);
    EXPECT_FALSE(second->readAllStandardError().isEmpty());
    ::kill(static_cast<pid_t>(first->processId()), SIGINT);
    EXPECT_EQ(exitCodeOf(*first), 0);
}

TEST_F(ProgramTest, ADisplayThatCannotBeOpenedIsAnErrorWithASentence) {
    for (const auto& [platform, variable] : {std::pair("xcb", "DISPLAY"), {"wayland", "WAYLAND_DISPLAY"}}) {
        const auto program = run(VELMORA_PROGRAM, {}, {{"QT_QPA_PLATFORM", platform}, {variable, ":9999"}});
        EXPECT_EQ(exitCodeOf(*program), 1) << platform;
        EXPECT_TRUE(program->readAllStandardError().contains("Velmora needs a graphical session"))
            << platform;
    }
}

/// The display and the name server stop answering.
TEST_F(ProgramTest, ItEndsWithinASecondWhateverHangsAndAStartMeanwhileWaits) {
    QUdpSocket nameServer;
    if (!nameServer.bind(QHostAddress("127.0.0.9"), 53))
        GTEST_SKIP() << "a name server is not permitted here";
    QFile resolver(home("resolv.conf"));
    ASSERT_TRUE(resolver.open(QIODevice::WriteOnly) && resolver.write("nameserver 127.0.0.9\n") > 0);
    resolver.close();
    linkTo(8765, "velmora.invalid");
    const VirtualDisplay display;
    const QString script =
        "mount --bind " + resolver.fileName() + " /etc/resolv.conf && exec " VELMORA_PROGRAM;
    const auto first =
        run("unshare", {"-m", "sh", "-c", script}, {{"DISPLAY", display.name()}, {"QT_QPA_PLATFORM", "xcb"}});
    waitForName();
    ASSERT_TRUE(waitUntil([&] { return nameServer.hasPendingDatagrams(); })) << "it looks the name up";
    ::kill(static_cast<pid_t>(display.processId()), SIGSTOP);
    call("Activate", {QVariantMap()}, QDBus::NoBlock);
    QTest::qWait(300); // Real: meanwhile the event loop begins to wait for the display, which shows no window
    QElapsedTimer time;
    time.start();
    first->terminate();
    const auto second = start({"--hidden"});
    EXPECT_EQ(exitCodeOf(*first), 0);
    EXPECT_LT(time.elapsed(), 1000);
    EXPECT_TRUE(waitUntil([] { return owned(); }));
    EXPECT_EQ(second->state(), QProcess::Running);
    second->terminate();
    EXPECT_EQ(exitCodeOf(*second), 0);
}

TEST_F(ProgramTest, ATrayThatAppearsLateGetsTheIconAndItsMenuWorks) {
    const VirtualDisplay display;
    const auto program = startOn(display, {"--hidden"});
    waitForName();
    TrayHost tray;
    ASSERT_TRUE(waitUntil([&] { return !tray.items().isEmpty(); }));
    EXPECT_EQ(tray.labels(), QStringList({QString::fromUtf8("Velmora — Docked"), "Armed", "Disarm",
                                          "Open Velmora", "Quit Velmora"}));
    EXPECT_FALSE(tray.menu().front().enabled);
    tray.press("Disarm");
    EXPECT_TRUE(
        waitUntil([&] { return tray.labels().contains("Disarmed") && tray.labels().contains("Arm"); }));
    tray.press("Quit Velmora");
    EXPECT_EQ(exitCodeOf(*program), 0);
}

TEST_F(ProgramTest, ATrayOfTheOldKindHasTheIconUnlessThereIsOneOnTheBus) {
    const VirtualDisplay display;
    FocusObserver observer(display);
    auto old = std::make_unique<OldTray>(display);
    const auto program = startOn(display, {"--hidden"});
    ASSERT_TRUE(old->embed());
    EXPECT_TRUE(waitUntil([&] { return old->colors() > 2; })) << "it is painted";
    old = std::make_unique<OldTray>(display); // it restarts
    ASSERT_TRUE(old->embed());
    for (const bool hostIsLate : {true, false}) {
        TrayHost tray(!hostIsLate);
        if (hostIsLate) {
            EXPECT_TRUE(waitUntil([&] { return tray.wasAskedForHost(); }));
            EXPECT_TRUE(old->hasIcon()) << "a watcher without a host is no tray";
            tray.registerHost();
        }
        EXPECT_TRUE(waitUntil([&] { return !tray.items().isEmpty() && !old->hasIcon(); }));
        tray.leave();
        ASSERT_TRUE(old->embed());
    }
    const xcb_timestamp_t before = observer.time();
    display.run("xdotool", {"mousemove", "16", "16", "click", "1"})->waitForFinished();
    const xcb_timestamp_t clicked = observer.nextRequest();
    EXPECT_TRUE(before <= clicked && clicked <= observer.time()) << "a click shows the window";
    program->terminate();
    EXPECT_EQ(exitCodeOf(*program), 0);
}

} // namespace

} // namespace velmora
