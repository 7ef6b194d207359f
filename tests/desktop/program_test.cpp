#include "desktop/program_fixture.h"

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

} // namespace

} // namespace velmora
