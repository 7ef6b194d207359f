#include "link_fixture.h"

#include "model/validation.h"

#include <random>

namespace velmora {

namespace {

/// A malicious server, or a connection that damages data. The faults are the same in every run.
class HostileServerTest : public LinkTest {
protected:
    /// The bytes with one random fault at this index: a byte changed, bytes removed, repeated or inserted, or
    /// the rest cut off.
    QByteArray damaged(QByteArray bytes, qsizetype at) {
        const auto byte = static_cast<char>(draw(256));
        switch (draw(5)) {
        case 0:
            bytes[at] = byte;
            break;
        case 1:
            bytes.remove(at, 1 + draw(3));
            break;
        case 2:
            bytes.insert(at, bytes.mid(at, 1 + draw(40)));
            break;
        case 3:
            bytes.insert(at, QByteArray(1 + draw(3), byte));
            break;
        default:
            bytes.truncate(at);
        }
        return bytes;
    }
    int draw(int below) { return std::uniform_int_distribution<>(0, below - 1)(random_); }
    /// A random site, different for every draw.
    LiveState anySite() {
        LiveState state = LiveState::initial();
        state.site.name = "../" + std::to_string(draw(1 << 30)) + "/<b>\u202E\x1b";
        state.site.size = {1.0 + draw(90'000), 1.0 + draw(90'000)};
        state.site.cameras.resize(std::size_t(draw(100)), state.site.cameras[0]);
        state.site.boundary.resize(1 + std::size_t(draw(900)), {double(draw(1000)), double(draw(1000))});
        return state;
    }
    static Reply served(const LiveState& state) {
        return ok(QByteArray::fromStdString(encode(state, KeyStyle::snakeCase).value()));
    }

private:
    std::mt19937 random_{7};
};

TEST_F(HostileServerTest, EveryDamagedBodyIsReadOrRejected) {
    const QByteArray complete = document();
    int rejected = 0;
    for (int poll = 0; poll < 10'000; ++poll) {
        const std::string body = damaged(complete, poll % complete.size()).toStdString();
        const auto read = decode<LiveState>(body, KeyStyle::snakeCase);
        ASSERT_NE(read.value.has_value(), !read.error.empty()) << body;
        if (read && firstProblem(*read.value).empty())
            ASSERT_TRUE(encode(*read.value)) << body;
        else
            ++rejected;
    }
    EXPECT_GT(rejected, 5000);
}

TEST_F(HostileServerTest, DamageAtAnyByteEndsOnlyItsOwnFetch) {
    useShortTimeLimits();
    const QByteArray complete = ok(document(), "2.1").bytes;
    std::size_t fetches = 0;
    for (qsizetype at = 0; at < complete.size(); ++at) {
        failureOf({damaged(complete, at)});
        ASSERT_EQ(results.size(), ++fetches) << at;
    }
    EXPECT_EQ(failureOf(ok(document())), "");
}

TEST_F(HostileServerTest, AThousandDroppedConnectionsLeakNothing) {
    reply = {{}, true};
    for (int i = 0; i < 50; ++i) {
        for (int together = 0; together < 20; ++together)
            startFetch();
        ASSERT_TRUE(waitUntil([&] { return results.size() == std::size_t(20 * (i + 1)); }));
    }
    for (const FetchResult& result : results)
        EXPECT_EQ(std::get<LinkError>(result).text, badResponse);
    EXPECT_EQ(requests.size(), 1000u) << "all have reached the server";
    EXPECT_EQ(failureOf({ScriptedServer::wellFormed(200, document(), {}), false}), "");
    const auto connections = [this] { return server.listener().findChildren<QTcpSocket*>().size(); };
    EXPECT_TRUE(waitUntil([&] { return connections() == 1; })) << "the last one is kept";
    link.reset();
    EXPECT_TRUE(waitUntil([&] { return connections() == 0; }));
}

TEST_F(HostileServerTest, ADifferentSiteWithEveryPollArrivesUnchanged) {
    for (int poll = 0; poll < 200; ++poll) {
        const LiveState site = anySite();
        reply = served(site);
        const FetchResult result = fetch();
        ASSERT_TRUE(std::holds_alternative<FetchedState>(result))
            << std::get<LinkError>(result).text.toStdString();
        EXPECT_EQ(std::get<FetchedState>(result).state, site);
    }
}

TEST_F(HostileServerTest, AnOversizedSiteIsRejectedWithItsPath) {
    const std::string unreadable = "The server's state could not be read (";
    LiveState crowded = LiveState::initial();
    crowded.site.cameras.resize(500);
    EXPECT_EQ(failureOf(served(crowded)), unreadable + "site.cameras: more than 100 entries)");
    LiveState wordy = LiveState::initial();
    wordy.site.cameras[2].name.assign(10'000, 'W');
    EXPECT_EQ(failureOf(served(wordy)), unreadable + "site.cameras[2].name: longer than 1000 bytes)");
}

} // namespace

} // namespace velmora
