#include "ui/screens/history/history_filter.h"

#include "ui/look/words.h"
#include "ui/screens/outcomes.h"

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

} // namespace

bool HistoryFilter::matches(const MissionRecord& record) const {
    return matchesFlight(flight, record.outcome) && matchesDemo(demo, record.demo) &&
           (camera.isEmpty() || camera == shownText(record.cameraName)) &&
           matchesText(text.trimmed(), record);
}

} // namespace velmora
