#include "store_fixture.h"

namespace velmora {

TEST_F(StoreTest, LinkModePollsEveryTenthTickAndSkipsPollsMeanwhile) {
    linked();
    pass(0.45);
    EXPECT_EQ(link.fetches.size(), 0u);
    pass(0.1);
    EXPECT_EQ(link.fetches.size(), 1u);
    pass(5);
    EXPECT_EQ(link.fetches.size(), 1u) << "one request at a time";
    link.fetches[0](LinkError{"The connection timed out"});
    EXPECT_EQ(store().linkStatus().text(), "Can't reach velmora — The connection timed out");
    pass(0.5);
    EXPECT_EQ(link.fetches.size(), 2u);
}

TEST_F(StoreTest, AReplySetsTheStateAndTheNextTickActsOnItsPhase) {
    linked();
    pass(0.55);
    LiveState state = LiveState::initial();
    state.phase = Phase::awaitingApproval;
    state.visitor = Visitor{{50, 50}, "Unknown person", 0.9, "nowhere", true, {}};
    link.fetches.at(0)(FetchedState{state, "2.1"});
    EXPECT_EQ(store().linkStatus().text(), "Linked to velmora 2.1");
    EXPECT_EQ(live(), state);
    EXPECT_TRUE(notifier.posted.empty());
    tickAfter(0.05);
    ASSERT_EQ(notifier.posted.size(), 1u);
    EXPECT_EQ(notifier.posted[0].identifier, "det") << "the state names no mission";
    EXPECT_EQ(notifier.posted[0].title, "Someone you don't know is at the a camera");
}

TEST_F(StoreTest, ACommandIsPostedAndFollowedByAPoll) {
    linked();
    store().send(Command::hold, CommandSource::live);
    ASSERT_EQ(link.posts.size(), 1u);
    EXPECT_EQ(link.posts[0].mission, std::nullopt);
    EXPECT_EQ(phase(), Phase::docked) << "the local state does not change";
    link.posts[0].done({});
    EXPECT_EQ(link.fetches.size(), 1u);
    link.posts[0].done({});
    EXPECT_EQ(link.fetches.size(), 1u) << "no second poll while one is outstanding";
}

TEST_F(StoreTest, TheSimulatorPausesInLinkMode) {
    store().simulate(Scenario::driveway);
    const P before = live().visitor->pos;
    store().applyLinkMode(true);
    EXPECT_EQ(store().linkStatus().text(), "Connecting…");
    store().simulate(Scenario::garden);
    store().setArmed(false);
    pass(3);
    link.fetches.at(0)(FetchedState{LiveState::initial(), ""});
    store().applyLinkMode(false);
    EXPECT_EQ(store().linkStatus(), LinkStatus::demo());
    EXPECT_EQ(live().visitor->pos, before);
    EXPECT_TRUE(live().armed);
}

TEST_F(StoreTest, IgnoresRepliesAfterTheStoreIsDestroyed) {
    linked();
    pass(0.55);
    store().send(Command::hold, CommandSource::live);
    restart();
    link.fetches.at(0)(LinkError{"late"});
    link.posts.at(0).done({});
}

} // namespace velmora
