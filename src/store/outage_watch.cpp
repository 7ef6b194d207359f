#include "store/outage_watch.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

namespace velmora {

namespace {

constexpr Seconds silenceOfServer{60};
constexpr Seconds silenceOfCamera{300};
constexpr Seconds graceTime{30};
constexpr Seconds longestGap{10}; // a longer one between two observations is a suspend

} // namespace

void OutageWatch::restart(Date now) {
    startedAt_ = lastObserved_ = now;
    graceEnd_ = now + graceTime;
    offlineSince_.clear();
    outage_.reset();
}

bool OutageWatch::observe(const std::optional<Observation>& observation, Date now) {
    const auto before = outage_;
    if (!observation) {
        restart(now);
        return outage_ != before;
    }
    if (const Seconds gap = now - std::exchange(lastObserved_, now);
        std::abs(gap.count()) > longestGap.count())
        skip(gap);
    followCameras(*observation, now);
    auto found = find(*observation, now);
    if (!found || now >= graceEnd_) // in the time of grace an outage can only end
        outage_ = std::move(found);
    return outage_ != before;
}

/// After a suspend or a change of the clock: the time in between does not count for the cameras.
void OutageWatch::skip(Seconds gap) {
    graceEnd_ = lastObserved_ + graceTime;
    startedAt_ += gap;
    for (auto& [id, since] : offlineSince_)
        since += gap;
}

void OutageWatch::followCameras(const Observation& observation, Date now) {
    if (observation.freshness != Freshness::live)
        return;
    std::set<std::string> offline;
    for (const CameraInfo& camera : observation.known->site.cameras)
        if (!camera.online)
            offline.insert(camera.id);
    for (const std::string& id : offline)
        offlineSince_.try_emplace(id, now);
    std::erase_if(offlineSince_, [&](const auto& entry) { return !offline.contains(entry.first); });
}

/// A server that never answered counts as armed.
std::optional<Outage> OutageWatch::find(const Observation& observation, Date now) const {
    if (observation.known && !observation.known->armed)
        return std::nullopt;
    if (observation.freshness != Freshness::live) {
        const Date since = observation.lastAnswerAt.value_or(startedAt_);
        if (now - since >= silenceOfServer)
            return Outage{true, {}, since};
        return outage_ && !outage_->serverIsSilent ? outage_
                                                   : std::nullopt; // a short silence changes nothing
    }
    Outage offline{false, {}, now};
    for (const auto& [id, since] : offlineSince_)
        if (now - since >= silenceOfCamera) {
            offline.cameras[id] = findCamera(observation.known->site, id)->name;
            offline.since = std::min(offline.since, since);
        }
    return offline.cameras.empty() ? std::nullopt : std::optional(offline);
}

} // namespace velmora
