#include "standin-server/standin_server.h"

#include <QPointer>
#include <QTcpSocket>
#include <QTimer>

#include <memory>

namespace velmora::standin {

using namespace std::chrono_literals;

StandinServer::StandinServer(const Options& options, AppApi& api) : options_(options), api_(api) {
    if (options_.isBroken())
        broken_.emplace([this](const QByteArray& request) { return brokenReply(request); });
    else
        route();
}

QString StandinServer::listen() {
    if (broken_)
        return listenOn(broken_->listener());
    auto listener = std::make_unique<QTcpServer>();
    QString problem = listenOn(*listener);
    if (problem.isEmpty())
        http_.bind(listener.release());
    return problem;
}

QString StandinServer::listenOn(QTcpServer& listener) {
    if (!listener.listen(options_.host, options_.port))
        return listener.errorString();
    port_ = listener.serverPort();
    return {};
}

void StandinServer::route() {
    using Method = QHttpServerRequest::Method;
    http_.route("/api/app/v1/state", Method::Get,
                [this](QHttpServerResponder&& responder) { answer(api_.state(), std::move(responder)); });
    http_.route("/api/app/v1/command", Method::Post,
                [this](const QHttpServerRequest& request, QHttpServerResponder&& responder) {
                    answer(api_.command(request.body()), std::move(responder));
                });
}

void StandinServer::answer(const AppApi::Answer& right, QHttpServerResponder&& responder) {
    const int status = options_.status.value_or(right.status);
    const QPointer socket = responder.socket();
    const auto send = [body = right.body, status, version = options_.version, socket,
                       kept = std::make_shared<QHttpServerResponder>(std::move(responder))] {
        if (!socket || socket->state() != QAbstractSocket::ConnectedState)
            return; // the client has disconnected, which the responder does not detect
        kept->writeStatusLine(QHttpServerResponder::StatusCode(status));
        kept->writeHeader("Content-Type", "application/json");
        kept->writeHeader("Content-Length", QByteArray::number(body.size()));
        if (!version.isEmpty())
            kept->writeHeader("X-Velmora-Version", version);
        kept->writeBody(body);
    };
    if (options_.delay == 0ms)
        send();
    else
        QTimer::singleShot(options_.delay, &http_, send);
}

ScriptedServer::Reply StandinServer::brokenReply(const QByteArray& request) {
    const bool isCommand = request.startsWith("POST");
    const AppApi::Answer right =
        isCommand ? api_.command(request.mid(request.indexOf("\r\n\r\n") + 4)) : api_.state();
    QByteArray bytes =
        ScriptedServer::wellFormed(options_.status.value_or(right.status), right.body, options_.version);
    if (options_.silent)
        return {{}, false};
    if (options_.truncateAfter)
        bytes.chop(std::max<qsizetype>(right.body.size() - *options_.truncateAfter, 0));
    return {bytes, true, options_.delay, options_.drip ? 1000ms : 0ms};
}

} // namespace velmora::standin
