#pragma once

#include "link/http_link.h"
#include "model/json.h"
#include "standin-server/scripted_server.h"
#include "support/wait_until.h"

#include <QFile>
#include <QTcpSocket>
#include <gmock/gmock.h>

#include <memory>

namespace velmora {

using namespace std::chrono_literals;

constexpr auto badResponse = "The server sent a bad response";
constexpr auto timedOut = "The connection timed out";

inline QByteArray contentOf(const QString& name) {
    QFile file(QStringLiteral(VELMORA_DOCS "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

/// A link, and a server on loopback that answers each request with `reply`. Real: the time limits are those
/// of the system's clock.
class LinkTest : public testing::Test {
protected:
    using ScriptedServer = standin::ScriptedServer;
    using Reply = ScriptedServer::Reply;

    LinkTest()
        : server([this](const QByteArray& request) {
              requests.push_back(request);
              return reply;
          }) {
        server.listener().listen(QHostAddress::LocalHost);
        settings.host = "127.0.0.1";
        settings.port = server.listener().serverPort();
    }

    /// The example of the API document.
    static QByteArray document() { return contentOf(QStringLiteral("app_api_state.json")); }
    static Reply ok(const QByteArray& body, const QByteArray& version = {}) {
        return {ScriptedServer::wellFormed(200, body, version)};
    }

    void useDefaultTimeLimits() { link = std::make_unique<HttpLink>(); }
    void useShortTimeLimits() { link = std::make_unique<HttpLink>(HttpLink::Limits{100ms, 100ms, 8 << 20}); }

    void startFetch() {
        link->fetchState(settings, [this](const FetchResult& result) { results.push_back(result); });
    }
    void startSend(Command command, const std::optional<std::string>& mission = "M-1") {
        link->send(command, mission, settings, [this](const std::optional<LinkError>& failure) {
            ++sent;
            lastFailure = failure ? failure->text.toStdString() : "";
        });
    }

    FetchResult fetch() {
        const std::size_t before = results.size();
        startFetch();
        EXPECT_TRUE(waitUntil([&] { return results.size() > before; }));
        return results.size() > before ? results.back() : LinkError{"no answer"};
    }
    /// The error of a fetch; "" if it gave a state.
    std::string failure() {
        const FetchResult result = fetch();
        const auto* error = std::get_if<LinkError>(&result);
        return error ? error->text.toStdString() : "";
    }
    std::string failureOf(const Reply& bad) {
        reply = bad;
        return failure();
    }

    Reply reply;
    std::vector<QByteArray> requests;
    ScriptedServer server;
    Settings settings;
    std::unique_ptr<HttpLink> link = std::make_unique<HttpLink>();
    std::vector<FetchResult> results;
    int sent = 0;            ///< commands that have ended
    std::string lastFailure; ///< of the last command that ended; "" when a reply came
};

} // namespace velmora
