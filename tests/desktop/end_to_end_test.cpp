#include "desktop/program_fixture.h"
#include "standin-server/standin_server.h"

namespace velmora {

using namespace standin;

namespace {

/// The program linked to a simulated site whose clock the test controls, with dunst and a tray.
class EndToEndTest : public ProgramTest {
protected:
    void pass(int seconds) {
        for (int i = 0; i < seconds; ++i)
            site.advance(now += Seconds{1});
    }
    bool reaches(Phase phase) {
        return waitUntil([&] { return site.state().phase == phase; });
    }

    SystemRandom random;
    Date now = std::chrono::time_point_cast<Date::duration>(std::chrono::system_clock::now());
    SimulatedSite site{Scenario::driveway, Seconds{300}, now, random};
    AppApi api{site, [this] { return now; }};
};

TEST_F(EndToEndTest, TrayAndNotificationCarryAMissionWithoutTheWindow) {
    Options options;
    options.port = 0;
    StandinServer server(options, api);
    ASSERT_EQ(server.listen(), "");
    linkTo(server.port());
    const VirtualDisplay display;
    Dunst dunst(display);
    TrayHost tray;
    const auto program = startOn(display, {"--hidden"});
    const auto trayShows = [&](const QString& line) {
        return waitUntil([&] { return tray.labels().contains(line); });
    };
    constexpr QRgb teal = 0xff1c8886, orange = 0xffbe6400;
    ASSERT_TRUE(trayShows(QString::fromUtf8("Velmora — Docked")));
    const int docked = tray.iconPixels(teal);
    EXPECT_GT(docked, 0) << "a shield";

    pass(3);
    ASSERT_TRUE(trayShows("Launch drone"));
    EXPECT_TRUE(waitUntil([&] { return tray.iconPixels(orange) > 0 && tray.iconPixels(teal) == 0; }));
    EXPECT_TRUE(waitUntil([&] { return dunst.shown() == 1; }));
    tray.press("Launch drone"); // the menu was not opened for this alert
    tray.open();
    tray.press("Ignore");
    ASSERT_TRUE(reaches(Phase::docked));
    EXPECT_TRUE(waitUntil([&] { return dunst.shown() == 0; }));

    pass(300);
    ASSERT_TRUE(dunst.choose("Launch drone"));
    ASSERT_TRUE(reaches(Phase::launching));
    pass(30);
    ASSERT_TRUE(trayShows(QString::fromUtf8("Velmora — Following")));
    const int airborne = tray.iconPixels(teal);
    EXPECT_TRUE(airborne > 0 && airborne != docked) << "waves instead of the shield";
    tray.press("Return home");
    ASSERT_TRUE(reaches(Phase::returning));
    pass(250);
    EXPECT_TRUE(trayShows(QString::fromUtf8("Velmora — Docked")));
    EXPECT_EQ(tray.iconPixels(teal), docked);
    tray.press("Quit Velmora");
    EXPECT_EQ(exitCodeOf(*program), 0);
    EXPECT_EQ(journal(), QStringList({"ignore tray sent", "approve notification sent", "return tray sent"}));
}

} // namespace

} // namespace velmora
