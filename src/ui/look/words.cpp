#include "ui/look/words.h"

#include "language/language.h"
#include "language/local_date_time.h"
#include "model/truncated.h"

#include <array>
#include <charconv>
#include <cmath>

namespace velmora {

namespace {

QString twoDigits(std::int64_t number) {
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

QString isolated(const QString& words) {
    constexpr char16_t begin = 0x2068, end = 0x2069;
    return words.isRightToLeft() ? QChar(begin) + words + QChar(end) : words;
}

QString phaseWord(Phase phase) {
    switch (phase) {
    case Phase::docked:
        return Words::tr("Docked");
    case Phase::awaitingApproval:
        return Words::tr("Waiting for you");
    case Phase::launching:
        return Words::tr("Taking off");
    case Phase::enRoute:
        return Words::tr("On its way");
    case Phase::following:
        return Words::tr("Following");
    case Phase::holding:
        return Words::tr("Holding position");
    case Phase::returning:
        return Words::tr("Coming home");
    case Phase::landing:
        return Words::tr("Landing");
    }
    return {};
}

QString failureText(Command command, const QString& reason) {
    const auto name = [command] {
        switch (command) {
        case Command::approve:
            return Words::tr("Launch drone");
        case Command::ignore:
            return Words::tr("Ignore");
        case Command::hold:
            return Words::tr("Hold position");
        case Command::resume:
            return Words::tr("Resume following");
        case Command::returnHome:
            return Words::tr("Return home");
        case Command::land:
            break;
        }
        return Words::tr("Land now");
    };
    return Words::tr("velmora did not confirm “%1”. %2.")
        .arg(name(), reason.isEmpty() ? Words::tr("Try again") : reason);
}

QString failureText(const QString& reason) {
    return Words::tr("%1. Try again.").arg(reason.isEmpty() ? Words::tr("velmora has not answered") : reason);
}

QString sentText() {
    return Words::tr("Sent…");
}

QString batteryReason(const Settings& settings) {
    return Words::tr("under your return level of %1").arg(truncated(settings.returnBattery));
}

QString windReason(const Settings& settings) {
    return Words::tr("over your limit of %1").arg(truncated(settings.maxWindKmh));
}

QString scenarioTitle(Scenario scenario) {
    switch (scenario) {
    case Scenario::driveway:
        return Words::tr("Visitor on the driveway");
    case Scenario::garden:
        return Words::tr("Visitor in the east garden");
    case Scenario::front:
        return Words::tr("Visitor crossing the front lawn");
    }
    return {};
}

QString personName(std::string_view label) {
    return label.empty() ? Words::tr("Unknown person") : shownText(label);
}

QString cameraName(const Site& site, std::string_view id) {
    const CameraInfo* camera = findCamera(site, id);
    return camera ? shownText(camera->name) : Words::tr("a camera");
}

QString rounded(double value) {
    return QString::number(truncated(std::round(value)));
}

/// QString::number would round 3.25 up, and printf uses the locale's decimal point.
QString oneDecimal(double value) {
    std::array<char, 400> text{}; // the largest double has 309 digits
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 1).ptr;
    return QString::fromLatin1(text.data(), end - text.data()).replace('.', displayLocale().decimalPoint());
}

QString percent(double fraction) {
    return rounded(fraction * 100);
}

QString clockTime(Seconds elapsed) {
    const std::int64_t seconds = std::max<std::int64_t>(truncated(elapsed.count()), 0);
    const std::int64_t minutes = seconds / 60;
    if (minutes < 60)
        return QString::number(minutes) + ':' + twoDigits(seconds % 60);
    return QString::number(minutes / 60) + ':' + twoDigits(minutes % 60) + ':' + twoDigits(seconds % 60);
}

QString timeOfDay(Date date) {
    return localDateTime(date).toString(QStringLiteral("HH:mm:ss"));
}

QString dayName(Date date, Date now) {
    const QDateTime then = localDateTime(date), today = localDateTime(now);
    const qint64 days = then.date().daysTo(today.date());
    if (days == 0)
        return Words::tr("Today");
    if (days == 1)
        return Words::tr("Yesterday");
    const bool sameYear = then.date().year() == today.date().year();
    return displayLocale().toString(then, sameYear ? Words::tr("dddd d MMMM", "form of a date")
                                                   : Words::tr("dddd d MMMM yyyy", "form of a date"));
}

QString dayAndTime(Date date, Date now) {
    constexpr qint64 daysInWeek = 7;
    const QDateTime then = localDateTime(date);
    const qint64 days = then.date().daysTo(localDateTime(now).date());
    const QString time = then.toString(QStringLiteral("HH:mm"));
    if (days == 0)
        return time;
    if (days == 1)
        return Words::tr("Yesterday %1").arg(time);
    return displayLocale().toString(then, days > 0 && days < daysInWeek
                                              ? Words::tr("ddd HH:mm", "form of a date")
                                              : Words::tr("d MMM yyyy", "form of a date"));
}

QString dayNameAndTime(Date date, Date now) {
    return Words::tr("%1 %2", "day, time")
        .arg(dayName(date, now), localDateTime(date).toString(QStringLiteral("HH:mm")));
}

QString duration(Seconds length) {
    const std::int64_t seconds = std::max<std::int64_t>(truncated(std::round(length.count())), 0);
    const std::int64_t minutes = seconds / 60, hours = minutes / 60;
    if (minutes == 0)
        return Words::tr("%1 s").arg(seconds);
    if (hours > 0)
        return Words::tr("%1 h %2 min").arg(hours).arg(minutes % 60);
    return seconds % 60 == 0 ? Words::tr("%1 min").arg(minutes)
                             : Words::tr("%1 min %2 s").arg(minutes).arg(seconds % 60);
}

QString age(Seconds length) {
    const std::int64_t seconds = std::max<std::int64_t>(truncated(length.count()), 0);
    if (seconds < 120)
        return Words::tr("%1 s").arg(seconds);
    return seconds < 7200 ? Words::tr("%1 min").arg(seconds / 60) : Words::tr("%1 h").arg(seconds / 3600);
}

} // namespace velmora
