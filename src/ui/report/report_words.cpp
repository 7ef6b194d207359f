#include "ui/report/report_words.h"

#include "language/language.h"
#include "language/local_date_time.h"
#include "model/mission_evidence.h"
#include "model/notice_texts.h"
#include "ui/look/answer_words.h"
#include "ui/look/text.h"
#include "ui/look/words.h"

#include <cmath>

namespace velmora {

namespace {

constexpr double longestName = 220; // pixels; longer names are elided

QString timeAndOffset(Date date) {
    return Words::tr("%1 (%2)", "time, offset from UTC").arg(timeOfDay(date), utcOffset(date));
}

/// The last notice of one of these kinds; null if there is none.
const Notice* lastOf(const MissionRecord& record, std::initializer_list<NoticeKind> kinds) {
    const auto found =
        std::find_if(record.notices.rbegin(), record.notices.rend(), [&](const Notice& notice) {
            const auto reading = readNotice(notice.text);
            return reading && std::ranges::find(kinds, reading->kind) != kinds.end();
        });
    return found == record.notices.rend() ? nullptr : &*found;
}

/// What a notice of the step inserts, such as a height; empty without one.
QString insertedBy(const MissionRecord& record, NoticeKind kind) {
    const Notice* notice = lastOf(record, {kind});
    const auto reading = notice ? readNotice(notice->text) : std::nullopt;
    return reading && reading->inserted ? toQString(*reading->inserted) : QString();
}

QString stepSentence(const MissionRecord& record, const ResponseMoment& moment) {
    const QString at = timeOfDay(moment.time);
    switch (moment.step) {
    case ResponseStep::airborne: {
        const QString height = insertedBy(record, NoticeKind::airborne);
        return height.isEmpty() ? Words::tr("Airborne at %1.").arg(at)
                                : Words::tr("Airborne at %1, at a height of %2 m.").arg(at, height);
    }
    case ResponseStep::onStation: {
        const QString distance = insertedBy(record, NoticeKind::following);
        return distance.isEmpty() ? Words::tr("On station at %1.").arg(at)
                                  : Words::tr("On station at %1, following %2 m behind.").arg(at, distance);
    }
    case ResponseStep::comingHome:
        return Words::tr("On its way home at %1.").arg(at);
    case ResponseStep::ended: {
        const Notice* landed = lastOf(record, {NoticeKind::landed, NoticeKind::landedAway});
        if (!landed)
            return Words::tr("The flight ended at %1.").arg(at);
        return readNotice(landed->text)->kind == NoticeKind::landed
                   ? Words::tr("On its pad at %1.").arg(timeOfDay(landed->time))
                   : Words::tr("Landed away from its pad at %1.").arg(timeOfDay(landed->time));
    }
    case ResponseStep::seen:
    case ResponseStep::answered:
        break;
    }
    return {};
}

/// A text with the time, where the answer was given if that is known, and how long after the alert.
QString answerSentence(const GivenAnswer& answer, Date alerted) {
    const bool approved = answer.command == Command::approve;
    const QString at = timeOfDay(answer.time), after = duration(answer.time - alerted);
    if (!answer.source)
        return (approved
                    ? Words::tr(
                          "The owner approved the launch at %1, %2 after the camera reported the visitor.")
                    : Words::tr(
                          "The owner ignored the alert at %1, %2 after the camera reported the visitor."))
            .arg(at, after);
    return (approved ? Words::tr("The owner approved the launch %1 at %2, %3 after the camera reported the "
                                 "visitor.")
                     : Words::tr("The owner ignored the alert %1 at %2, %3 after the camera reported the "
                                 "visitor."))
        .arg(sourceText(*answer.source), at, after);
}

QString noAnswerSentence(const MissionRecord& record) {
    switch (record.outcome) {
    case Outcome::expired:
        return Words::tr("Nobody answered the alert until it expired at %1, %2 after the camera reported the "
                         "visitor.")
            .arg(timeOfDay(record.end), duration(record.end - record.start));
    case Outcome::disarmed:
        return Words::tr("The system was disarmed: the visit was only logged, and nobody was asked.");
    case Outcome::windTooHigh:
        return Words::tr("The wind was over the owner's limit, and nobody was asked.");
    default:
        return Words::tr("The record does not say how the alert was answered.");
    }
}

} // namespace

QString pageNumber(int page, int pages) {
    return Words::tr("Page %1 of %2").arg(page).arg(pages);
}

QString fullDate(Date date) {
    return displayLocale().toString(localDateTime(date), Words::tr("dddd d MMMM yyyy", "form of a date"));
}

QString utcOffset(Date date) {
    constexpr int hour = 3600, minute = 60;
    const int seconds = localDateTime(date).offsetFromUtc();
    const int rest = std::abs(seconds) % hour / minute;
    return QStringLiteral("UTC%1%2%3")
        .arg(QLatin1Char(seconds < 0 ? '-' : '+'))
        .arg(std::abs(seconds) / hour)
        .arg(rest == 0 ? QString() : QStringLiteral(":%1").arg(rest, 2, 10, QLatin1Char('0')));
}

QString visitTimes(const MissionRecord& record) {
    const bool sameDay = localDateTime(record.start).date() == localDateTime(record.end).date();
    return sameDay ? Words::tr("%1, %2 to %3", "date, time, time")
                         .arg(fullDate(record.start), timeOfDay(record.start), timeAndOffset(record.end))
                   : Words::tr("%1, %2 to %3, %4", "date, time, date, time")
                         .arg(fullDate(record.start), timeOfDay(record.start), fullDate(record.end),
                              timeAndOffset(record.end));
}

QString cameraWords(const MissionRecord& record) {
    const QString name = elided(shownText(record.cameraName), Type::body, longestName);
    return Words::tr("%1 camera").arg(isolated(name));
}

QString answerSentences(const MissionRecord& record, const std::optional<GivenAnswer>& answer) {
    const QString given = answer ? answerSentence(*answer, record.start) : noAnswerSentence(record);
    return given + ' ' +
           (flew(record.outcome) ? Words::tr("The drone launches only after the owner's approval.")
                                 : Words::tr("The drone stayed on its pad."));
}

QString flightSentences(const MissionRecord& record) {
    if (!flew(record.outcome))
        return {};
    QStringList sentences;
    for (const ResponseMoment& moment : responseTimeline(record))
        if (const QString sentence = stepSentence(record, moment); !sentence.isEmpty())
            sentences.append(sentence);
    return sentences.join(' ');
}

QString mapKey(const MissionRecord& record, const Settings& settings) {
    QStringList sentences;
    if (record.visitorPath.size() > 1)
        sentences.append(Words::tr("Solid: the visitor's path."));
    if (record.dronePath.size() > 1)
        sentences.append(Words::tr("Dashed: the drone's path."));
    sentences.append(Words::tr("Band: the %1 m buffer.").arg(rounded(settings.boundaryBuffer)));
    return sentences.join(' ');
}

QString madeBy(Date now) {
    const QDateTime time = localDateTime(now);
    const QString date =
        displayLocale().toString(time, Words::tr("d MMMM yyyy, HH:mm", "form of a date and time"));
    return Words::tr("Made by Velmora %1 on %2 (%3)")
        .arg(QCoreApplication::applicationVersion(), date, utcOffset(now));
}

} // namespace velmora
