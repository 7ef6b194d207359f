#pragma once

#include "model/settings.h"
#include "store/notifier.h"
#include "store/outage_watch.h"

#include <set>

namespace velmora {

/// "Velmora can't reach your server", "East garden is offline" or "2 cameras are offline".
QString outageTitle(const Outage& outage);

/// Decides what the desktop's notifications tell: the waiting alert and, if there is one, an outage. The
/// owner's switch for alerts on this computer turns both off.
class Notifications {
public:
    /// The notifier must outlive this.
    explicit Notifications(Notifier& notifier) : notifier_(notifier) {}

    /// Posts the alert of the state, which must have one, in place of the one before.
    void postAlert(const LiveState& state, const Settings& settings);
    void withdrawAlert();
    /// Posts an outage once, and withdraws it when it is over. At most one notification of an outage is
    /// shown.
    void showOutage(const std::optional<Outage>& outage, const Settings& settings, Date now);

private:
    /// Ids of the offline cameras; nullopt for the silent server.
    using Causes = std::set<std::optional<std::string>>;

    static Causes causesOf(const std::optional<Outage>& outage);

    Notifier& notifier_;
    std::optional<QString> alert_; ///< identifier of the alert posted
    Causes shown_;                 ///< causes in the notification
    Causes reported_;              ///< causes that were posted and last
};

} // namespace velmora
