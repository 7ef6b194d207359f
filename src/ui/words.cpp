#include "ui/words.h"

#include "model/whole.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cmath>

namespace velmora {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("velmora", text);
}

QString twoDigits(std::int64_t number) {
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString phaseWord(Phase phase) {
    switch (phase) {
    case Phase::docked:
        return tr("Docked");
    case Phase::awaitingApproval:
        return tr("Waiting for you");
    case Phase::launching:
        return tr("Taking off");
    case Phase::enRoute:
        return tr("On its way");
    case Phase::following:
        return tr("Following");
    case Phase::holding:
        return tr("Holding position");
    case Phase::returning:
        return tr("Coming home");
    case Phase::landing:
        return tr("Landing");
    }
    return {};
}

QString scenarioTitle(Scenario scenario) {
    switch (scenario) {
    case Scenario::driveway:
        return tr("Visitor on the driveway");
    case Scenario::garden:
        return tr("Visitor in the east garden");
    case Scenario::front:
        return tr("Visitor crossing the front lawn");
    }
    return {};
}

QString cameraName(const Site& site, std::string_view id) {
    const CameraInfo* camera = findCamera(site, id);
    return camera ? toQString(camera->name) : tr("a camera");
}

QString rounded(double value) {
    return QString::number(whole(std::round(value)));
}

QString percent(double fraction) {
    return rounded(fraction * 100);
}

QString clockTime(Seconds elapsed) {
    const std::int64_t seconds = std::max<std::int64_t>(whole(elapsed.count()), 0);
    const std::int64_t minutes = seconds / 60;
    if (minutes < 60)
        return QString::number(minutes) + ':' + twoDigits(seconds % 60);
    return QString::number(minutes / 60) + ':' + twoDigits(minutes % 60) + ':' + twoDigits(seconds % 60);
}

QString timeOfDay(Date date) {
    const auto milliseconds = whole(secondsSince1970(date) * 1000);
    return QDateTime::fromMSecsSinceEpoch(milliseconds).toString(QStringLiteral("HH:mm:ss"));
}

} // namespace velmora
