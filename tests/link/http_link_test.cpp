#include "link_fixture.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <thread>

namespace velmora {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

TEST_F(LinkTest, TheBaseAddressTakesTheHostUnchanged) {
    const auto base = [this](const std::string& host, std::int64_t port) {
        settings.host = host;
        settings.port = port;
        const auto url = HttpLink::base(settings);
        return url ? url->toString(QUrl::FullyEncoded).toStdString() : "none";
    };
    EXPECT_EQ(base("192.168.1.20", 8765), "http://192.168.1.20:8765/api/app/v1/");
    EXPECT_EQ(base("velmora.local", 80), "http://velmora.local:80/api/app/v1/");
    EXPECT_EQ(base("[::1]", 8765), "http://[::1]:8765/api/app/v1/");
    for (const char* host : {"", " ", "my house", " velmora.local", "::1", "[::1", "a..b", "%zz", "a<b"})
        EXPECT_EQ(base(host, 8765), "none") << host;
    for (const std::int64_t port : {std::int64_t{-1}, std::int64_t{65'536}, INT64_MAX, INT64_MIN})
        EXPECT_EQ(base("velmora.local", port), "none") << port;
}

TEST_F(LinkTest, AFetchGivesTheStateAndTheServersVersion) {
    reply = ok(document(), "2.1");
    const FetchResult result = fetch();
    const auto* fetched = std::get_if<FetchedState>(&result);
    ASSERT_TRUE(fetched);
    EXPECT_EQ(fetched->version, "2.1");
    EXPECT_EQ(fetched->state, decode<LiveState>(document().toStdString(), KeyStyle::snakeCase).value);
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_THAT(requests[0].toStdString(), StartsWith("GET /api/app/v1/state HTTP/1.1\r\n"));
}

TEST_F(LinkTest, TheVersionIsAShortTextOnOneLine) {
    const std::pair<QByteArray, QString> cases[] = {
        {{}, {}},
        {" 2.1\t beta ", "2.1 beta"},
        {"2\x1b[1m.\xE2\x80\xAE"
         "1",
         "2[1m.1"}, // neither escape sequences nor a bidi override
        {QByteArray(5000, 'v'), QString(40, 'v')}};
    for (const auto& [header, version] : cases) {
        reply = ok(document(), header);
        EXPECT_EQ(std::get<FetchedState>(fetch()).version, version) << header.left(20).toStdString();
    }
}

TEST_F(LinkTest, KeepsNoCookiesOrCachedRepliesBetweenFetches) {
    reply = ok(document(), "1\r\nSet-Cookie: id=7\r\nETag: \"a\"\r\nCache-Control: max-age=3600");
    EXPECT_EQ(failure() + failure(), "");
    ASSERT_EQ(requests.size(), 2u);
    EXPECT_THAT(requests[1].toStdString(), Not(HasSubstr("Cookie")));
    EXPECT_THAT(requests[1].toStdString(), Not(HasSubstr("If-None-Match")));
}

TEST_F(LinkTest, ConcurrentFetchesEndIndependently) {
    reply = ok(document());
    for (int i = 0; i < 20; ++i)
        startFetch();
    EXPECT_TRUE(results.empty()) << "callbacks run in the event loop";
    EXPECT_TRUE(waitUntil([this] { return results.size() == 20; }));
    for (const FetchResult& result : results)
        EXPECT_TRUE(std::holds_alternative<FetchedState>(result));
}

TEST_F(LinkTest, ACommandPostsItsNameAndTheMission) {
    struct Case {
        Command command;
        std::optional<std::string> mission;
        QJsonObject body;
    };
    const Case cases[] = {
        {Command::returnHome, "M-42", {{"command", "return"}, {"mission_id", "M-42"}}},
        {Command::approve, std::nullopt, {{"command", "approve"}, {"mission_id", ""}}},
        {Command::land, "a\"\né", {{"command", "land"}, {"mission_id", "a\"\né"}}},
    };
    reply = ok({});
    for (const auto& [command, mission, body] : cases) {
        const int before = sent;
        startSend(command, mission);
        ASSERT_TRUE(waitUntil([&] { return sent > before; }));
        const QByteArray request = requests.back();
        EXPECT_THAT(request.toStdString(), StartsWith("POST /api/app/v1/command HTTP/1.1\r\n"));
        EXPECT_THAT(request.toStdString(), HasSubstr("\r\nContent-Type: application/json\r\n"));
        EXPECT_EQ(QJsonDocument::fromJson(request.mid(request.indexOf("\r\n\r\n") + 4)).object(), body)
            << request.toStdString();
    }
}

TEST_F(LinkTest, ACommandCallsBackHoweverItsExchangeEnds) {
    useShortTimeLimits();
    for (const Reply& end : {Reply{ScriptedServer::wellFormed(500, "no", {})}, Reply{"nonsense\r\n\r\n"},
                             Reply{{}, true}, Reply{{}, false}, ok(QByteArray(9 << 20, ' '))}) {
        const int before = sent;
        reply = end;
        startSend(Command::hold);
        ASSERT_TRUE(waitUntil([&] { return sent > before; })) << end.bytes.left(40).toStdString();
        EXPECT_EQ(lastFailure.empty(), end.bytes.startsWith("HTTP"))
            << "any reply is a success, whatever its content";
    }
    server.listener().close();
    startSend(Command::hold);
    EXPECT_TRUE(waitUntil([this] { return sent == 6; }));
    EXPECT_EQ(lastFailure, "The connection was refused");
}

TEST_F(LinkTest, ACommandIsPostedOnceWhenTheServerHangsUpWithoutAReply) {
    const auto posts = [this] {
        return std::ranges::count_if(requests, [](const QByteArray& one) { return one.startsWith("POST"); });
    };
    for (const bool kept : {false, true}) {
        useDefaultTimeLimits();
        requests.clear();
        if (kept) {
            reply = {ScriptedServer::wellFormed(200, document(), {}), false};
            EXPECT_EQ(failure(), "");
        }
        reply = {{}, true};
        const int before = sent;
        startSend(Command::approve);
        ASSERT_TRUE(waitUntil([&] { return sent > before; }));
        EXPECT_EQ(lastFailure, "The server sent a bad response") << kept;
        waitUntil([end = QDeadlineTimer(300)] { return end.hasExpired(); });
        EXPECT_EQ(posts(), 1) << kept;
    }
}

TEST_F(LinkTest, AReplyDelayedByAPauseOfTheProgramTimesOut) {
    useShortTimeLimits();
    reply = ok(document());
    int paused = 0;
    for (std::size_t i = 1; i <= 10; ++i) {
        startFetch();
        ASSERT_TRUE(waitUntil([&] { return requests.size() == i; }));
        QCoreApplication::processEvents(); // the server writes its reply
        const bool waits = results.size() < i;
        std::this_thread::sleep_for(150ms);
        ASSERT_TRUE(waitUntil([&] { return results.size() == i; }));
        if (!waits)
            continue;
        ++paused;
        EXPECT_TRUE(std::holds_alternative<LinkError>(results.back()));
    }
    EXPECT_GT(paused, 0);
}

TEST_F(LinkTest, ACommandToAnInvalidAddressNeverCallsBack) {
    settings.host.clear();
    startSend(Command::approve);
    settings.host = "127.0.0.1";
    reply = ok({});
    startSend(Command::approve);
    EXPECT_TRUE(waitUntil([this] { return sent > 0; }));
    EXPECT_EQ(sent, 1);
    EXPECT_EQ(requests.size(), 1u);
}

TEST_F(LinkTest, ADestroyedLinkNeverCallsBack) {
    reply = {{}, false};
    startFetch();
    startSend(Command::approve);
    ASSERT_TRUE(waitUntil([this] { return requests.size() == 2; }));
    link.reset();
    EXPECT_TRUE(waitUntil([this] { return server.listener().findChildren<QTcpSocket*>().isEmpty(); }))
        << "the connections are closed";
    EXPECT_TRUE(results.empty());
    EXPECT_EQ(sent, 0);
}

TEST_F(LinkTest, DisconnectingAbortsFetchesAndClosesTheKeptConnectionAfterTheLastCommand) {
    const auto connections = [this] { return server.listener().findChildren<QTcpSocket*>().size(); };
    reply = {ScriptedServer::wellFormed(200, document(), {}), false};
    EXPECT_EQ(failure(), "");
    EXPECT_EQ(connections(), 1);
    startSend(Command::hold);
    startFetch();
    link->disconnect();
    EXPECT_TRUE(waitUntil([&] { return sent == 1 && connections() == 0; }));
    EXPECT_EQ(results.size(), 1u) << "the fetch was aborted";
    EXPECT_EQ(failure(), "") << "the next fetch connects again";
}

TEST_F(LinkTest, ACallbackMayDestroyTheLink) {
    reply = ok(document());
    int calls = 0;
    for (int i = 0; i < 3; ++i)
        link->fetchState(settings, [&](const FetchResult&) {
            ++calls;
            link.reset();
        });
    EXPECT_TRUE(waitUntil([&] { return calls > 0; }));
    EXPECT_TRUE(waitUntil([this] { return server.listener().findChildren<QTcpSocket*>().isEmpty(); }));
    EXPECT_EQ(calls, 1);
}

TEST_F(LinkTest, ConnectionsAreKeptToTwoServersUntilNoCommandRunsAfterADisconnect) {
    reply = {ScriptedServer::wellFormed(200, document(), {}), false};
    ScriptedServer second([this](const QByteArray&) { return reply; }),
        third([this](const QByteArray&) { return reply; });
    const auto kept = [&] {
        qsizetype connections = 0;
        for (ScriptedServer* each : {&server, &second, &third})
            connections += each->listener().findChildren<QTcpSocket*>().size();
        return connections;
    };
    EXPECT_EQ(failure(), "");
    for (ScriptedServer* other : {&second, &third}) {
        other->listener().listen(QHostAddress::LocalHost);
        settings.port = other->listener().serverPort();
        EXPECT_EQ(failure(), "");
    }
    EXPECT_TRUE(waitUntil([&] { return kept() == 2; }));
    startSend(Command::approve);
    link->disconnect();
    EXPECT_TRUE(waitUntil([&] { return sent == 1 && kept() == 0; }));
    EXPECT_EQ(failure(), "");
    EXPECT_EQ(kept(), 1);
    link->disconnect();
    EXPECT_TRUE(waitUntil([&] { return kept() == 0; })) << "at once";
}

TEST_F(LinkTest, AProgramThatIsStartedMeanwhileGetsNoSocket) {
    const auto socketsOfAChild = [] {
        QProcess child;
        child.start(QStringLiteral("ls"), {QStringLiteral("-l"), QStringLiteral("/proc/self/fd")});
        EXPECT_TRUE(child.waitForFinished());
        return child.readAllStandardOutput().count("socket:");
    };
    EXPECT_EQ(failureOf({{}, true}), badResponse) << "the library keeps sockets of its own from now on";
    const auto before = socketsOfAChild();
    reply = {{}, false};
    startFetch();
    EXPECT_EQ(socketsOfAChild(), before) << "connecting";
    EXPECT_TRUE(waitUntil([this] { return requests.size() == 2; }));
    EXPECT_EQ(socketsOfAChild(), before) << "connected";
}

} // namespace velmora
