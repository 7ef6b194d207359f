#pragma once

#include "desktop/alert_server.h"
#include "desktop/program_fixture.h"
#include "desktop/screen_reader.h"

#include <QTest>
#include <QTimer>

#include <algorithm>
#include <csignal>

namespace velmora {

/// The program under a window manager, linked to a server of the test, with real keys and clicks.
class DeliberateAnswerTest : public ProgramTest {
protected:
    static constexpr int guard = 600; ///< milliseconds in which a card takes no answer

    void SetUp() override {
        heartbeat_.callOnTimeout([this] { longestStall_ = std::max(longestStall_, sinceBeat_.restart()); });
        heartbeat_.start(20);
        sinceBeat_.start();
        linkTo(server.port());
        windowManager_ = display.run("openbox", {"--startup", "echo ready"});
        ASSERT_TRUE(waitUntil([this] { return windowManager_->bytesAvailable() > 0; }));
    }

    void start(const Variables& extra = {}) {
        Variables variables{{"DISPLAY", display.name()}, {"QT_QPA_PLATFORM", "xcb"}};
        variables.insert(variables.end(), extra.begin(), extra.end());
        program_.reset();
        program_.reset(run(VELMORA_PROGRAM, {}, variables).release());
        ASSERT_TRUE(waitUntil([this] { return isActive(); }));
        ASSERT_TRUE(polled(server.sent() + 2)); // by then it has processed the event that gave it the focus
    }
    void startWithScreenReader() {
        start({{"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"}});
        reader.attach(program_->processId());
    }
    /// Starts the program and returns the position of its "Launch drone" button. Looks it up in an earlier
    /// run, because Qt handles keys differently under a screen reader.
    QPoint startAndLocateLaunch() {
        startWithScreenReader();
        server.alert();
        const QPoint launch = reader.centerOf("Launch drone");
        EXPECT_FALSE(launch.isNull());
        server.dock();
        start();
        return launch;
    }
    void stop() const { ::kill(static_cast<pid_t>(program_->processId()), SIGSTOP); }
    void resume() const { ::kill(static_cast<pid_t>(program_->processId()), SIGCONT); }

    /// Returns the output of xdotool. Meanwhile the server answers requests.
    QString xdotool(const QStringList& arguments) {
        const RunningProgram tool = display.run("xdotool", arguments);
        waitUntil([&] { return tool->state() == QProcess::NotRunning; });
        return tool->readAllStandardOutput().trimmed();
    }
    void key(const QString& keys) { xdotool({"key", keys}); }
    /// `at` is in pixels of the screen.
    void click(QPoint at) {
        xdotool({"mousemove", QString::number(at.x()), QString::number(at.y()), "click", "1"});
    }
    /// Holds the keys down. X server and program share a processor, so that the two events of a repeat reach
    /// the program one at a time and look like a new press.
    void hold(const QString& keys) {
        const QString pin = "for process in %1 %2; do taskset -acp 0 $process; done";
        run("sh", {"-c", pin.arg(display.processId()).arg(program_->processId())}, {})->waitForFinished();
        xdotool({"keydown", keys});
    }
    bool isActive() { return activeWindow() == "Velmora"; }
    /// Opens a window of another program, in front and with the focus.
    RunningProgram openAnotherWindow() {
        RunningProgram other = display.run("xev", {"-event", "keyboard"});
        EXPECT_TRUE(waitUntil([this] { return activeWindow() == "Event Tester"; }));
        return other;
    }
    /// The program's visible windows: its own, and an open menu.
    qsizetype windows() { return xdotool({"search", "--onlyvisible", "--class", "velmora"}).count('\n') + 1; }

    /// Waits until the program has polled the current state this many times. It polls twice a second, and the
    /// card opens after the first poll; a press after the fourth is past the guard even on a slow machine.
    bool polled(int times) {
        return waitUntil([&] { return server.sent() >= times; });
    }
    /// Raises an alert that replaces another or follows none, and waits until the program fetches it.
    bool raiseAlert(bool afterNone) {
        if (afterNone) {
            server.dock();
            if (!polled(1))
                return false;
        }
        server.alert();
        return polled(1);
    }
    /// Call after a press that had to come within the guard.
    void excuseIfSlow() {
        if (server.ageOf(server.mission()) > guard - 100)
            server.excuseAlert();
    }
    /// Expects that a deliberate press approves the current alert once. Makes the press again if it does not
    /// count and the machine has just stalled.
    template <class Press>
    void expectApproved(Press press) {
        const std::size_t before = server.posts.size();
        for (int tries = 0; tries < 10 && server.posts.size() == before && !HasFailure(); ++tries) {
            longestStall_ = 0;
            EXPECT_TRUE(polled(server.sent() + 3));
            press();
            const int sent = server.sent();
            waitUntil([&] { return server.posts.size() > before || server.sent() > sent + 1; });
            EXPECT_TRUE(server.posts.size() > before || longestStall_ > 60)
                << "no command was sent; the journal has: " << journal().join(", ").toStdString();
        }
        if (HasFailure())
            return;
        QTest::qWait(100); // for repeats of the command
        ASSERT_EQ(server.posts.size() - before, 1U);
        EXPECT_EQ(server.posts.back().command, "approve");
        EXPECT_EQ(server.posts.back().mission, server.mission());
    }
    /// Expects that the attack approved nothing, and that the program was ready for answers.
    void expectNoneApproved() {
        EXPECT_TRUE(polled(server.sent() + 2));
        EXPECT_EQ(server.approvals(), 0);
        expectNextApproved();
    }
    void expectNextApproved() {
        server.alert();
        expectApproved([this] { key("ctrl+Return"); });
    }
    /// Stops the program 25 times while an alert is new, makes the press, and resumes when the guard is over.
    template <class Press>
    void expectNoneApprovedInStalls(Press press) {
        int approvals = 0;
        for (int i = 0; i < 25; ++i) {
            ASSERT_TRUE(raiseAlert(i % 5 == 0));
            QTest::qWait(120);
            stop();
            press();
            excuseIfSlow();
            QTest::qWait(guard + 50);
            resume();
            QTest::qWait(100);
            approvals += server.approvals();
            server.excuseAlert(); // a slow program may take the next press for an answer to this alert
        }
        EXPECT_EQ(approvals, 0);
        expectNoneApproved();
    }

    AlertServer server;
    VirtualDisplay display;
    ScreenReader reader;

private:
    QString activeWindow() { return xdotool({"getactivewindow", "getwindowname"}); }

    RunningProgram windowManager_, program_;
    QTimer heartbeat_;
    QElapsedTimer sinceBeat_;
    qint64 longestStall_ = 0; ///< of this process, in milliseconds
};

} // namespace velmora
