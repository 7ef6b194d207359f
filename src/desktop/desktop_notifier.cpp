#include "desktop/desktop_notifier.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <algorithm>

namespace velmora {

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
const QString launchAction = QStringLiteral("LAUNCH"), ignoreAction = QStringLiteral("IGNORE"),
              defaultAction = QStringLiteral("default");
constexpr uchar normalUrgency = 1, criticalUrgency = 2;
constexpr int neverExpires = 0;
constexpr uint dismissedByUser = 2;      // a reason of NotificationClosed
constexpr int answerCooldownTime = 2000; // milliseconds
constexpr int longestWaitAtExit = 250;   // milliseconds

QDBusMessage call(const QString& method) {
    return QDBusMessage::createMethodCall(service, path, service, method);
}

/// Removes control characters, which some services cannot show.
QString printable(QString text) {
    text.removeIf([](QChar character) { return character.category() == QChar::Other_Control; });
    return text;
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const NotificationPicture& picture) {
    constexpr bool hasAlpha = true;
    constexpr int bitsPerSample = 8, channels = 4;
    argument.beginStructure();
    argument << picture.width << picture.height << picture.rowStride << hasAlpha << bitsPerSample << channels
             << picture.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotificationPicture& picture) {
    bool hasAlpha = false;
    int bitsPerSample = 0, channels = 0;
    argument.beginStructure();
    argument >> picture.width >> picture.height >> picture.rowStride >> hasAlpha >> bitsPerSample >>
        channels >> picture.pixels;
    argument.endStructure();
    return argument;
}

} // namespace velmora

Q_DECLARE_METATYPE(velmora::NotificationPicture)

namespace velmora {

DesktopNotifier::DesktopNotifier(const QDBusConnection& bus,
                                 std::function<NotificationPicture(const QString&)> pictureOf)
    : bus_(bus),
      watcher_(service, bus, QDBusServiceWatcher::WatchForOwnerChange),
      pictureOf_(std::move(pictureOf)) {
    qDBusRegisterMetaType<NotificationPicture>();
    if (!bus_.isConnected())
        return;
    bus_.connect(service, path, service, QStringLiteral("ActionInvoked"), this,
                 SLOT(onActionInvoked(uint, QString)));
    bus_.connect(service, path, service, QStringLiteral("ActivationToken"), this,
                 SLOT(onActivationToken(uint, QString)));
    bus_.connect(service, path, service, QStringLiteral("NotificationClosed"), this,
                 SLOT(onNotificationClosed(uint, uint)));
    connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this, &DesktopNotifier::onOwnerChanged);
    askForCapabilities();
}

/// If the notification service exits, forget its notifications. When a new one appears, query its
/// capabilities. A service that our own call started has no predecessor and already has the notification.
void DesktopNotifier::onOwnerChanged(const QString&, const QString& before, const QString& now) {
    if (!before.isEmpty()) {
        posted_.clear();
        capabilities_.reset();
    }
    if (!now.isEmpty())
        askForCapabilities();
}

void DesktopNotifier::askForCapabilities() {
    auto* reply = new QDBusPendingCallWatcher(bus_.asyncCall(call(QStringLiteral("GetCapabilities"))), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        const QDBusPendingReply<QStringList> capabilities = *reply;
        if (capabilities.isValid())
            capabilities_ = capabilities.value();
        reply->deleteLater();
    });
}

void DesktopNotifier::post(const Notification& notification) {
    if (!bus_.isConnected())
        return;
    const auto [entry, isNew] = posted_.try_emplace(notification.identifier);
    Posted& posted = entry->second;
    if (!isNew && posted.id == 0) {
        posted.next = notification;
        posted.withdrawn = false;
    } else {
        send(notification, posted);
    }
}

void DesktopNotifier::send(const Notification& notification, Posted& posted) {
    if (posted.id > 0 && posted.alert != notification.alert)
        close(std::exchange(posted.id, 0)); // its actions must not answer the new alert
    posted.alert = notification.alert;
    QString body = printable(notification.body);
    if (capabilities_ && capabilities_->contains(QStringLiteral("body-markup")))
        body = body.toHtmlEscaped();
    QDBusMessage message = call(QStringLiteral("Notify"));
    message << QStringLiteral("Velmora") << posted.id << QStringLiteral("org.velmora.Velmora")
            << printable(notification.title) << body << actionsFor(notification) << hintsFor(notification)
            << neverExpires;
    auto* reply = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this,
            [this, reply, identifier = notification.identifier] {
                const QDBusPendingReply<uint> id = *reply;
                onPosted(identifier, id.isValid() ? id.value() : 0);
                reply->deleteLater();
            });
}

