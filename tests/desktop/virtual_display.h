#pragma once

#include "desktop/bus_call.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

namespace velmora {

struct Kill {
    void operator()(QProcess* process) const {
        process->kill();
        process->waitForFinished();
        delete process;
    }
};
/// A process that is killed when the pointer is destroyed.
using RunningProgram = std::unique_ptr<QProcess, Kill>;

/// An X server without a screen, and programs that run on it with their own home directory.
class VirtualDisplay {
public:
    VirtualDisplay() {
        server_->start(QStringLiteral("Xvfb"),
                       {"-displayfd", "1", "-screen", "0", "1600x1000x24", "-nolisten", "tcp"});
        if (server_->waitForStarted() && server_->waitForReadyRead())
            name_ = ':' + QString::fromLatin1(server_->readLine().trimmed());
    }

    /// The display's name, such as ":99"; empty if the server did not start.
    const QString& name() const { return name_; }
    QString home() const { return home_.path(); }
    qint64 processId() const { return server_->processId(); }

    RunningProgram run(const QString& program, const QStringList& arguments = {}) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", name_);
        for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            environment.insert(variable, home());
        environment.insert("NO_AT_BRIDGE", "1");
        RunningProgram process(new QProcess);
        process->setProcessEnvironment(environment);
        process->start(program, arguments);
        return process;
    }

private:
    QTemporaryDir home_;
    QString name_;
    RunningProgram server_{new QProcess};
};

/// The notification service dunst. The test replaces its menu of actions with a script.
class Dunst {
public:
    explicit Dunst(const VirtualDisplay& display) : picker_(display.home() + QStringLiteral("/pick")) {
        const QString rules = display.home() + QStringLiteral("/dunstrc");
        write(rules, "[global]\ndmenu = " + picker_);
        program_ = display.run(QStringLiteral("dunst"), {"-conf", rules});
        waitUntilReady();
    }

    static bool isRunning() { return QDBusConnection::sessionBus().interface()->isServiceRegistered(name()); }

    /// Waits for a notification and chooses the action.
    bool choose(const QString& action) {
        write(picker_, "#!/bin/sh\nexec grep -m1 '" + action + "'\n");
        QFile::setPermissions(picker_, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
        const bool there = waitUntil([this] { return shown() > 0; });
        call(QStringLiteral("org.dunstproject.cmd0"), QStringLiteral("ContextMenuCall"), {});
        return there;
    }
    int shown() const {
        const QDBusMessage reply = call(QStringLiteral("org.freedesktop.DBus.Properties"),
                                        QStringLiteral("Get"), {"org.dunstproject.cmd0", "displayedLength"});
        return reply.arguments().value(0).value<QDBusVariant>().variant().toInt();
    }

private:
    static QString name() { return QStringLiteral("org.freedesktop.Notifications"); }
    static QDBusMessage call(const QString& interface, const QString& method, const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createMethodCall(
            name(), QStringLiteral("/org/freedesktop/Notifications"), interface, method);
        message.setArguments(arguments);
        return replyTo(message, QDBusConnection::sessionBus());
    }
    /// Waits until this process has received the capabilities of the service.
    static void waitUntilReady() {
        if (!waitUntil(isRunning))
            return;
        QCoreApplication::processEvents();
        call(name(), QStringLiteral("GetCapabilities"), {});
        QCoreApplication::processEvents();
    }
    static void write(const QString& path, const QString& text) {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(text.toUtf8());
    }

    QString picker_;
    RunningProgram program_;
};

} // namespace velmora
