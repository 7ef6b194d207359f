#include "store/notifications.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <utility>

namespace velmora {

namespace {

const QString outageIdentifier = QStringLiteral("outage");
const std::string serverKey; // no camera has an empty id

QString tr(const char* text) {
    return QCoreApplication::translate("Notifications", text);
}

Notification notificationOf(const LiveState& state) {
    const std::string id = state.visitor ? state.visitor->cameraId : std::string();
    const CameraInfo* camera = findCamera(state.site, id);
    const QString name = camera ? QString::fromStdString(camera->name) : tr("a camera");
    return {QString::fromStdString(state.missionId.value_or("det")),
            tr("Someone you don't know is at the %1").arg(name.toLower()),
            tr("Launch the drone to keep an eye on them?"),
            camera ? QString::fromStdString(camera->snapshot) : QString(), alertId(state)};
}

/// "14:02", or "Wed 19 Nov, 14:02" if that is not the local day of now.
QString timeText(Date date) {
    const auto then = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(secondsSince1970(date) * 1000));
    const bool today = then.date() == QDate::currentDate();
    return QLocale(QLocale::English)
        .toString(then, today ? QStringLiteral("HH:mm") : QStringLiteral("ddd d MMM, HH:mm"));
}

QString outageBody(const Outage& outage) {
    if (outage.serverIsSilent)
        return tr("No answer since %1. No alert arrives until the link is back.").arg(timeText(outage.since));
    QStringList names;
    for (const auto& [id, name] : outage.cameras)
        names.append(QString::fromStdString(name));
    if (names.size() == 1)
        return tr("No picture since %1. It raises no alert until it is back.").arg(timeText(outage.since));
    return tr("%1: no picture since %2 or later. They raise no alert until they are back.")
        .arg(names.join(QStringLiteral(", ")), timeText(outage.since));
}

std::set<std::string> keysOf(const Outage& outage) {
    if (outage.serverIsSilent)
        return {serverKey};
    std::set<std::string> keys;
    for (const auto& [id, name] : outage.cameras)
        keys.insert(id);
    return keys;
}

} // namespace

QString outageTitle(const Outage& outage) {
    if (outage.serverIsSilent)
        return tr("Velmora can't reach your server");
    return outage.cameras.size() == 1
               ? tr("%1 is offline").arg(QString::fromStdString(outage.cameras.begin()->second))
               : tr("%1 cameras are offline").arg(outage.cameras.size());
}

void Notifications::postAlert(const LiveState& state, const Settings& settings) {
    withdrawAlert();
    if (!settings.notifyMac || !state.visitor)
        return;
    const Notification notification = notificationOf(state);
    alert_ = notification.identifier;
    notifier_.post(notification);
}

void Notifications::withdrawAlert() {
    if (!alert_.isEmpty())
        notifier_.withdraw(std::exchange(alert_, {}));
}

void Notifications::showOutage(const std::optional<Outage>& outage, const Settings& settings) {
    const auto wanted = settings.notifyMac ? outage : std::nullopt;
    forgetEnded(outage);
    if (wanted == outage_)
        return;
    if (std::exchange(outage_, wanted))
        notifier_.withdraw(outageIdentifier);
    if (!wanted)
        return;
    const std::size_t before = reported_.size();
    reported_.merge(keysOf(*wanted));
    if (reported_.size() > before)
        notifier_.post({outageIdentifier, outageTitle(*wanted), outageBody(*wanted)});
}

/// While the server is silent nothing is known about the cameras.
void Notifications::forgetEnded(const std::optional<Outage>& outage) {
    if (outage && outage->serverIsSilent)
        return;
    const auto lasting = outage ? keysOf(*outage) : std::set<std::string>();
    std::erase_if(reported_, [&](const std::string& key) { return !lasting.contains(key); });
}

} // namespace velmora
