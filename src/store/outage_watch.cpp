#include "store/outage_watch.h"

#include <algorithm>
#include <utility>

namespace velmora {

namespace {

constexpr Seconds silenceOfServer{60};
constexpr Seconds silenceOfCamera{300};
constexpr Seconds quietTime{30};
constexpr Seconds longestGap{10}; // a longer one between two observations is a suspend

} // namespace

void OutageWatch::restart(Date now) {
    startedAt_ = lastObserved_ = now;
    quietUntil_ = now + quietTime;
    offlineSince_.clear();
    outage_.reset();
}

void OutageWatch::observe(const std::optional<Observation>& observation, Date now) {
    const bool clockWasSetBack = lastObserved_ - now > longestGap;
    if (!observation || clockWasSetBack) {
        restart(now);
        return;
    }
    if (now - std::exchange(lastObserved_, now) > longestGap)
        quietUntil_ = now + quietTime;
    followCameras(*observation, now);
    auto found = find(*observation, now);
    if (outage_ || now >= quietUntil_)
        outage_ = std::move(found);
}

void OutageWatch::followCameras(const Observation& observation, Date now) {
    if (observation.freshness != Freshness::live)
        return;
    for (const CameraInfo& camera : observation.known->site.cameras)
        if (camera.online)
            offlineSince_.erase(camera.id);
        else
            offlineSince_.try_emplace(camera.id, now);
    std::erase_if(offlineSince_,
                  [&](const auto& entry) { return !findCamera(observation.known->site, entry.first); });
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
