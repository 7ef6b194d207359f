#include "store/link_session.h"
#include "store/store_fixture.h"

#include <QSignalSpy>

namespace velmora {

namespace {

/// A session whose clock and replies the test controls.
class LinkSessionTest : public testing::Test {
protected:
    LinkSessionTest() {
        settings.linkMode = true;
        session = std::make_unique<LinkSession>(
            link, [this] { return now; }, settings, nullptr);
    }
    void pass(double seconds) {
        for (int i = 0; i < std::lround(seconds / 0.05); ++i)
            session->advance(now += Seconds{0.05}, 0.05);
    }
    /// Replies to the oldest outstanding poll.
    void answer(const FetchResult& result) {
        ASSERT_FALSE(link.fetches.empty());
        const auto done = link.fetches.front();
        link.fetches.erase(link.fetches.begin());
        done(result);
    }
    void answerWell() { answer(FetchedState{LiveState::initial(), "2.1"}); }

    FakeLink link;
    Date now = dateFromSeconds(1'700'000'042);
    Settings settings;
    std::unique_ptr<LinkSession> session;
};

TEST_F(LinkSessionTest, PollsTwiceASecondOneRequestAtATime) {
    pass(5);
    EXPECT_EQ(link.fetches.size(), 1U);
    int answers = 0;
    for (double seconds = 0; seconds < 5; seconds += 0.05) {
        pass(0.05);
        for (; !link.fetches.empty(); ++answers)
            answerWell();
    }
    EXPECT_EQ(answers, 10 + 1);
}

TEST_F(LinkSessionTest, FreshnessFollowsTheAgeOfTheLastGoodAnswer) {
    EXPECT_EQ(session->freshness(), Freshness::unknown);
    pass(0.5);
    answer(LinkError{"refused"});
    EXPECT_EQ(session->freshness(), Freshness::unknown);
    pass(0.5);
    answerWell();
    EXPECT_EQ(session->freshness(), Freshness::live);
    pass(2.5);
    EXPECT_EQ(session->freshness(), Freshness::live) << "a poll may take two seconds";
    answer(LinkError{"timed out"});
    EXPECT_EQ(session->freshness(), Freshness::stale) << "after an error two seconds suffice";
    pass(0.5);
    answerWell();
    EXPECT_EQ(session->freshness(), Freshness::live);
    pass(2.55);
    EXPECT_EQ(session->freshness(), Freshness::stale);
}

TEST_F(LinkSessionTest, IgnoresALateReplyOfAnotherServerOrMode) {
    pass(0.5);
    const QSignalSpy states(session.get(), &LinkSession::received);
    settings.port += 1;
    EXPECT_TRUE(session->setSettings(settings));
    answerWell();
    EXPECT_EQ(session->status(), LinkStatus::connecting());
    EXPECT_EQ(session->freshness(), Freshness::unknown);
    pass(0.5);
    session->send(Command::hold, "M-1", LiveState::initial(), [](const LinkError&) {});
    settings.linkMode = false;
    EXPECT_TRUE(session->setSettings(settings));
    answerWell();
    link.posts.at(0).done({});
    pass(5);
    EXPECT_EQ(session->status(), LinkStatus::demo());
    EXPECT_EQ(session->freshness(), Freshness::live);
    EXPECT_TRUE(states.empty());
    EXPECT_TRUE(link.fetches.empty()) << "nothing is polled in demo mode";
}

TEST_F(LinkSessionTest, OtherSettingsDoNotResetTheSession) {
    pass(0.5);
    answerWell();
    settings.flightHeight = 20;
    EXPECT_FALSE(session->setSettings(settings));
    EXPECT_EQ(session->freshness(), Freshness::live);
}

} // namespace

} // namespace velmora
