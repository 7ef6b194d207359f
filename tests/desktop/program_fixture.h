#pragma once

#include "desktop/tray_host.h"
#include "desktop/virtual_display.h"
#include "model/json.h"

#include <QDir>
#include <gtest/gtest.h>

namespace velmora {

/// Runs the program with its own home directory. Real: it has the clock of the system.
class ProgramTest : public testing::Test {
protected:
    using Variables = std::vector<std::pair<QString, QString>>;

    /// Starts the program without a display, on the bus of the tests or on none.
    std::unique_ptr<QProcess> start(const QStringList& arguments, bool bus = true) {
        return run(VELMORA_PROGRAM, arguments,
                   bus ? Variables{} : Variables{{"DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere"}});
    }
    std::unique_ptr<QProcess> startOn(const VirtualDisplay& display, const QStringList& arguments) {
        return run(VELMORA_PROGRAM, arguments, {{"DISPLAY", display.name()}, {"QT_QPA_PLATFORM", "xcb"}});
    }
    std::unique_ptr<QProcess> run(const QString& program, const QStringList& arguments,
                                  const Variables& variables) {
        auto process = std::make_unique<QProcess>();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* kind : {"DATA", "CONFIG", "CACHE"})
            environment.insert(QString("XDG_%1_HOME").arg(kind), home(QString(kind).toLower()));
        for (const auto& [name, value] : variables)
            environment.insert(name, value);
        process->setProcessEnvironment(environment);
        process->start(program, arguments);
        EXPECT_TRUE(process->waitForStarted());
        return process;
    }
    static int exitCodeOf(QProcess& process, int timeout = 20'000) {
        EXPECT_TRUE(process.state() == QProcess::NotRunning || process.waitForFinished(timeout));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return process.exitCode();
    }
    /// Waits until the program owns its bus name, from when on it answers calls.
    static void waitForName() { ASSERT_TRUE(waitUntil(owned)); }
    static bool owned() {
        return QDBusConnection::sessionBus().interface()->isServiceRegistered("org.velmora.Velmora");
    }
    static QDBusMessage call(const QString& method, const QVariantList& arguments,
                             QDBus::CallMode mode = QDBus::Block) {
        QDBusMessage message = QDBusMessage::createMethodCall("org.velmora.Velmora", "/org/velmora/Velmora",
                                                              "org.freedesktop.Application", method);
        message.setArguments(arguments);
        return QDBusConnection::sessionBus().call(message, mode);
    }

    /// The program's directory for "data", "config" or "cache".
    QString home(const QString& kind) const { return home_.path() + '/' + kind; }
    QString lockPath() const { return home("data") + "/Velmora/lock"; }
    /// Writes settings that link the program to a server, on loopback unless a host is given.
    void linkTo(quint16 port, const std::string& host = "127.0.0.1") const {
        Settings settings;
        settings.onboarded = settings.linkMode = true;
        settings.host = host;
        settings.port = port;
        write(settings);
    }
    /// Writes the settings file, for the next start.
    void write(const Settings& settings) const {
        QDir().mkpath(home("data") + "/Velmora");
        QFile file(home("data") + "/Velmora/settings.json");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(encode(settings).value()));
    }

    /// The commands in the journal: "approve tray sent".
    QStringList journal() const {
        QFile file(home("data") + "/Velmora/journal.jsonl");
        file.open(QIODevice::ReadOnly);
        QStringList commands;
        for (const QByteArray& line : file.readAll().split('\n'))
            if (const auto entry = decode<JournalEntry>(line.toStdString()))
                commands.append(QString::fromStdString(std::string(rawValue(entry.value->command)) + ' ' +
                                                       std::string(rawValue(entry.value->source)) + ' ' +
                                                       std::string(rawValue(entry.value->result))));
        return commands;
    }

private:
    QTemporaryDir home_;
};

} // namespace velmora