void DesktopNotifier::onPosted(const QString& identifier, uint id) {
    const auto entry = posted_.find(identifier);
    const bool wanted = entry != posted_.end() && !entry->second.withdrawn;
    if (!wanted) {
        if (id > 0)
            close(id);
        posted_.erase(identifier);
        return;
    }
    if (id > 0)
        entry->second.id = id;
    if (const auto next = std::exchange(entry->second.next, std::nullopt))
        send(*next, entry->second);
    else if (entry->second.id == 0)
        posted_.erase(entry);
}

void DesktopNotifier::withdraw(const QString& identifier) {
    const auto entry = posted_.find(identifier);
    if (entry == posted_.end())
        return;
    if (entry->second.id == 0) {
        entry->second.withdrawn = true; // it is closed as soon as its id is known
        entry->second.next.reset();
        return;
    }
    close(entry->second.id);
    posted_.erase(entry);
}

bool DesktopNotifier::isShown(const QString& identifier) const {
    const auto entry = posted_.find(identifier);
    return entry != posted_.end() && !entry->second.withdrawn;
}

void DesktopNotifier::withdrawAll() {
    QStringList identifiers;
    for (const auto& [identifier, posted] : posted_)
        identifiers.append(identifier);
    for (const QString& identifier : identifiers)
        withdraw(identifier);
    QDeadlineTimer deadline(longestWaitAtExit);
    while (!posted_.empty() && !deadline.hasExpired()) // for ids that are not known yet
        QCoreApplication::processEvents(QEventLoop::AllEvents, int(deadline.remainingTime()));
    if (bus_.isConnected() && !identifiers.isEmpty()) // the reply shows that the messages before it were sent
        bus_.call(call(QStringLiteral("GetCapabilities")), QDBus::Block, longestWaitAtExit);
}

void DesktopNotifier::close(uint id) {
    QDBusMessage message = call(QStringLiteral("CloseNotification"));
    message << id;
    bus_.asyncCall(message);
}

/// Capabilities are unknown until the service replies; assume that it supports actions, as most do.
QStringList DesktopNotifier::actionsFor(const Notification& notification) const {
    if (capabilities_ && !capabilities_->contains(QStringLiteral("actions")))
        return {};
    QStringList actions{defaultAction, tr("Open Velmora")};
    if (notification.alert)
        actions << launchAction << tr("Launch drone") << ignoreAction << tr("Ignore");
    return actions;
}

QVariantMap DesktopNotifier::hintsFor(const Notification& notification) const {
    QVariantMap hints{{QStringLiteral("desktop-entry"), QStringLiteral("org.velmora.Velmora")}};
    if (!notification.alert) {
        hints.insert(QStringLiteral("category"), QStringLiteral("x-velmora.outage"));
        hints.insert(QStringLiteral("urgency"), QVariant::fromValue(normalUrgency));
        return hints;
    }
    hints.insert(QStringLiteral("category"), QStringLiteral("x-velmora.detection"));
    hints.insert(QStringLiteral("urgency"), QVariant::fromValue(criticalUrgency));
    hints.insert(QStringLiteral("resident"), true);
    hints.insert(QStringLiteral("sound-name"), QStringLiteral("alarm-clock-elapsed"));
    if (const NotificationPicture picture = pictureOf_(notification.picture); !picture.pixels.isEmpty())
        hints.insert(QStringLiteral("image-data"), QVariant::fromValue(picture));
    return hints;
}

std::map<QString, DesktopNotifier::Posted>::iterator DesktopNotifier::find(uint id) {
    return std::ranges::find_if(posted_, [id](const auto& one) { return id != 0 && one.second.id == id; });
}

/// The signal is broadcast: ignore notifications of other programs. The cooldown makes a double click count
/// once.
void DesktopNotifier::onActionInvoked(uint id, const QString& action) {
    const auto entry = find(id);
    if (entry == posted_.end() || !entry->second.answerCooldown.hasExpired())
        return;
    const std::optional<AlertId> alert = entry->second.alert;
    const QString token = entry->second.token;
    const bool answers = alert && (action == launchAction || action == ignoreAction);
    if (answers)
        entry->second.answerCooldown.setRemainingTime(answerCooldownTime);
    if (action != ignoreAction)
        emit windowRequested(token);
    if (answers)
        emit answered(action == launchAction ? Command::approve : Command::ignore, *alert);
}

void DesktopNotifier::onActivationToken(uint id, const QString& token) {
    if (const auto entry = find(id); entry != posted_.end())
        entry->second.token = token;
}

/// If the owner dismisses an alert without an answer, show the window.
void DesktopNotifier::onNotificationClosed(uint id, uint reason) {
    const auto entry = find(id);
    if (entry == posted_.end())
        return;
    const Posted closed = entry->second;
    posted_.erase(entry);
    if (reason == dismissedByUser && closed.alert && closed.answerCooldown.hasExpired())
        emit windowRequested(closed.token);
}

} // namespace velmora
