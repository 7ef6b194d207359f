#include "ui/screens/live/latest_notice.h"

#include <algorithm>

namespace velmora {

LatestNotice::LatestNotice(AppStore& store, QObject* parent)
    : QObject(parent), store_(store), linkMode_(store.settings().linkMode) {
    connect(&store_, &AppStore::stateChanged, this, &LatestNotice::look);
    connect(&store_, &AppStore::freshnessChanged, this, &LatestNotice::look);
    connect(&store_, &AppStore::settingsChanged, this, [this] {
        if (linkMode_ == store_.settings().linkMode)
            return;
        linkMode_ = store_.settings().linkMode;
        knowsOlder_ = false;
        set(std::nullopt);
    });
    connect(&expiry_, &UiTimer::timeout, this, &LatestNotice::expire);
    look();
}

void LatestNotice::look() {
    const LiveState* state = store_.knownState();
    if (!state) {
        knowsOlder_ = false;
        set(std::nullopt);
        return;
    }
    const auto& notices = state->notices; // newest first
    const auto urgent = std::ranges::find_if(notices, [](const Notice& notice) {
        return notice.level == Notice::Level::caution || notice.level == Notice::Level::alert;
    });
    const bool isNew = knowsOlder_ && urgent != notices.end() && std::ranges::count(seen_, urgent->id) == 0;
    seen_.clear();
    std::ranges::transform(notices, std::back_inserter(seen_), &Notice::id);
    knowsOlder_ = true;
    if (isNew) {
        firstSeen_ = store_.now();
        set(*urgent);
    }
    expire();
}

void LatestNotice::expire() {
    if (notice_ && isOver(firstSeen_, store_.now()))
        set(std::nullopt);
}

void LatestNotice::set(std::optional<Notice> notice) {
    if (notice == notice_)
        return;
    notice_ = std::move(notice);
    expiry_.setActive(notice_.has_value());
    emit changed();
}

bool isOver(Date since, Date now) {
    constexpr Seconds shown{10};
    return now < since || now - since >= shown;
}

} // namespace velmora
