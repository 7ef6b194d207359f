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

/// Distance from the nearest edge of the bounds; negative outside them.
double distanceInside(const Bounds& bounds, P p) {
    return std::min({p.x - bounds.minX, bounds.maxX - p.x, p.y - bounds.minY, bounds.maxY - p.y});
}

/// Seconds that a path of so many points covers.
double spanOf(std::size_t points) {
    return points == 0 ? 0 : static_cast<double>(points - 1) * secondsBetweenPathPoints;
}

/// Number of points, half a second apart from `first` on, that lie at or before the moment.
std::size_t pointsUntil(double seconds, double first, std::size_t count) {
    if (seconds < first)
        return 0;
    const double whole = (seconds - first) / secondsBetweenPathPoints;
    return whole >= static_cast<double>(count) ? count : std::min(count, static_cast<std::size_t>(whole) + 1);
}

} // namespace

std::vector<ResponseMoment> responseTimeline(const MissionRecord& record) {
    std::vector<ResponseMoment> moments{{ResponseStep::seen, record.start}};
    for (const StepText& step : stepTexts) {
        if (moments.back().step == step.step)
            continue;
        const auto notice = std::ranges::find_if(
            record.notices, [&](const Notice& candidate) { return tells(candidate, step); });
        if (notice != record.notices.end())
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
    BoundaryEvidence evidence{std::numeric_limits<double>::max(), 0};
    for (const P& point : record.dronePath) {
        const double inside = distanceInside(bounds, point);
        evidence.leastDistance = std::min(evidence.leastDistance, inside);
        if (inside < buffer)
            evidence.secondsInBuffer += secondsBetweenPathPoints;
    }
    return evidence;
}

double lengthOf(const MissionRecord& record) {
    return std::max((record.end - record.start).count(), 0.0);
}

MissionRecord cutAt(const MissionRecord& record, double seconds) {
    MissionRecord cut = record;
    const double droneFrom = lengthOf(record) - spanOf(record.dronePath.size());
    cut.visitorPath.resize(pointsUntil(seconds, 0, record.visitorPath.size()));
    cut.dronePath.resize(pointsUntil(seconds, droneFrom, record.dronePath.size()));
    std::erase_if(cut.notices,
                  [&](const Notice& notice) { return (notice.time - record.start).count() > seconds; });
    if (seconds < lengthOf(record) && cut.outcome == Outcome::visitorLeft)
        cut.outcome =
            Outcome::returnedByYou; // nobody has left yet: the last point is where the visitor was last seen
    return cut;
}

std::vector<Stretch> gapsOf(const MissionRecord& record) {
    const double length = lengthOf(record);
    const double visitorTo = record.visitorPath.empty() ? 0 : spanOf(record.visitorPath.size());
    const double droneFrom = record.dronePath.empty() ? length : length - spanOf(record.dronePath.size());
    if (droneFrom - visitorTo <= secondsBetweenPathPoints)
        return {};
    return {{visitorTo, std::min(droneFrom, length)}};
}

} // namespace velmora
