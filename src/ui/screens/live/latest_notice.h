#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"

namespace velmora {

/// The newest caution or alert, for ten seconds from the moment at which this app first saw it: a server's
/// clock may be wrong. Notices that were there when the app started, changed its mode or first heard the
/// server are not new. Watches the store even while no screen shows it.
class LatestNotice : public QObject {
    Q_OBJECT

public:
    LatestNotice(AppStore& store, QObject* parent);

    /// nullopt if none is new.
    const std::optional<Notice>& notice() const { return notice_; }

signals:
    void changed();

private:
    void look();
    void expire();
    void set(std::optional<Notice> notice);

    AppStore& store_;
    bool linkMode_;
    bool knowsOlder_ = false; ///< `seen_` holds the notices of an earlier state
    std::vector<Uuid> seen_;
    std::optional<Notice> notice_;
    Date firstSeen_;
    UiTimer expiry_{std::chrono::milliseconds(250)};
};

/// Whether a message that was first shown at `since` has been shown for ten seconds, or the clock was set
/// back.
bool isOver(Date since, Date now);

} // namespace velmora
