#include "link_fixture.h"

#include "standin-server/standin_server.h"
#include "support/random.h"

#include <QRegularExpression>

namespace velmora {

using namespace standin;

/// A link to the stand-in server, with a clock that the test controls.
class StandinTest : public LinkTest {
protected:
    void serve(Options options) {
        options.port = 0;
        standin = std::make_unique<StandinServer>(options, api);
        ASSERT_EQ(standin->listen(), "");
        settings.port = standin->port();
    }
    void pass(double seconds) {
        for (const Date end = now + Seconds{seconds}; now < end; now += Seconds{1})
            site.advance(now);
    }
    LiveState fetched() { return std::get<FetchedState>(fetch()).state; }
    void command(Command command, const std::optional<std::string>& mission) {
        const int before = sent;
        startSend(command, mission);
        ASSERT_TRUE(waitUntil([&] { return sent > before; }));
    }

    Date now = dateFromSeconds(1'700'000'042);
    ScriptedRandom random;
    SimulatedSite site{Scenario::garden, Seconds{300}, now, random};
    AppApi api{site, [this] { return now; }};
    std::unique_ptr<StandinServer> standin;
};

TEST_F(StandinTest, AnApprovedAlertFliesTheDrone) {
    serve({});
    EXPECT_EQ(fetched().phase, Phase::docked);
    pass(4);
    const LiveState alert = fetched();
    EXPECT_EQ(alert.phase, Phase::awaitingApproval);
    ASSERT_TRUE(alert.visitor && alert.missionId);
    EXPECT_EQ(alert.visitor->cameraId, "garden");

    command(Command::approve, "M-of-yesterday");
    command(Command::approve, std::nullopt);
    EXPECT_EQ(fetched().phase, Phase::awaitingApproval) << "meant for another mission";
    command(Command::approve, alert.missionId);
    EXPECT_EQ(fetched().phase, Phase::launching);
    pass(30);
    EXPECT_EQ(fetched().phase, Phase::following);
    command(Command::returnHome, alert.missionId);
    pass(250);
    EXPECT_EQ(fetched().phase, Phase::docked);
    pass(30);
    EXPECT_EQ(fetched().phase, Phase::awaitingApproval) << "the next visit";
}

TEST_F(StandinTest, RejectsInvalidCommands) {
    for (const QByteArray body :
         {"", "x", "[]", R"({"command":"fly","mission_id":""})", R"({"command":"land"})",
          R"({"command":"land","mission_id":null})", R"({"command":["land"],"mission_id":""})"})
        EXPECT_EQ(api.command(body).status, 400) << body.toStdString();
    EXPECT_EQ(api.command(R"({"command":"land","mission_id":""})").status, 200);
}

TEST_F(StandinTest, ReproducesTheFaultsOfItsOptions) {
    const auto failureWith = [this](auto change) {
        Options options;
        change(options);
        serve(options);
        return failure();
    };
    EXPECT_EQ(failureWith([](Options& o) { o.version = {}; }), "");
    EXPECT_EQ(failureWith([](Options& o) { o.status = 503; }), badResponse);
    EXPECT_EQ(failureWith([](Options& o) { o.truncateAfter = 20; }), badResponse);
    EXPECT_EQ(failureWith([](Options& o) { o.delay = 1ms; }), "");
    useShortTimeLimits();
    EXPECT_EQ(failureWith([](Options& o) { o.drip = true; }), timedOut);
    EXPECT_EQ(failureWith([](Options& o) { o.silent = true; }), timedOut);
    EXPECT_EQ(failureWith([](Options& o) { o.delay = 10min; }), timedOut);
}

TEST_F(StandinTest, APortInUseIsAnError) {
    serve({});
    Options options;
    options.port = standin->port();
    EXPECT_EQ(StandinServer(options, api).listen(), "The bound address is already in use");
}

TEST(StandinOptions, AreReadFromTheCommandLine) {
    const auto read = [](const QString& line) {
        return readOptions(QStringList("velmora-standin") + line.split(' ', Qt::SkipEmptyParts));
    };
    const auto options = std::get<Options>(
        read("--port 9000 --host ::1 --visitor front --every 30 --version 2.1 --delay 5 --status 404"));
    EXPECT_EQ(options.port, 9000);
    EXPECT_EQ(options.host, QHostAddress(QHostAddress::LocalHostIPv6));
    EXPECT_EQ(options.visitor, Scenario::front);
    EXPECT_EQ(options.every, Seconds{30});
    EXPECT_EQ(options.version, "2.1");
    EXPECT_EQ(options.delay, 5ms);
    EXPECT_EQ(options.status, 404);
    EXPECT_TRUE(std::get<Options>(read("")).host.isLoopback()) << "other machines cannot reach it by default";
    EXPECT_TRUE(std::get<OptionsText>(read("--help")).text.contains("--visitor"));
    for (const char* line : {"--port 0", "--port 65536", "--port x", "--host nowhere", "--visitor postman",
                             "--every -1", "--status 99", "--truncate", "--nonsense", "argument"}) {
        const auto result = read(line);
        const auto* text = std::get_if<OptionsText>(&result);
        EXPECT_TRUE(text && text->isError) << line;
    }
}

} // namespace velmora
