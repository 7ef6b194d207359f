#include "ui/charts/pattern_figures.h"

#include "language/language.h"
#include "ui/charts/outcomes.h"
#include "ui/look/words.h"

#include <cmath>

namespace velmora {

namespace {

QString number(int count) {
    return displayLocale().toString(count);
}

const QString noValue = QStringLiteral("—");

/// "11 s", or "1:28 min" from one minute on.
PatternFigure timeFigure(const QString& name, const MedianTime& median, const QString& reason) {
    constexpr double minute = 60;
    const double seconds = std::round(median.seconds);
    if (median.count == 0)
        return {name, noValue, {}, reason};
    return seconds < minute ? PatternFigure{name, rounded(seconds), Words::tr("s"), reason}
                            : PatternFigure{name, clockTime(Seconds{seconds}), Words::tr("min"), reason};
}

QString answersText(int answers, int alerts, int expired) {
    if (alerts == 0)
        return Words::tr("no alert asked for one");
    if (answers == 0)
        return Words::tr("%1 of %2 alerts expired").arg(number(expired), number(alerts));
    if (answers == 1)
        return Words::tr("1 answer; %1 of %2 alerts expired").arg(number(expired), number(alerts));
    return Words::tr("median of %1 answers; %2 of %3 alerts expired")
        .arg(number(answers), number(expired), number(alerts));
}

QString flightsText(int flights) {
    if (flights == 0)
        return Words::tr("no flight reached a visitor");
    if (flights == 1)
        return Words::tr("1 flight, seen to on station");
    return Words::tr("median of %1 flights, seen to on station").arg(number(flights));
}

PatternFigure insideFigure(const std::optional<double>& least) {
    const QString name = Words::tr("Inside by at least");
    if (!least)
        return {name, noValue, {}, Words::tr("the drone did not fly")};
    return {name, oneDecimal(*least), Words::tr("m"),
            *least < 0 ? Words::tr("the drone left your boundary")
                       : Words::tr("nearest the drone came to your boundary")};
}

} // namespace

std::vector<PatternFigure> patternFigures(const VisitPatterns& patterns) {
    const MedianTime answer = patterns.toAnswer(), station = patterns.toStation();
    return {timeFigure(Words::tr("To your answer"), answer,
                       answersText(answer.count, patterns.alerts(), patterns.expired())),
            timeFigure(Words::tr("To the visitor"), station, flightsText(station.count)),
            insideFigure(patterns.leastInside())};
}

std::vector<CountRow> cameraRows(const VisitPatterns& patterns) {
    std::vector<CountRow> rows;
    for (const CameraCount& camera : patterns.byCamera()) {
        const QString name = shownText(camera.name);
        rows.push_back({name, name, camera.visits});
    }
    return rows;
}

std::vector<CountRow> outcomeRows(const VisitPatterns& patterns) {
    std::vector<CountRow> rows;
    for (const auto& [outcome, text] : rawValuesOf<Outcome>)
        if (const int visits = patterns.visitsWith(outcome); visits > 0)
            rows.push_back({QString::number(static_cast<int>(outcome)), outcomeText(outcome), visits,
                            outcomeColor(outcome)});
    return rows;
}

} // namespace velmora
