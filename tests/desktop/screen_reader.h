#pragma once

#include "desktop/wait_until.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QObject>
#include <QRect>

#include <algorithm>

namespace velmora {

/// Finds and presses a program's buttons over AT-SPI, as a screen reader does. The tests' bus is the
/// accessibility bus, too; there is no registry.
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
    /// The path of the visible button with this name; waits for it, and is empty if it does not come.
    QString button(const QString& name) {
        QString path;
        waitUntil([&] {
            if (service_.isEmpty())
                service_ = findService();
            path = service_.isEmpty() ? QString() : search(root(), name);
            return !path.isEmpty();
        });
        return path;
    }
    /// The center of that button, in pixels of the screen.
    QPoint centerOf(const QString& name) {
        const QDBusMessage reply = call(button(name), "Component", "GetExtents", {0U});
        QRect extents;
        if (reply.arguments().size() == 1)
            reply.arguments().front().value<QDBusArgument>() >> extents;
        return extents.center();
    }
    /// Asks for the button's first action, which is "Press".
    bool press(const QString& path) const {
        return call(path, "Action", "DoAction", {0}).arguments().value(0).toBool();
    }

public slots:
    Q_SCRIPTABLE QString GetAddress() { return qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"); }

private:
    static QString root() { return QStringLiteral("/org/a11y/atspi/accessible/root"); }

    /// A program has one more connection for its accessible objects.
    QString findService() const {
        const QDBusConnectionInterface& names = *bus_.interface();
        for (const QString& name : names.registeredServiceNames().value())
            if (name.startsWith(':') && names.servicePid(name) == process_ &&
                !call(name, root(), "Accessible", "GetChildren", {}).arguments().isEmpty())
                return name;
        return {};
    }
    QString search(const QString& path, const QString& name) const {
        if (isVisibleButton(path, name))
            return path;
        const QDBusMessage reply = call(path, "Accessible", "GetChildren", {});
        if (reply.arguments().size() != 1)
            return {};
        const auto children = reply.arguments().front().value<QDBusArgument>();
        QString found;
        children.beginArray();
        while (!children.atEnd()) {
            QString service;
            QDBusObjectPath child;
            children.beginStructure();
            children >> service >> child;
            children.endStructure();
            if (found.isEmpty())
                found = search(child.path(), name);
        }
        children.endArray();
        return found;
    }
    bool isVisibleButton(const QString& path, const QString& name) const {
        constexpr uint pushButton = 43, showing = 1U << 25U;
        const auto property = call(service_, path, "Properties", "Get", {accessible("Accessible"), "Name"});
        if (property.arguments().value(0).value<QDBusVariant>().variant().toString() != name ||
            call(path, "Accessible", "GetRole", {}).arguments().value(0).toUInt() != pushButton)
            return false;
        const auto states = qdbus_cast<QList<uint>>(
            call(path, "Accessible", "GetState", {}).arguments().value(0).value<QDBusArgument>());
        return !states.isEmpty() && (states.front() & showing) != 0;
    }

    static QString accessible(const char* interface) {
        return (qstrcmp(interface, "Properties") == 0 ? QStringLiteral("org.freedesktop.DBus.")
                                                      : QStringLiteral("org.a11y.atspi.")) +
               interface;
    }
    QDBusMessage call(const QString& path, const char* interface, const char* method,
                      const QVariantList& arguments) const {
        return call(service_, path, interface, method, arguments);
    }
    QDBusMessage call(const QString& service, const QString& path, const char* interface, const char* method,
                      const QVariantList& arguments) const {
        QDBusMessage message =
            QDBusMessage::createMethodCall(service, path, accessible(interface), QLatin1String(method));
        message.setArguments(arguments);
        const QDBusMessage reply = bus_.call(message, QDBus::Block, 5000);
        return reply.type() == QDBusMessage::ReplyMessage ? reply : QDBusMessage();
    }

    QDBusConnection bus_;
    uint process_ = 0;
    QString service_;
};

} // namespace velmora
