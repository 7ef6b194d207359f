#include "store/notifications.h"

#include "language/language.h"
#include "language/local_date_time.h"
#include "language/stored_text.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

const QString outageIdentifier = QStringLiteral("velmora-outage"); // no mission id of a server

Notification notificationOf(const LiveState& state) {
    const std::string id = state.visitor ? state.visitor->cameraId : std::string();
    const CameraInfo* camera = findCamera(state.site, id);
    const QString name = camera ? shownText(camera->name) : Words::tr("a camera");
    return {QString::fromStdString(state.missionId.value_or("det")),
            Words::tr("Someone you don't know is at the %1").arg(nameInSentence(name)),
            Words::tr("Launch the drone to keep an eye on them?"),
            camera ? QString::fromStdString(camera->snapshot) : QString(), alertId(state)};
}

/// "14:02", or "Wed 19 Nov, 14:02" if that is not the local day of `now`.
QString timeText(Date date, Date now) {
    const bool today = localDateTime(date).date() == localDateTime(now).date();
    return displayLocale().toString(localDateTime(date),
                                    today ? QStringLiteral("HH:mm")
                                          : Words::tr("ddd d MMM, HH:mm", "form of a date"));
}

QString outageBody(const Outage& outage, Date now) {
    const QString since = timeText(outage.since, now);
    if (outage.serverIsSilent)
        return Words::tr("No answer since %1. No alert arrives until the link is back.").arg(since);
    if (outage.cameras.size() == 1)
        return Words::tr("Offline at least since %1. It raises no alert until it is back.").arg(since);
    QStringList names;
    for (const auto& [id, name] : outage.cameras)
        names.append(shownText(name));
    return Words::tr("%1 raise no alert until they are back.").arg(names.join(QStringLiteral(", ")));
}

} // namespace

QString outageTitle(const Outage& outage) {
    if (outage.serverIsSilent)
        return Words::tr("Velmora can't reach your server");
    return outage.cameras.size() == 1
               ? Words::tr("%1 is offline").arg(shownText(outage.cameras.begin()->second))
               : Words::tr("%1 cameras are offline").arg(outage.cameras.size());
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
    if (const auto alert = std::exchange(alert_, std::nullopt))
        notifier_.withdraw(*alert);
}

/// A notification that the owner has closed is not posted again when one of its causes ends.
void Notifications::showOutage(const std::optional<Outage>& outage, const Settings& settings, Date now) {
    const Causes causes = causesOf(settings.notifyMac ? outage : std::nullopt);
    const bool camerasAreKnown = !outage || !outage->serverIsSilent;
    if (camerasAreKnown)
        std::erase_if(reported_, [&](const auto& cause) { return !causes.contains(cause); });
    if (causes == shown_)
        return;
    const bool isNew = !std::ranges::includes(reported_, causes);
    const bool isLess = !causes.empty() && std::ranges::includes(shown_, causes);
    shown_ = causes;
    reported_.insert(causes.begin(), causes.end());
    if (isNew || (isLess && notifier_.isShown(outageIdentifier)))
        notifier_.post({outageIdentifier, outageTitle(*outage), outageBody(*outage, now)});
    else
        notifier_.withdraw(outageIdentifier);
}

Notifications::Causes Notifications::causesOf(const std::optional<Outage>& outage) {
    if (!outage)
        return {};
    if (outage->serverIsSilent)
        return {std::nullopt};
    Causes causes;
    for (const auto& [id, name] : outage->cameras)
        causes.insert(id);
    return causes;
}

} // namespace velmora
