#include "ui/charts/pattern_words.h"

#include "language/language.h"
#include "language/stored_text.h"

#include <array>

namespace velmora {

namespace {

QString dayOf(int weekday) {
    return displayLocale().standaloneDayName(weekday + 1, QLocale::LongFormat);
}

/// When visits of this part of the weekday come, as a part of a sentence.
QString groupTime(const VisitGroup& group) {
    const QString day = dayOf(group.weekday);
    switch (group.part) {
    case DayPart::night:
        return Words::tr("after midnight on %1s", "weekday; when visits come").arg(day);
    case DayPart::morning:
        return Words::tr("on %1 mornings", "weekday; when visits come").arg(day);
    case DayPart::afternoon:
        return Words::tr("on %1 afternoons", "weekday; when visits come").arg(day);
    case DayPart::evening:
        return Words::tr("on %1 evenings", "weekday; when visits come").arg(day);
    case DayPart::late:
        break;
    }
    return Words::tr("late on %1s", "weekday; when visits come").arg(day);
}

/// Where the camera sees visits, as a part of a sentence. An asterisk would mark an emphasis there.
QString cameraPlace(const std::string& name) {
    if (name == "Driveway")
        return Words::tr("on the driveway", "where visits were");
    if (name == "Front lawn")
        return Words::tr("on the front lawn", "where visits were");
    if (name == "East garden")
        return Words::tr("in the east garden", "where visits were");
    return Words::tr("at the %1 camera", "where visits were")
        .arg(nameInSentence(shownText(name)).replace('*', QChar(0x2217)));
}

QString countWords(int visits, VisitSpan span) {
    const auto chosen = [&](const QString& none, const QString& one, const QString& many) {
        return visits == 0 ? none : visits == 1 ? one : many.arg(displayLocale().toString(visits));
    };
    switch (span) {
    case VisitSpan::week:
        return chosen(Words::tr("No visits in 7 days"), Words::tr("1 visit in 7 days"),
                      Words::tr("%1 visits in 7 days"));
    case VisitSpan::month:
        return chosen(Words::tr("No visits in 30 days"), Words::tr("1 visit in 30 days"),
                      Words::tr("%1 visits in 30 days"));
    case VisitSpan::year:
        return chosen(Words::tr("No visits in a year"), Words::tr("1 visit in a year"),
                      Words::tr("%1 visits in a year"));
    case VisitSpan::all:
        return chosen(Words::tr("No visits on file"), Words::tr("1 visit on file"),
                      Words::tr("%1 visits on file"));
    case VisitSpan::unnamed:
        break;
    }
    return visitsWords(visits);
}

/// What some of the visits have in common: `counted` of all share what `words` say.
QString shareWords(const QString& count, int counted, int visits, const QString& words) {
    if (counted == visits)
        return Words::tr("%1, all *%2*.", "visits; when or where").arg(count, words);
    if (2 * counted > visits)
        return Words::tr("%1, most *%2*.", "visits; when or where").arg(count, words);
    return Words::tr("%1, %3 of them *%2*.", "visits; when or where; number")
        .arg(count, words, displayLocale().toString(counted));
}

QString shareWords(const QString& count, int counted, int visits, const QString& when, const QString& where) {
    if (counted == visits)
        return Words::tr("%1, all %2 *%3*.", "visits; when; where").arg(count, when, where);
    if (2 * counted > visits)
        return Words::tr("%1, most %2 *%3*.", "visits; when; where").arg(count, when, where);
    return Words::tr("%1, %4 of them %2 *%3*.", "visits; when; where; number")
        .arg(count, when, where, displayLocale().toString(counted));
}

/// Names the camera beside the group only if what is said of the group holds for both together.
QString sentenceOf(const VisitPatterns& patterns, const QString& count) {
    const int visits = patterns.visits();
    const auto group = visits < VisitPatterns::fewest ? std::nullopt : patterns.group();
    const auto camera = visits < VisitPatterns::fewest ? std::nullopt : patterns.mostlyCamera();
    if (!group && !camera)
        return Words::tr("%1.", "visits").arg(count);
    if (!group)
        return shareWords(count, patterns.byCamera().front().visits, visits, cameraPlace(*camera));
    const int both = camera ? patterns.visitsOf(*group, *camera) : 0;
    const bool most = 2 * group->visits > visits && group->visits < visits && 2 * both > visits;
    if (both == group->visits || most)
        return shareWords(count, both, visits, groupTime(*group), cameraPlace(*camera));
    return shareWords(count, group->visits, visits, groupTime(*group));
}

} // namespace

Sentence patternSentence(const VisitPatterns& patterns, VisitSpan span) {
    return Sentence::marked(sentenceOf(patterns, countWords(patterns.visits(), span)));
}

QString visitsWords(int visits) {
    return visits == 0   ? Words::tr("No visits")
           : visits == 1 ? Words::tr("1 visit")
                         : Words::tr("%1 visits").arg(displayLocale().toString(visits));
}

QString visitsInWords(int visits) {
    const std::array words{Words::tr("no visits"),    Words::tr("one visit"),    Words::tr("two visits"),
                           Words::tr("three visits"), Words::tr("four visits"),  Words::tr("five visits"),
                           Words::tr("six visits"),   Words::tr("seven visits"), Words::tr("eight visits"),
                           Words::tr("nine visits"),  Words::tr("ten visits"),   Words::tr("eleven visits"),
                           Words::tr("twelve visits")};
    const auto index = static_cast<std::size_t>(visits);
    return index < words.size() ? words[index] : visitsWords(visits);
}

QString groupWords(const VisitPatterns& patterns) {
    const auto group = patterns.group();
    if (!group)
        return {};
    return Words::tr("%1 of %2 on %3s between %4 and %5", "numbers; weekday; hours")
        .arg(displayLocale().toString(group->visits), displayLocale().toString(patterns.visits()),
             dayOf(group->weekday), hourText(firstHourOf(group->part)), hourText(endHourOf(group->part)));
}

QString hourWords(WeekHour hour, int visits) {
    return Words::tr("%1 %2, %3", "weekday; hour; visits")
        .arg(dayOf(hour.weekday), hourText(hour.hour), visitsWords(visits));
}

QString hourText(int hour) {
    return QStringLiteral("%1:00").arg(hour, 2, 10, QLatin1Char('0'));
}

} // namespace velmora
