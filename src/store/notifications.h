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
    /// Posts an outage once, and withdraws it when it is over or another one takes its place.
    void showOutage(const std::optional<Outage>& outage, const Settings& settings);

private:
    void forgetEnded(const std::optional<Outage>& outage);

    Notifier& notifier_;
    QString alert_;                ///< identifier of the alert posted; empty for none
    std::optional<Outage> outage_; ///< the one that is posted
    std::set<std::string>
        reported_; ///< ids of the offline cameras posted; an empty text for the silent server
};

} // namespace velmora
