#include "link/http_link.h"

#include "link/failure_text.h"
#include "link/state_guard.h"
#include "model/json.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkProxy>

namespace velmora {

namespace {

QNetworkRequest requestTo(const QUrl& base, const QString& endpoint) {
    QNetworkRequest request(base.resolved(QUrl(endpoint)));
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setRawHeader("Accept-Encoding", "identity"); // a compressed reply could unfold without end
    return request;
}

FetchResult failed(Failure failure, const QString& detail = {}) {
    return LinkError{failureText(failure, detail)};
}

FetchResult stateFrom(const Exchange::End& end) {
    if (const auto failure = failureOf(end))
        return failed(*failure, end.errorText);
    const std::string_view body(end.body.constData(), static_cast<std::size_t>(end.body.size()));
    auto state = decode<LiveState>(body, KeyStyle::snakeCase);
    if (!state)
        return failed(Failure::unreadable, QString::fromStdString(state.error));
    if (const std::string trouble = troubleIn(*state.value); !trouble.empty())
        return failed(Failure::unreadable, QString::fromStdString(trouble));
    return FetchedState{std::move(*state.value), versionText(end.version)};
}

QByteArray bodyOf(Command command, const std::optional<std::string>& mission) {
    const std::string_view name = rawValue(command);
    const QJsonObject body{{"command", QLatin1String(name.data(), static_cast<qsizetype>(name.size()))},
                           {"mission_id", QString::fromStdString(mission.value_or(""))}};
    return QJsonDocument(body).toJson(QJsonDocument::Compact);
}

/// Why no reply came to a command; absent when one came, whatever it says.
std::optional<LinkError> commandFailure(const Exchange::End& end) {
    if (end.kind == Exchange::End::Kind::complete || end.status != 0)
        return std::nullopt;
    return LinkError{failureText(*failureOf(end), end.errorText)};
}

/// Qt sends a request again when its connection breaks before the reply, unless its body cannot be rewound.
class SingleUseBody : public QBuffer {
public:
    explicit SingleUseBody(const QByteArray& bytes) {
        setData(bytes);
        open(ReadOnly);
    }
    bool isSequential() const override { return true; }
};

} // namespace

HttpLink::HttpLink(const Limits& limits) : limits_(limits) {
    manager_.setProxy(QNetworkProxy::NoProxy); // the server stands in the same house
}

std::optional<QUrl> HttpLink::base(const Settings& settings) {
    const QString text = QStringLiteral("http://") + QString::fromStdString(settings.host) + ':' +
                         QString::number(settings.port) + QStringLiteral("/api/app/v1/");
    QUrl url(text, QUrl::StrictMode);
    if (!url.isValid() || url.host().isEmpty())
        return std::nullopt;
    return url;
}

void HttpLink::fetchState(const Settings& settings, std::function<void(FetchResult)> done) {
    const auto address = base(settings);
    if (!address) {
        done(failed(Failure::invalidAddress));
        return;
    }
    QNetworkReply* reply = manager_.get(requestTo(*address, QStringLiteral("state")));
    new Exchange(
        reply, limits_.state, limits_.replyBytes,
        [done = std::move(done)](const Exchange::End& end) { done(stateFrom(end)); }, this);
}

void HttpLink::send(Command command, const std::optional<std::string>& mission, const Settings& settings,
                    CommandDone done) {
    const auto address = base(settings);
    if (!address)
        return;
    QNetworkRequest request = requestTo(*address, QStringLiteral("command"));
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    auto* body = new SingleUseBody(bodyOf(command, mission));
    request.setHeader(QNetworkRequest::ContentLengthHeader, body->size());
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    QNetworkReply* reply = manager_.post(request, body);
    body->setParent(reply);
    new Exchange(
        reply, limits_.command, limits_.replyBytes,
        [done = std::move(done)](const Exchange::End& end) { done(commandFailure(end)); }, this);
}

} // namespace velmora
