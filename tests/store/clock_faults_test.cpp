#include "store_fixture.h"

#include <cstdlib>
#include <ctime>

namespace velmora {

namespace {

constexpr double hour = 3600, night = 9 * hour;

class ClockFaultsTest : public StoreTest {
protected:
    void SetUp() override {
        setenv("TZ", "Europe/London", 1);
        tzset();
    }
    void TearDown() override {
        unsetenv("TZ");
        tzset();
    }
    void alert() {
        store().simulate(Scenario::driveway);
        pass(2);
        ASSERT_EQ(phase(), Phase::awaitingApproval);
    }
    const MissionRecord& newest() { return *store().history().front().record; }
};

} // namespace

TEST_F(ClockFaultsTest, AnAlertExpiresByTheWallClockAfterAnyJump) {
    constexpr double summerBegins = 1743296400,
                     winterBegins = 1761440400; // 2025, in the time zone of the tests
    for (const auto& [start, jump] :
         {std::pair(summerBegins, 0.05), {winterBegins, 0.05}, {0.0, 5.0}, {0.0, hour}, {0.0, night}}) {
        now = dateFromSeconds(std::max(start - 30, secondsSince1970(now)));
        alert();
        const auto missions = store().history().size();
        const Date deadline = live().approvalDeadline.value();
        while (now < deadline)
            tickAfter(jump);
        EXPECT_EQ(phase(), Phase::docked) << jump;
        EXPECT_EQ(newest().outcome, Outcome::expired);
        EXPECT_TRUE(deadline <= newest().end && newest().end <= now);
        EXPECT_EQ(store().history().size(), missions + 1);
        EXPECT_EQ(notifier.withdrawn.size(), std::ssize(notifier.posted));
    }
}

TEST_F(ClockFaultsTest, AnAlertStillEndsAfterTheClockIsSetBack) {
    alert();
    tickAfter(-hour);
    respond(Command::approve);
    EXPECT_EQ(phase(), Phase::launching) << "it can still be answered";
    store().send(Command::land, CommandSource::live);
    pass(10);
    alert();
    tickAfter(-hour);
    pass(180);
    EXPECT_EQ(phase(), Phase::docked) << "the visitor leaves in time, whatever the clock shows";
    EXPECT_EQ(newest().outcome, Outcome::expired);
}

TEST_F(ClockFaultsTest, AFlightContinuesAfterASuspendAndStalls) {
    alert();
    respond(Command::approve);
    pass(20);
    const auto missions = store().history().size();
    tickAfter(night);
    EXPECT_TRUE(airborne(phase()));
    for (int stall = 0; stall < 100 && phase() != Phase::docked; ++stall)
        tickAfter(5);
    EXPECT_EQ(newest().outcome, Outcome::visitorLeft);
    EXPECT_EQ(store().history().size(), missions + 1);
}

TEST_F(ClockFaultsTest, PollsContinueAndTheStateAgesAfterEveryClockJump) {
    linked();
    pass(0.55);
    for (const double jump : {-hour, hour, -night, night, -0.2}) {
        link.fetches.back()(FetchedState{LiveState::initial(), "1"});
        const std::size_t asked = link.fetches.size();
        tickAfter(jump);
        EXPECT_LE(*store().lastAnswerAt(), now) << jump;
        pass(3);
        EXPECT_EQ(store().freshness(), Freshness::stale) << jump;
        pass(2.6);
        EXPECT_EQ(link.fetches.size(), asked + 1) << "polls must not stop after " << jump;
    }
}

} // namespace velmora
