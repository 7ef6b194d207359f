#include "store/store_fixture.h"

namespace velmora {

namespace {

/// A server that falls silent, and cameras that go offline.
class OutageTest : public StoreTest {
protected:
    OutageTest() { server.site.cameras.at(0).name = "Driveway"; }

    void SetUp() override {
        linked();
        serveFor(31);
        notifier.posted.clear();
    }
    void serveFor(double seconds) {
        for (double passed = 0; passed < seconds; passed += 0.5) {
            tickAfter(0.5);
            for (const auto& done : std::exchange(link.fetches, {}))
                done(FetchedState{server, "2.1"});
        }
    }
    void stayOffline(double seconds) {
        for (double passed = 0; passed < seconds; passed += 0.5) {
            tickAfter(0.5);
            for (const auto& done : std::exchange(link.fetches, {}))
                done(LinkError{"refused"});
        }
    }
    CameraInfo& camera(std::size_t index) { return server.site.cameras.at(index); }
    QStringList titles() const {
        QStringList titles;
        for (const Notification& notification : notifier.posted)
            titles.append(notification.title);
        return titles;
    }

    LiveState server = LiveState::initial();
    const QString unreachable = QStringLiteral("Velmora can't reach your server");
};

TEST_F(OutageTest, ReportsASilentServerOnceAfterAMinuteAndWithdrawsThatWhenItIsBack) {
    stayOffline(59);
    EXPECT_TRUE(titles().isEmpty());
    stayOffline(600);
    EXPECT_EQ(titles(), QStringList{unreachable});
    EXPECT_EQ(notifier.posted.back().alert, std::nullopt);
    EXPECT_TRUE(store().outage());
    EXPECT_TRUE(notifier.withdrawn.isEmpty());
    serveFor(1);
    EXPECT_EQ(notifier.withdrawn, QStringList{notifier.posted.back().identifier});
    EXPECT_FALSE(store().outage());
    stayOffline(65);
    EXPECT_EQ(titles(), QStringList({unreachable, unreachable})) << "a second outage";
}

TEST_F(OutageTest, ReportsAnOfflineCameraByNameAfterFiveMinutes) {
    camera(2).online = false;
    serveFor(299);
    EXPECT_TRUE(titles().isEmpty());
    serveFor(2);
    EXPECT_EQ(titles(), QStringList{"East garden is offline"});
    camera(0).online = false;
    serveFor(302);
    EXPECT_EQ(titles().back(), "2 cameras are offline");
    EXPECT_TRUE(notifier.posted.back().body.contains("Driveway, East garden"));
    EXPECT_EQ(notifier.posted[0].identifier, notifier.posted[1].identifier) << "it replaces the first";
    camera(0).online = true;
    serveFor(1);
    EXPECT_EQ(titles().mid(2), QStringList{"East garden is offline"});
    notifier.shown = false;
    stayOffline(61);
    serveFor(10);
    EXPECT_EQ(titles().mid(3), QStringList{unreachable}) << "the camera was reported before";
    EXPECT_EQ(outageTitle(*store().outage()), "East garden is offline");
}

TEST_F(OutageTest, ReportsNothingWhileDisarmedSwitchedOffOrInDemoMode) {
    Settings settings = store().settings();
    settings.notifyMac = false;
    store().setSettings(settings);
    stayOffline(90);
    EXPECT_TRUE(store().outage()) << "the tray shows it";
    EXPECT_TRUE(titles().isEmpty());
    server.armed = false;
    camera(1).online = false;
    settings.notifyMac = true;
    serveFor(400);
    store().setSettings(settings);
    stayOffline(90);
    EXPECT_FALSE(store().outage());
    store().applyLinkMode(false);
    pass(90);
    EXPECT_TRUE(titles().isEmpty());
}

TEST_F(OutageTest, EndsWithLinkMode) {
    stayOffline(62);
    bool shown = store().outage().has_value();
    EXPECT_TRUE(shown);
    QObject::connect(&store(), &AppStore::outageChanged, [&] { shown = store().outage().has_value(); });
    store().applyLinkMode(false);
    EXPECT_FALSE(shown) << "the tray shows what it read last";
}

TEST_F(OutageTest, SwitchingNotificationsOffWithdrawsThemAtOnce) {
    Settings settings = store().settings();
    stayOffline(61);
    settings.notifyMac = false;
    store().setSettings(settings);
    EXPECT_EQ(notifier.withdrawn, QStringList{notifier.posted.back().identifier});
}

TEST_F(OutageTest, ReportsNothingNewInTheFirstHalfMinuteAfterAStartOrASuspend) {
    tickAfter(8 * 3600); // suspended
    stayOffline(29);
    EXPECT_TRUE(titles().isEmpty()) << "the network may still be coming up";
    stayOffline(3);
    EXPECT_EQ(titles(), QStringList{unreachable});
    tickAfter(8 * 3600);
    stayOffline(60);
    EXPECT_EQ(titles().size(), 1) << "the same outage";
    restart();
    stayOffline(62);
    EXPECT_EQ(titles().size(), 2) << "a server that never answered, a minute after the start";
}

/// Both happen with servers that are not careful.
TEST_F(OutageTest, CamerasWithEmptyOrEqualIdsHideNothing) {
    camera(0).id = camera(1).id = "";
    camera(1).online = false;
    serveFor(301);
    EXPECT_EQ(titles().size(), 1);
    stayOffline(61);
    EXPECT_EQ(titles().back(), unreachable);
}

TEST_F(OutageTest, ACameraReportedBeforeASuspendDoesNotShortenTheGraceTime) {
    camera(1).online = false;
    serveFor(301);
    tickAfter(8 * 3600);
    stayOffline(20);
    EXPECT_EQ(titles().size(), 1);
    tickAfter(-3600); // the clock is set back
    serveFor(40);
    EXPECT_EQ(titles().size(), 1);
    EXPECT_TRUE(store().outage());
}

TEST_F(OutageTest, AnAlertAndAnOutageDoNotWithdrawEachOther) {
    camera(1).online = false;
    serveFor(301);
    server.phase = Phase::awaitingApproval;
    server.missionId = "M-1";
    server.visitor = Visitor{{50, 50}, "Unknown person", 0.9, "driveway", true, {}};
    serveFor(1);
    EXPECT_EQ(titles(), QStringList({"Front lawn is offline", "Someone you don't know is at the driveway"}));
    server.phase = Phase::docked;
    serveFor(1);
    EXPECT_EQ(notifier.withdrawn, QStringList{"M-1"});
}

} // namespace

} // namespace velmora
