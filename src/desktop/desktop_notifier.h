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

/// A picture in the format of the notification service: RGBA rows, 8 bits per channel.
struct NotificationPicture {
    int width = 0;
    int height = 0;
    int rowStride = 0; ///< bytes
    QByteArray pixels;
};

/// Posts to the desktop's notification service (org.freedesktop.Notifications) and reports the answers. Every
/// call is asynchronous, so a hanging service blocks nothing. Errors are silent.
class DesktopNotifier final : public QObject, public Notifier {
    Q_OBJECT

public:
    /// `pictureOf` looks up artwork by name; a picture without pixels is not sent.
    DesktopNotifier(const QDBusConnection& bus, std::function<NotificationPicture(const QString&)> pictureOf);
    ~DesktopNotifier() override { withdrawAll(); }

    /// Closes every notification posted. Waits at most a quarter of a second for a slow service.
    void withdrawAll();

    void post(const Notification& notification) override;
    void withdraw(const QString& identifier) override;
    bool isShown(const QString& identifier) const override;

signals:
    /// The owner chose "Launch drone" or "Ignore" in the notification of this alert.
    void answered(velmora::Command command, const velmora::AlertId& alert);
    /// The window should come to the front. `activationToken` allows it to, on desktops that require a token;
    /// it may be empty.
    void windowRequested(const QString& activationToken);

private slots:
    void onActionInvoked(uint id, const QString& action);
    void onActivationToken(uint id, const QString& token);
    void onNotificationClosed(uint id, uint reason);

private:
    /// A notification that this process has sent.
    struct Posted {
        std::optional<AlertId> alert;     ///< the alert that its actions answer
        uint id = 0;                      ///< 0 until the service has replied
        bool withdrawn = false;           ///< withdrawn before the service replied
        QDeadlineTimer answerCooldown{0}; ///< further actions are ignored until it expires
        QString token;
        std::optional<Notification> next; ///< replaces it as soon as its id is known
    };

    void askForCapabilities();
    void onOwnerChanged(const QString& service, const QString& before, const QString& now);
    void send(const Notification& notification, Posted& posted);
    /// Handles the reply to Notify; `id` is 0 if the service refused the notification.
    void onPosted(const QString& identifier, uint id);
    void close(uint id);
    QVariantMap hintsFor(const Notification& notification) const;
    QStringList actionsFor(const Notification& notification) const;
    std::map<QString, Posted>::iterator find(uint id);

    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;
    std::function<NotificationPicture(const QString&)> pictureOf_;
    std::optional<QStringList> capabilities_; ///< of the service; nullopt until it has replied
    std::map<QString, Posted> posted_;        ///< by identifier
};

} // namespace velmora
