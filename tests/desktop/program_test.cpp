#include "desktop/tray_host.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <csignal>

namespace velmora {

namespace {

/// The program itself, with a home of its own.
class ProgramTest : public testing::Test {
protected:
    /// Starts it; the bus of the tests, or none.
    std::unique_ptr<QProcess> start(const QStringList& arguments, bool bus = true) {
        return run(VELMORA_PROGRAM, arguments, bus);
    }
    /// On a virtual display: a tray icon needs one.
    std::unique_ptr<QProcess> startOnDisplay(const QStringList& arguments) {
        return run("xvfb-run", QStringList{"-a", VELMORA_PROGRAM} + arguments, true);
    }
    std::unique_ptr<QProcess> run(const QString& program, const QStringList& arguments, bool bus) {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", home_.path());
        environment.insert("XDG_CONFIG_HOME", home_.path());
        if (!bus)
            environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
        if (program != VELMORA_PROGRAM)
            environment.insert("QT_QPA_PLATFORM", "xcb");
        process->setProcessEnvironment(environment);
        process->start(program, arguments);
        EXPECT_TRUE(process->waitForStarted());
        return process;
    }
    static int exitCodeOf(QProcess& process) {
        EXPECT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished(20'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return process.exitCode();
    }
    /// Waits until the program owns its name, and so answers.
    static void waitForName() {
        QDeadlineTimer deadline(20'000);
        while (!owned() && !deadline.hasExpired())
            QThread::yieldCurrentThread();
        ASSERT_TRUE(owned());
    }
    static bool owned() {
        return QDBusConnection::sessionBus().interface()->isServiceRegistered("org.velmora.Velmora");
    }
    static QDBusMessage call(const QString& method, const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createMethodCall("org.velmora.Velmora", "/org/velmora/Velmora",
                                                              "org.freedesktop.Application", method);
        message.setArguments(arguments);
        return QDBusConnection::sessionBus().call(message);
    }
    QString lockPath() const { return home_.path() + "/Velmora/lock"; }

private:
    QTemporaryDir home_;
};

TEST_F(ProgramTest, OptionsAnswerWithoutStarting) {
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
    QDeadlineTimer deadline(20'000);
    while (one->state() == QProcess::Running && other->state() == QProcess::Running &&
           !deadline.hasExpired()) {
        one->waitForFinished(20);
        other->waitForFinished(20);
    }
    QProcess& left = one->state() == QProcess::Running ? *one : *other;
    QProcess& gone = &left == one.get() ? *other : *one;
    EXPECT_EQ(exitCodeOf(gone), 0);
    EXPECT_EQ(left.state(), QProcess::Running);
    left.terminate();
    EXPECT_EQ(exitCodeOf(left), 0);
}

TEST_F(ProgramTest, WithoutABusTheSecondWriterIsKeptOut) {
    const auto first = start({"--hidden"}, false);
    QDeadlineTimer deadline(20'000);
    while (!QFile::exists(lockPath()) && !deadline.hasExpired())
        QThread::yieldCurrentThread();
    const auto second = start({"--hidden"}, false);
    EXPECT_EQ(exitCodeOf(*second), 1);
    EXPECT_FALSE(second->readAllStandardError().isEmpty());
    ::kill(static_cast<pid_t>(first->processId()), SIGINT);
    EXPECT_EQ(exitCodeOf(*first), 0);
}

TEST_F(ProgramTest, ALateTrayGetsTheIconAndItsMenuWorks) {
    const auto program = startOnDisplay({"--hidden"});
    waitForName();
    TrayHost tray;
    const auto labels = [&] {
        QStringList texts;
        for (const TrayHost::Entry& entry : tray.menu())
            texts.append(entry.label);
        return texts;
    };
    const auto waitFor = [](auto condition) {
        QDeadlineTimer deadline(20'000);
        while (!condition() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        return condition();
    };
    ASSERT_TRUE(waitFor([&] { return !tray.items().isEmpty(); }));
    EXPECT_EQ(labels(), QStringList({QString::fromUtf8("Velmora — Docked"), "Armed", "Disarm", "Open Velmora",
                                     "Quit Velmora"}));
    EXPECT_FALSE(tray.menu().front().enabled);
    tray.press("Disarm");
    EXPECT_TRUE(waitFor([&] { return labels().contains("Disarmed") && labels().contains("Arm"); }));
    tray.press("Quit Velmora");
    EXPECT_EQ(exitCodeOf(*program), 0);
}

} // namespace

} // namespace velmora
