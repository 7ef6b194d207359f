#pragma once

#include "desktop/bus_call.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QObject>
#include <QRect>

namespace velmora {

/// Finds and presses a program's buttons over AT-SPI, as a screen reader does. The tests' bus also is the
/// accessibility bus; there is no registry.
class ScreenReader : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.a11y.Bus")

public:
    ScreenReader() : bus_(QDBusConnection::sessionBus()) {
        bus_.registerObject(QStringLiteral("/org/a11y/bus"), this, QDBusConnection::ExportScriptableSlots);
        bus_.registerService(QStringLiteral("org.a11y.Bus"));
    }
    ~ScreenReader() override { bus_.unregisterService(QStringLiteral("org.a11y.Bus")); }

    /// Reads this program from now on. It must run with QT_LINUX_ACCESSIBILITY_ALWAYS_ON.
    void attach(qint64 processId) {
        process_ = static_cast<uint>(processId);
        service_.clear();
    }
    /// Waits for the visible button with this name and returns its path; empty if it does not appear.
    QString button(const QString& name) {
        QString path;
        waitUntil([&] {
            if (service_.isEmpty())
                findService();
            path = service_.isEmpty() ? QString() : search(name);
            return !path.isEmpty();
        });
        return path;
    }
    /// The center of that button, in pixels of the screen.
    QPoint centerOf(const QString& name) {
        return qdbus_cast<QRect>(call(button(name), "org.a11y.atspi.Component", "GetExtents", {0U}).value(0))
            .center();
    }
    /// Invokes the button's first action, which is "Press".
    bool press(const QString& path) const {
        return call(path, "org.a11y.atspi.Action", "DoAction", {0}).value(0).toBool();
    }

public slots:
    Q_SCRIPTABLE QString GetAddress() { return qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"); }

private:
    static constexpr const char* accessible = "org.a11y.atspi.Accessible";
    static QString root() { return QStringLiteral("/org/a11y/atspi/accessible/root"); }

    /// Accessible objects are on a separate connection of the process: the one that has the root object.
    void findService() {
        const QDBusConnectionInterface& names = *bus_.interface();
        for (const QString& name : names.registeredServiceNames().value()) {
            if (!name.startsWith(':') || names.servicePid(name) != process_)
                continue;
            service_ = name;
            if (!call(root(), accessible, "GetChildren", {}).isEmpty())
                return;
            service_.clear();
        }
    }
    /// Calls a complete level of the tree at once, because each reply takes long on a loaded machine.
    QString search(const QString& name) const {
        for (QStringList level{root()}; !level.isEmpty();) {
            const auto names = callAll(level, "org.freedesktop.DBus.Properties", "Get", {accessible, "Name"});
            for (qsizetype i = 0; i < level.size(); ++i)
                if (names[i].value(0).value<QDBusVariant>().variant() == name && isVisibleButton(level[i]))
                    return level[i];
            const auto families = callAll(level, accessible, "GetChildren", {});
            level.clear();
            for (const QVariantList& family : families)
                if (!family.isEmpty())
                    level += pathsIn(family.front().value<QDBusArgument>());
        }
        return {};
    }
    static QStringList pathsIn(const QDBusArgument& references) {
        QStringList paths;
        references.beginArray();
        while (!references.atEnd()) {
            QString service;
            QDBusObjectPath path;
            references.beginStructure();
            references >> service >> path;
            references.endStructure();
            paths.append(path.path());
        }
        references.endArray();
        return paths;
    }
    bool isVisibleButton(const QString& path) const {
        constexpr uint pushButton = 43, showing = 1U << 25U;
        const auto states = qdbus_cast<QList<uint>>(call(path, accessible, "GetState", {}).value(0));
        return call(path, accessible, "GetRole", {}).value(0) == pushButton &&
               (states.value(0) & showing) != 0;
    }

    /// The result of the call; empty if it fails.
    QVariantList call(const QString& path, const char* interface, const char* method,
                      const QVariantList& arguments) const {
        return callAll({path}, interface, method, arguments).front();
    }
    QList<QVariantList> callAll(const QStringList& paths, const char* interface, const char* method,
                                const QVariantList& arguments) const {
        QList<QDBusPendingCall> calls;
        for (const QString& path : paths) {
            QDBusMessage message = QDBusMessage::createMethodCall(service_, path, QLatin1String(interface),
                                                                  QLatin1String(method));
            message.setArguments(arguments);
            calls.append(bus_.asyncCall(message));
        }
        QList<QVariantList> replies;
        for (QDBusPendingCall& pending : calls) {
            pending.waitForFinished();
            replies.append(pending.isError() ? QVariantList() : pending.reply().arguments());
        }
        return replies;
    }

    QDBusConnection bus_;
    uint process_ = 0;
    QString service_;
};

} // namespace velmora
