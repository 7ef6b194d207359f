#include "ui/screens/history/history_filter.h"

#include "model/truncated.h"
#include "ui/look/words.h"
#include "ui/screens/outcomes.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double placeRadius = 2; // metres

bool matchesFlight(HistoryFilter::Flight wanted, Outcome outcome) {
    return wanted == HistoryFilter::Flight::all || (wanted == HistoryFilter::Flight::flown) == flew(outcome);
}

bool matchesDemo(HistoryFilter::Demo wanted, bool demo) {
    return wanted == HistoryFilter::Demo::with || (wanted == HistoryFilter::Demo::only) == demo;
}

bool matchesText(const QString& wanted, const MissionRecord& record) {
    const auto holds = [&](const QString& text) { return text.contains(wanted, Qt::CaseInsensitive); };
    return wanted.isEmpty() || holds(shownText(record.cameraName)) || holds(shownText(record.label)) ||
           holds(outcomeText(record.outcome)) || holds(toQString(record.id)) ||
           std::ranges::any_of(record.notices,
                               [&](const Notice& notice) { return holds(shownText(notice.text)); });
}

bool matchesHours(const HistoryFilter::Hours& wanted, Date start) {
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(truncated(secondsSince1970(start) * 1000));
    const int hour = local.time().hour();
    return local.date().dayOfWeek() == wanted.weekday + 1 && wanted.from <= hour && hour < wanted.to;
}

bool passes(const std::vector<P>& path, P place) {
    return std::ranges::any_of(path, [&](P point) {
        return std::hypot(point.x - place.x, point.y - place.y) <= placeRadius;
    });
}

} // namespace

bool HistoryFilter::spans(const MissionRecord& record, Date now) const {
    constexpr int week = 7, month = 30, year = 365;
    if (span == Span::all)
        return true;
    const std::chrono::days length(span == Span::week ? week : span == Span::month ? month : year);
    return record.start >= now - length;
}

bool HistoryFilter::matches(const MissionRecord& record, Date now) const {
    return matchesFlight(flight, record.outcome) && matchesDemo(demo, record.demo) && spans(record, now) &&
           (!outcome || record.outcome == *outcome) &&
           (camera.isEmpty() || camera == shownText(record.cameraName)) &&
           (!hours || matchesHours(*hours, record.start)) && (!place || passes(record.visitorPath, *place)) &&
           matchesText(text.trimmed(), record);
}

} // namespace velmora
