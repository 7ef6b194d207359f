#include "model/mission_evidence.h"

#include "model/notice_texts.h"

#include <algorithm>

namespace velmora {

namespace {

std::optional<ResponseStep> stepOf(const Notice& notice) {
    const auto reading = readNotice(notice.text);
    if (!reading)
        return std::nullopt;
    switch (reading->kind) {
    case NoticeKind::approved:
        return ResponseStep::answered;
    case NoticeKind::airborne:
        return ResponseStep::airborne;
    case NoticeKind::following:
    case NoticeKind::handedOver:
        return ResponseStep::onStation;
    case NoticeKind::comingHome:
    case NoticeKind::comingHomeAsked:
    case NoticeKind::batteryLow:
        return ResponseStep::comingHome;
    default:
        return std::nullopt;
    }
}

const Notice* firstNoticeOf(const MissionRecord& record, ResponseStep step) {
    const auto notice = std::ranges::find(record.notices, std::optional(step), stepOf);
    return notice == record.notices.end() ? nullptr : &*notice;
}

/// Sampling interval, from the path whose duration is known; the nominal interval if the point count is
/// implausible.
double intervalOf(const MissionRecord& record) {
    constexpr double longest = 1.1 * pathInterval;
    const Notice* approved = firstNoticeOf(record, ResponseStep::answered);
    const bool flown = !record.dronePath.empty() && approved;
    const double seconds = flown ? (record.end - approved->time).count() : durationOf(record);
    const auto points = static_cast<double>(flown ? record.dronePath.size() : record.visitorPath.size());
    return pathInterval * points <= seconds && seconds <= longest * points ? seconds / points : pathInterval;
}

/// Number of points at or before `seconds`. The points begin at `first` and are `interval` seconds apart.
std::size_t pointsUntil(double seconds, double first, double interval, std::size_t count) {
    if (seconds < first)
        return 0;
    const double intervals = (seconds - first) / interval;
    return intervals >= static_cast<double>(count) ? count
                                                   : std::min(count, static_cast<std::size_t>(intervals) + 1);
}

/// Calls `visit` with the number of each point of a flight and its distance inside the bounds.
template <class Visit>
void forEachDistance(const MissionRecord& record, const Bounds& bounds, Visit visit) {
    if (flew(record.outcome))
        for (std::size_t i = 0; i < record.dronePath.size(); ++i)
            visit(i, bounds.distanceInside(record.dronePath[i]));
}

/// Calls `visit` with each point of a flight.
template <class Visit>
std::optional<BoundaryEvidence> evidenceOf(const MissionRecord& record, const Site& site, double buffer,
                                           Visit visit) {
    const PathTimes times = pathTimes(record);
    std::optional<BoundaryEvidence> evidence;
    forEachDistance(record, boundsOf(site), [&](std::size_t number, double inside) {
        const double seconds = times.droneFrom + static_cast<double>(number) * times.interval;
        visit(BoundaryProfile::Point{seconds, inside});
        if (!evidence)
            evidence = {inside, seconds};
        if (inside < evidence->leastDistance) {
            evidence->leastDistance = inside;
            evidence->leastAt = seconds;
        }
        if (inside < buffer)
            evidence->secondsInBuffer += times.interval;
    });
    return evidence;
}

} // namespace

std::vector<ResponseMoment> responseTimeline(const MissionRecord& record) {
    std::vector<ResponseMoment> moments{{ResponseStep::seen, record.start}};
    for (const ResponseStep step :
         {ResponseStep::answered, ResponseStep::airborne, ResponseStep::onStation, ResponseStep::comingHome})
        if (const Notice* notice = firstNoticeOf(record, step))
            moments.push_back({step, notice->time});
    moments.push_back({ResponseStep::ended, record.end});
    return moments;
}

std::optional<GivenAnswer> answerOnRecord(const MissionRecord& record) {
    if (const Notice* approved = firstNoticeOf(record, ResponseStep::answered))
        return GivenAnswer{Command::approve, approved->time, std::nullopt};
    if (record.outcome == Outcome::ignored)
        return GivenAnswer{Command::ignore, record.end, std::nullopt};
    return std::nullopt;
}

std::optional<double> leastDistanceInside(const MissionRecord& record, const Bounds& bounds) {
    std::optional<double> least;
    forEachDistance(record, bounds,
                    [&](std::size_t, double inside) { least = std::min(least.value_or(inside), inside); });
    return least;
}

std::optional<BoundaryEvidence> boundaryEvidence(const MissionRecord& record, const Site& site,
                                                 double buffer) {
    return evidenceOf(record, site, buffer, [](const BoundaryProfile::Point&) {});
}

std::optional<BoundaryProfile> boundaryProfile(const MissionRecord& record, const Site& site, double buffer) {
    BoundaryProfile profile;
    const auto evidence =
        evidenceOf(record, site, buffer, [&](const auto& point) { profile.points.push_back(point); });
    if (!evidence)
        return std::nullopt;
    profile.evidence = *evidence;
    return profile;
}

double durationOf(const MissionRecord& record) {
    return std::max((record.end - record.start).count(), 0.0);
}

PathTimes pathTimes(const MissionRecord& record) {
    PathTimes times{intervalOf(record), 0, durationOf(record)};
    const auto spanOf = [&](const std::vector<P>& path) {
        return path.empty() ? 0 : static_cast<double>(path.size() - 1) * times.interval;
    };
    times.visitorTo = spanOf(record.visitorPath);
    times.droneFrom -= spanOf(record.dronePath);
    return times;
}

Progress progressAt(const MissionRecord& record, double seconds) {
    const std::size_t visitorPoints = record.visitorPath.size(), dronePoints = record.dronePath.size();
    if (seconds >= durationOf(record))
        return {visitorPoints, dronePoints, true};
    const PathTimes times = pathTimes(record);
    return {pointsUntil(seconds, 0, times.interval, visitorPoints),
            pointsUntil(seconds, times.droneFrom, times.interval, dronePoints), false};
}

std::vector<TimeSpan> gapsOf(const MissionRecord& record) {
    const PathTimes times = pathTimes(record);
    if (times.droneFrom - times.visitorTo < 2 * times.interval)
        return {};
    return {{times.visitorTo, std::min(times.droneFrom, durationOf(record))}};
}

} // namespace velmora
