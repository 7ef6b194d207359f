#include "link/http_link.h"

#include "link/failure_text.h"
#include "model/json.h"
#include "model/validation.h"

#include <QIODevice>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkProxy>

#include <algorithm>

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
    request.setRawHeader("Accept-Encoding", "identity"); // a compressed reply could expand without limit
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
std::optional<LinkError> commandFailure(const Exchange::End& end) {
    if (end.kind == Exchange::End::Kind::complete || end.status != 0)
        return std::nullopt;
    return LinkError{failureText(*failureOf(end), end.errorText)};
}

/// A request body that can be read only once. Qt resends a request whose connection breaks before the reply,
/// unless it cannot rewind the body.
class SingleUseBody : public QIODevice {
public:
    explicit SingleUseBody(const QByteArray& bytes) : rest_(bytes) { open(ReadOnly); }
    bool isSequential() const override { return true; }
    bool reset() override { return false; }
    qint64 bytesAvailable() const override { return rest_.size() + QIODevice::bytesAvailable(); }

protected:
    qint64 readData(char* data, qint64 most) override {
        const qint64 count = std::min<qint64>(most, rest_.size());
        std::copy_n(rest_.constData(), count, data);
        rest_.remove(0, count);
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray rest_;
};

} // namespace

HttpLink::HttpLink(const Limits& limits) : limits_(limits) {
    manager_.setProxy(QNetworkProxy::NoProxy); // the server is on the home network
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
    const QByteArray bytes = bodyOf(command, mission);
    auto* body = new SingleUseBody(bytes);
    request.setHeader(QNetworkRequest::ContentLengthHeader, bytes.size());
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    request.setRawHeader("Connection", "close");
    // Use a new connection: the server may be closing a kept one, and a command is never sent twice.
    auto* manager = new QNetworkAccessManager;
    manager->setProxy(QNetworkProxy::NoProxy);
    QNetworkReply* reply = manager->post(request, body);
    body->setParent(reply);
    auto* exchange = new Exchange(
        reply, limits_.command, limits_.replyBytes,
        [done = std::move(done)](const Exchange::End& end) { done(commandFailure(end)); }, this);
    manager->setParent(exchange);
}

} // namespace velmora
