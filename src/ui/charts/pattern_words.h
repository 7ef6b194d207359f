#pragma once

#include "model/visit_patterns.h"
#include "ui/blocks/headline.h"

namespace velmora {

/// The time that a set of visits covers, as its sentence names it.
enum class VisitSpan { week, month, year, all, unnamed };

/// What the visits have in common: "12 visits in 30 days, most on Thursday evenings *on the driveway*."
Sentence patternSentence(const VisitPatterns& patterns, VisitSpan span);

/// "12 visits".
QString visitsWords(int visits);
/// "eight visits"; the number in words up to twelve.
QString visitsInWords(int visits);
/// What the outlined group holds: "7 of 12 on Thursdays between 18:00 and 22:00"; empty without a group.
QString groupWords(const VisitPatterns& patterns);
/// "Thursday 19:00, 3 visits".
QString hourWords(WeekHour hour, int visits);
/// "19:00".
QString hourText(int hour);

} // namespace velmora
