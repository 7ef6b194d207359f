#include "store/outage_watch.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

constexpr Seconds silenceOfServer{60};
constexpr Seconds silenceOfCamera{300};
constexpr Seconds graceTime{30};
constexpr Seconds longestGap{10}; // a longer one between two observations is a suspend

} // namespace

bool OutageWatch::restart(Date now) {
    startedAt_ = lastObserved_ = now;
    graceEnd_ = now + graceTime;
    offlineSince_.clear();
    return std::exchange(outage_, std::nullopt).has_value();
}

bool OutageWatch::observe(const Observation& observation, Date now) {
    if (const Seconds gap = now - std::exchange(lastObserved_, now);
        std::abs(gap.count()) > longestGap.count())
        skip(gap);
    followCameras(observation, now);
    auto found = find(observation, now);
    const bool isEarly = found && now < graceEnd_; // in the time of grace an outage can only end
    if (isEarly || found == outage_)
        return false;
    outage_ = std::move(found);
    return true;
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
    const auto& cameras = observation.known->site.cameras;
    for (const CameraInfo& camera : cameras)
        if (!camera.online)
            offlineSince_.try_emplace(camera.id, now);
    std::erase_if(offlineSince_, [&](const auto& entry) {
        return std::none_of(cameras.begin(), cameras.end(), [&](const CameraInfo& camera) {
            return !camera.online && camera.id == entry.first;
        });
    });
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
