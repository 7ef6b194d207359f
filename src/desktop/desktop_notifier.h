#pragma once

#include "model/enums.h"
#include "store/notifier.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDeadlineTimer>
#include <QObject>

#include <functional>
#include <map>
#include <optional>

namespace velmora {

/// A picture as the notification service takes it: RGBA rows, eight bits a channel.
struct NotificationPicture {
    int width = 0;
    int height = 0;
    int rowStride = 0; ///< bytes
    QByteArray pixels;
};

/// Posts to the desktop's notification service (org.freedesktop.Notifications) and hears its answers. Every
/// call is asynchronous, so that a service that hangs holds nothing up; a missing or failing service is
/// silent.
class DesktopNotifier final : public QObject, public Notifier {
    Q_OBJECT

public:
    /// `pictureOf` looks up artwork by name; a picture without pixels is left out.
    DesktopNotifier(const QDBusConnection& bus, std::function<NotificationPicture(const QString&)> pictureOf);

    void post(const DetectionNotification& notification) override;
    void withdrawAll() override;

signals:
    /// The owner chose "Launch drone" or "Ignore" in the notification of this alert.
    void answered(velmora::Command command, const velmora::AlertId& alert);
    /// The window is asked for; the token lets it come to the front where the desktop wants one.
    void windowRequested(const QString& activationToken);

private slots:
    void onActionInvoked(uint id, const QString& action);
    void onActivationToken(uint id, const QString& token);
    void onNotificationClosed(uint id, uint reason);

private:
    /// A notification of this run, from the moment it is sent.
    struct Posted {
        AlertId alert;           ///< that its actions answer
        uint id = 0;             ///< 0 until the service has answered
        bool withdrawn = false;  ///< before the service had answered
        QDeadlineTimer quiet{0}; ///< until a second press counts as another answer
        QString token;
        std::optional<DetectionNotification> next; ///< to replace it as soon as its id is known
    };

    void askForCapabilities();
    void onOwnerChanged(const QString& service, const QString& before, const QString& now);
    void send(const DetectionNotification& notification, Posted& posted);
    /// The service took the notification, or refused it (id 0).
    void onPosted(const QString& identifier, uint id);
    void close(uint id);
    QVariantMap hintsFor(const DetectionNotification& notification) const;
    QStringList actions() const;
    std::map<QString, Posted>::iterator find(uint id);

    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;
    std::function<NotificationPicture(const QString&)> pictureOf_;
    std::optional<QStringList> capabilities_; ///< of the service; absent until it has told
    std::map<QString, Posted> posted_;        ///< by identifier
};

} // namespace velmora
