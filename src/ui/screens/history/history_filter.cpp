#include "ui/screens/history/history_filter.h"

#include "model/visit_patterns.h"
#include "model/walk_map.h"
#include "ui/charts/outcomes.h"
#include "ui/look/words.h"

#include <algorithm>

namespace velmora {

namespace {

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
    const auto at = weekHourOf(start);
    return at && at->weekday == wanted.weekday && wanted.from <= at->hour && at->hour < wanted.to;
}

} // namespace

std::optional<Date> HistoryFilter::spanStart(Date now) const {
    switch (span) {
    case VisitSpan::week:
        return now - std::chrono::days(7);
    case VisitSpan::month:
        return now - std::chrono::days(30);
    case VisitSpan::year:
        return now - std::chrono::days(365);
    case VisitSpan::all:
    case VisitSpan::unnamed:
        break;
    }
    return std::nullopt;
}

bool HistoryFilter::isOnlySpan() const {
    HistoryFilter spanOnly;
    spanOnly.span = span;
    return *this == spanOnly;
}

bool HistoryFilter::matches(const MissionRecord& record, Date now) const {
    return matchesFlight(flight, record.outcome) && matchesDemo(demo, record.demo) &&
           record.start >= spanStart(now).value_or(record.start) &&
           (!outcome || record.outcome == *outcome) &&
           (camera.isEmpty() || camera == shownText(record.cameraName)) &&
           (!hours || matchesHours(*hours, record.start)) &&
           (!place || passesWithin(record, *place, WalkMap::passed)) && matchesText(text.trimmed(), record);
}

} // namespace velmora
