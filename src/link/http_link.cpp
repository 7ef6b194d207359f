#include "link/http_link.h"

#include "link/failure_text.h"
#include "model/json.h"
#include "model/validation.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace velmora {

namespace {

FetchResult failed(Failure failure, const QString& detail = {}) {
    return LinkError{failureText(failure, detail), failure};
}

FetchResult stateFrom(const End& end) {
    if (end.failure)
        return failed(*end.failure, end.errorText);
    const std::string_view body(end.body.constData(), static_cast<std::size_t>(end.body.size()));
    auto state = decode<LiveState>(body, KeyStyle::snakeCase);
    if (!state)
        return failed(Failure::unreadable, QString::fromStdString(state.error));
    if (const std::string problem = firstProblem(*state.value); !problem.empty())
        return failed(Failure::unreadable, QString::fromStdString(problem));
    return FetchedState{std::move(*state.value), end.version};
}

QByteArray bodyOf(Command command, const std::optional<std::string>& mission) {
    const std::string_view name = rawValue(command);
    const QJsonObject body{{"command", QLatin1String(name.data(), static_cast<qsizetype>(name.size()))},
                           {"mission_id", QString::fromStdString(mission.value_or(""))}};
    return QJsonDocument(body).toJson(QJsonDocument::Compact);
}

/// Why a command got no reply; nullopt if it got one, whatever its status.
std::optional<LinkError> commandFailure(const End& end) {
    if (!end.failure || end.status != 0)
        return std::nullopt;
    return LinkError{failureText(*end.failure, end.errorText), *end.failure};
}

} // namespace

HttpLink::HttpLink(const Limits& limits) : limits_(limits) {}

std::optional<QUrl> HttpLink::base(const Settings& settings) {
    const QString text = QStringLiteral("http://") + QString::fromStdString(settings.host) + ':' +
                         QString::number(settings.port) + QStringLiteral("/api/app/v1/");
    QUrl url(text, QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty())
        return std::nullopt;
    return url;
}

const std::optional<QByteArray>& HttpLink::baseOf(const Settings& settings) {
    if (!server_ || server_->host != settings.host || server_->port != settings.port) {
        const auto address = base(settings);
        server_ = {settings.host, settings.port,
                   address ? std::optional(address->toEncoded()) : std::nullopt};
    }
    return server_->base;
}

void HttpLink::fetchState(const Settings& settings, std::function<void(FetchResult)> done) {
    const auto& address = baseOf(settings);
    if (!address) {
        done(failed(Failure::invalidAddress));
        return;
    }
    client_.start({*address + "state", {}, limits_.state, limits_.replyBytes},
                  [done = std::move(done)](const End& end) { done(stateFrom(end)); });
}

void HttpLink::send(Command command, const std::optional<std::string>& mission, const Settings& settings,
                    CommandDone done) {
    const auto& address = baseOf(settings);
    if (!address)
        return;
    client_.start({*address + "command", bodyOf(command, mission), limits_.command, limits_.replyBytes},
                  [done = std::move(done)](const End& end) { done(commandFailure(end)); });
}

} // namespace velmora
