#pragma once

#include "standin-server/app_api.h"
#include "standin-server/options.h"
#include "standin-server/scripted_server.h"

#include <QHttpServer>

#include <optional>

namespace velmora::standin {

/// Serves the app API over HTTP, with the faults set in the options.
class StandinServer {
public:
    /// `api` must outlive the server.
    StandinServer(const Options& options, AppApi& api);

    /// Starts to serve. Returns an error text, or an empty string on success. Port 0 selects a free port.
    QString listen();
    quint16 port() const { return port_; }

private:
    void route();
    void answer(const AppApi::Answer& right, QHttpServerResponder&& responder);
    ScriptedServer::Reply brokenReply(const QByteArray& request);
    QString listenOn(QTcpServer& listener);

    Options options_;
    AppApi& api_;
    quint16 port_ = 0;
    QHttpServer http_;
    std::optional<ScriptedServer> broken_;
};

} // namespace velmora::standin
