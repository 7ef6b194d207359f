#include "model/mission_evidence.h"

#include <algorithm>
#include <array>
#include <limits>

namespace velmora {

namespace {

/// How the notice of each step begins, or for coming home what it holds.
struct StepText {
    ResponseStep step;
    std::string_view text;
    bool anywhere = false;
};

constexpr std::array stepTexts{StepText{ResponseStep::answered, "You approved the launch"},
                               StepText{ResponseStep::airborne, "Airborne at"},
                               StepText{ResponseStep::onStation, "Following at"},
                               StepText{ResponseStep::onStation, "Following — handed over"},
                               StepText{ResponseStep::comingHome, "oming home", true}};

bool tells(const Notice& notice, const StepText& step) {
    const std::size_t place = notice.text.find(step.text);
    return step.anywhere ? place != std::string::npos : place == 0;
}

const Notice* firstTelling(const MissionRecord& record, const StepText& step) {
    const auto notice =
        std::ranges::find_if(record.notices, [&](const Notice& candidate) { return tells(candidate, step); });
    return notice == record.notices.end() ? nullptr : &*notice;
}

/// Seconds from point to point, by the path whose whole time is known. Points that are missing in it, or too
/// many, say nothing about the rest.
double intervalOf(const MissionRecord& record) {
    constexpr double longest = 1.1 * pathInterval;
    const Notice* approved = firstTelling(record, stepTexts.front());
    const bool flown = !record.dronePath.empty() && approved;
    const double seconds = flown ? (record.end - approved->time).count() : lengthOf(record);
    const auto points = static_cast<double>(flown ? record.dronePath.size() : record.visitorPath.size());
    return pathInterval * points <= seconds && seconds <= longest * points ? seconds / points : pathInterval;
}

/// Number of points from `first` on that lie at or before the moment.
std::size_t pointsUntil(double seconds, double first, double interval, std::size_t count) {
    if (seconds < first)
        return 0;
    const double whole = (seconds - first) / interval;
    return whole >= static_cast<double>(count) ? count : std::min(count, static_cast<std::size_t>(whole) + 1);
}

} // namespace

std::vector<ResponseMoment> responseTimeline(const MissionRecord& record) {
    std::vector<ResponseMoment> moments{{ResponseStep::seen, record.start}};
    for (const StepText& step : stepTexts) {
        if (moments.back().step == step.step)
            continue;
        if (const Notice* notice = firstTelling(record, step))
            moments.push_back({step.step, notice->time});
    }
    moments.push_back({ResponseStep::ended, record.end});
    return moments;
}

std::optional<BoundaryEvidence> boundaryEvidence(const MissionRecord& record, const Site& site,
                                                 double buffer) {
    if (!flew(record.outcome) || record.dronePath.empty())
        return std::nullopt;
    const Bounds bounds = boundsOf(site);
    const double interval = intervalOf(record);
    BoundaryEvidence evidence{std::numeric_limits<double>::max(), 0};
    for (const P& point : record.dronePath) {
        const double inside = bounds.distanceInside(point);
        evidence.leastDistance = std::min(evidence.leastDistance, inside);
        if (inside < buffer)
            evidence.secondsInBuffer += interval;
    }
    return evidence;
}

double lengthOf(const MissionRecord& record) {
    return std::max((record.end - record.start).count(), 0.0);
}

PathTimes pathTimes(const MissionRecord& record) {
    PathTimes times{intervalOf(record), 0, lengthOf(record)};
    const auto spanOf = [&](const std::vector<P>& path) {
        return path.empty() ? 0 : static_cast<double>(path.size() - 1) * times.interval;
    };
    times.visitorTo = spanOf(record.visitorPath);
    times.droneFrom -= spanOf(record.dronePath);
    return times;
}

MissionRecord cutAt(const MissionRecord& record, double seconds) {
    MissionRecord cut = record;
    const PathTimes times = pathTimes(record);
    cut.visitorPath.resize(pointsUntil(seconds, 0, times.interval, record.visitorPath.size()));
    cut.dronePath.resize(pointsUntil(seconds, times.droneFrom, times.interval, record.dronePath.size()));
    std::erase_if(cut.notices,
                  [&](const Notice& notice) { return (notice.time - record.start).count() > seconds; });
    if (seconds < lengthOf(record) && cut.outcome == Outcome::visitorLeft)
        cut.outcome =
            Outcome::returnedByYou; // nobody has left yet: the last point is where the visitor was last seen
    return cut;
}

std::vector<Stretch> gapsOf(const MissionRecord& record) {
    const PathTimes times = pathTimes(record);
    if (times.droneFrom - times.visitorTo < 2 * times.interval)
        return {};
    return {{times.visitorTo, std::min(times.droneFrom, lengthOf(record))}};
}

} // namespace velmora
