#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

#include <utility>
#include <vector>

namespace velmora {

/// A fake notification service on its own bus connection.
class NotificationService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown {
        uint id;
        uint replaces;
        QString summary;
        QString body;
        QStringList actions;
        QVariantMap hints;
        int timeout;
    };

    explicit NotificationService(QStringList capabilities)
        : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                             QStringLiteral("notification service"))),
          capabilities_(std::move(capabilities)) {
        bus_.registerObject(path(), this, QDBusConnection::ExportScriptableSlots);
        bus_.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }
    ~NotificationService() override {
        bus_.unregisterService(QStringLiteral("org.freedesktop.Notifications"));
        QDBusConnection::disconnectFromBus(QStringLiteral("notification service"));
    }

    void invoke(uint id, const QString& action) { signal(QStringLiteral("ActionInvoked"), {id, action}); }
    void dismiss(uint id, uint reason) { signal(QStringLiteral("NotificationClosed"), {id, reason}); }
    void giveToken(uint id, const QString& token) { signal(QStringLiteral("ActivationToken"), {id, token}); }

    void answerHeld() {
        for (const QDBusMessage& message : std::exchange(held, {}))
            bus_.send(message.createReply(++lastId_));
    }

    std::vector<Shown> shown;
    std::vector<uint> closed;
    bool refuses = false; ///< answers Notify with an error
    bool hangs = false;   ///< answers Notify only in answerHeld()
    std::vector<QDBusMessage> held;

public slots:
    Q_SCRIPTABLE QStringList GetCapabilities() {
        ++asked;
        return capabilities_;
    }
    Q_SCRIPTABLE uint Notify(const QString&, uint replaces, const QString&, const QString& summary,
                             const QString& body, const QStringList& actions, const QVariantMap& hints,
                             int timeout, const QDBusMessage& message) {
        if (refuses) {
            message.setDelayedReply(true);
            bus_.send(message.createErrorReply(QStringLiteral("org.example.Refused"), {}));
            return 0;
        }
        if (hangs) {
            message.setDelayedReply(true);
            held.push_back(message);
            return 0;
        }
        const uint id = replaces > 0 ? replaces : ++lastId_;
        shown.push_back({id, replaces, summary, body, actions, hints, timeout});
        return id;
    }
    Q_SCRIPTABLE void CloseNotification(uint id) { closed.push_back(id); }

public:
    int asked = 0; ///< number of calls of GetCapabilities

private:
    static QString path() { return QStringLiteral("/org/freedesktop/Notifications"); }
    void signal(const QString& name, const QVariantList& arguments) {
        QDBusMessage message =
            QDBusMessage::createSignal(path(), QStringLiteral("org.freedesktop.Notifications"), name);
        message.setArguments(arguments);
        bus_.send(message);
    }

    QDBusConnection bus_;
    QStringList capabilities_;
    uint lastId_ = 0;
};

} // namespace velmora
