#include "link_fixture.h"

namespace velmora {

using testing::StartsWith;

namespace {

/// Longer than 255 characters, so that no resolver is asked.
const std::string tooLongName = [] {
    std::string name = "velmora";
    while (name.size() <= 255)
        name += ".local";
    return name;
}();
constexpr auto unreadable = "The server's state could not be read";

} // namespace

TEST_F(LinkTest, AnInvalidAddressFailsBeforeTheCallReturns) {
    settings.port = 99'999;
    startFetch();
    ASSERT_EQ(results.size(), 1u);
    EXPECT_EQ(std::get<LinkError>(results[0]).text, "The host or port in Settings is not a valid address");
}

TEST_F(LinkTest, RefusedUnknownAndUnreachableHostsHaveDifferentTexts) {
    server.listener().close();
    EXPECT_EQ(failure(), "The connection was refused");
    settings.host = tooLongName;
    qputenv("http_proxy", "http://127.0.0.1:1");
    EXPECT_EQ(failure(), "The host was not found") << "no proxy is used";
    qunsetenv("http_proxy");
    settings.host = "127.255.255.255"; // no connection leads to a broadcast address
    EXPECT_EQ(failure(), "The network is unreachable");
}

TEST_F(LinkTest, OnlyStatus200GivesAState) {
    for (const int status : {201, 204, 206, 299, 300, 301, 304, 307, 400, 401, 404, 407, 500, 503, 599, 999})
        EXPECT_EQ(failureOf({ScriptedServer::wellFormed(status, document(), "1")}), badResponse) << status;
}

TEST_F(LinkTest, ARedirectIsNotFollowed) {
    const QByteArray elsewhere = "http://127.0.0.1:" + QByteArray::number(settings.port) + "/elsewhere";
    EXPECT_EQ(failureOf({"HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + elsewhere + "\r\n\r\n"}),
              badResponse);
    EXPECT_EQ(requests.size(), 1u);
}

TEST_F(LinkTest, AnIncompleteOrInvalidHttpReplyIsABadResponse) {
    const QByteArray complete = ok(document()).bytes;
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("SSH-2.0-Server\r\n"), QByteArray("HTTP/1.1 abc\r\n\r\n"),
          QByteArray(2000, '\0'), complete.left(9), complete.left(complete.indexOf("\r\n\r\n")),
          complete.chopped(1), QByteArray("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\nab")})
        EXPECT_EQ(failureOf({bytes}), badResponse) << bytes.left(60).toStdString();
}

TEST_F(LinkTest, AReplyAboveEightMebibytesIsABadResponse) {
    const QByteArray spaces(7 << 20, ' ');
    EXPECT_EQ(failureOf(ok(document() + spaces)), "") << "spaces after the document are allowed";
    EXPECT_EQ(failureOf(ok(document() + spaces + spaces)), badResponse);
    EXPECT_EQ(failureOf({"HTTP/1.1 200 OK\r\n\r\n" + spaces + spaces, false}), badResponse)
        << "a body without a declared length";
}

TEST_F(LinkTest, TheTimeLimitIsThatOfTheCompleteExchange) {
    useShortTimeLimits();
    const QByteArray complete = ok(document()).bytes;
    const QByteArray head = complete.left(complete.indexOf("\r\n\r\n") + 4);
    EXPECT_EQ(failureOf({{}, false}), timedOut) << "silent";
    EXPECT_EQ(failureOf({head, false}), timedOut) << "no body";
    EXPECT_EQ(failureOf({complete, true, 10min}), timedOut) << "slow";
    EXPECT_EQ(failureOf({complete, true, 0ms, 5ms}), timedOut) << "dripping";
    useDefaultTimeLimits();
    EXPECT_EQ(failureOf({complete}), "") << "a valid reply after the failed ones";
}

TEST_F(LinkTest, AnInvalidStateIsReportedWithItsPath) {
    struct Case {
        QByteArray from, to;
        std::string where;
    };
    const Case cases[] = {
        {R"("battery": 78.6)", R"("battery": "78")", "drone.battery: expected a number"},
        {R"("battery": 78.6)", R"("battery": 1e19)", "drone.battery: out of range"},
        {R"("altitude": 15.0)", R"("altitude": -1e300)", "drone.altitude: out of range"},
        {R"("armed": true,)", "", "armed: missing"},
        {R"("following")", R"("flying")", "phase: not one of the known values"},
        {"14:03:12Z\",\n  \"appr", "14:03:12.5Z\",\n  \"appr",
         "mission_start: expected a date such as 2025-06-01T14:03:12Z"},
        {R"("size": {"x": 150.0)", R"("size": {"x": 0)", "site.size: expected 1 to 100000 metres"},
        {R"({"x": 47.1)", R"({"x": null)", "visitor.trail[1].x: expected a number"},
    };
    for (const auto& [from, to, where] : cases) {
        QByteArray body = document();
        ASSERT_EQ(body.count(from), 1) << from.toStdString();
        EXPECT_EQ(failureOf(ok(body.replace(from, to))), std::string(unreadable) + " (" + where + ")");
    }
    for (const QByteArray& body :
         {QByteArray(), QByteArray("{"), QByteArray("[]"), QByteArray(5000, '['), QByteArray("<html></html>"),
          QByteArray("\xFF\xFE{}"), QByteArray(1, '\0')})
        EXPECT_THAT(failureOf(ok(body)), StartsWith(unreadable)) << body.left(20).toStdString();
}

} // namespace velmora
