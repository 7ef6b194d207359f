#pragma once

#include "desktop/wait_until.h"

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
/// A program that ends with its owner.
using RunningProgram = std::unique_ptr<QProcess, Kill>;

/// An X server without a screen, and the programs that run on it, in a home of their own.
class VirtualDisplay {
public:
    VirtualDisplay() {
        server_->start(QStringLiteral("Xvfb"),
                       {"-displayfd", "1", "-screen", "0", "1600x1000x24", "-nolisten", "tcp"});
        if (server_->waitForStarted() && server_->waitForReadyRead())
            name_ = ':' + QString::fromLatin1(server_->readLine().trimmed());
    }

    /// Such as ":99"; empty when there is none.
    const QString& name() const { return name_; }
    QString home() const { return home_.path(); }

    RunningProgram run(const QString& program, const QStringList& arguments = {}) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DISPLAY", name_);
        for (const char* place : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            environment.insert(place, home());
        environment.insert("NO_AT_BRIDGE", "1");
        RunningProgram process(new QProcess);
        process->setProcessEnvironment(environment);
        process->start(program, arguments);
        return process;
    }
    QByteArray outputOf(const QString& program, const QStringList& arguments) const {
        const auto process = run(program, arguments);
        process->waitForFinished();
        return process->readAllStandardOutput();
    }

private:
    QTemporaryDir home_;
    QString name_;
    RunningProgram server_{new QProcess};
};

/// A notification service as people run it, and a hand that answers there.
class RealService {
public:
    virtual ~RealService() = default;

    /// Presses the action, once the notification is there.
    virtual bool choose(const QString& action) = 0;

    static bool isThere() { return QDBusConnection::sessionBus().interface()->isServiceRegistered(name()); }
    static QDBusMessage call(const QString& interface, const QString& method, const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createMethodCall(
            name(), QStringLiteral("/org/freedesktop/Notifications"), interface, method);
        message.setArguments(arguments);
        return QDBusConnection::sessionBus().call(message, QDBus::BlockWithGui, 20'000);
    }

protected:
    /// Until whoever listens on this process' connection knows what the service can do.
    static bool waitForService() {
        if (!waitUntil(isThere))
            return false;
        QCoreApplication::processEvents();
        call(name(), QStringLiteral("GetCapabilities"), {});
        QCoreApplication::processEvents();
        return true;
    }

private:
    static QString name() { return QStringLiteral("org.freedesktop.Notifications"); }
};

/// Its menu of actions is a script of the test's.
class Dunst : public RealService {
public:
    explicit Dunst(const VirtualDisplay& display) : picker_(display.home() + QStringLiteral("/pick")) {
        const QString rules = display.home() + QStringLiteral("/dunstrc");
        write(rules, "[global]\ndmenu = " + picker_);
        program_ = display.run(QStringLiteral("dunst"), {"-conf", rules});
        waitForService();
    }

    bool choose(const QString& action) override {
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
    static void write(const QString& path, const QString& text) {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(text.toUtf8());
    }

    QString picker_;
    RunningProgram program_;
};

/// Pressed with the mouse: its buttons stand in one row at the notification's lower edge.
class Xfce : public RealService {
public:
    explicit Xfce(const VirtualDisplay& display) : display_(display) {
        settings_ = display.run(programOf("org.xfce.Xfconf"));
        waitUntil(
            [] { return QDBusConnection::sessionBus().interface()->isServiceRegistered("org.xfce.Xfconf"); });
        program_ = display.run(programOf("org.xfce.xfce4-notifyd.Notifications"));
        waitForService();
    }

    bool choose(const QString& action) override {
        constexpr int aboveEdge = 31; // pixels, the middle of the buttons
        const double across = action == QStringLiteral("Ignore") ? 5.0 / 6 : 0.5;
        QList<int> place;
        const bool there = waitUntil([&] {
            place.clear();
            for (const QByteArray& line : display_
                                              .outputOf("xdotool", {"search", "--onlyvisible", "--class", ".",
                                                                    "getwindowgeometry", "--shell"})
                                              .split('\n'))
                if (line.contains('='))
                    place.append(line.split('=')[1].toInt());
            return place.size() >= 5;
        });
        if (there)
            display_.outputOf("xdotool", {"mousemove", QString::number(place[1] + int(place[3] * across)),
                                          QString::number(place[2] + place[4] - aboveEdge), "click", "1"});
        return there;
    }

private:
    static QString programOf(const QString& service) {
        QFile file("/usr/share/dbus-1/services/" + service + ".service");
        if (file.open(QIODevice::ReadOnly))
            for (const QByteArray& line : file.readAll().split('\n'))
                if (line.startsWith("Exec="))
                    return QString::fromUtf8(line.mid(5).trimmed());
        return {};
    }

    const VirtualDisplay& display_;
    RunningProgram settings_, program_;
};

} // namespace velmora
