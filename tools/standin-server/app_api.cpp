#include "standin-server/app_api.h"

#include "model/json.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace velmora::standin {

AppApi::AppApi(SimulatedSite& site, std::function<Date()> clock) : site_(site), clock_(std::move(clock)) {}

AppApi::Answer AppApi::state() {
    site_.advance(clock_());
    const auto document = encode(site_.state(), KeyStyle::snakeCase);
    return document ? Answer{200, QByteArray::fromStdString(*document)} : Answer{500, {}};
}

AppApi::Answer AppApi::command(const QByteArray& body) {
    const QJsonObject object = QJsonDocument::fromJson(body).object();
    const auto command = fromRawValue<Command>(object["command"].toString().toStdString());
    const QJsonValue mission = object["mission_id"];
    if (!command || !mission.isString())
        return {400, {}};
    site_.carryOut(*command, mission.toString().toStdString(), clock_());
    return {};
}

} // namespace velmora::standin
