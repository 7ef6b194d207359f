#include "ui/linked_ui_fixture.h"

#include "support/time_zone.h"

namespace velmora {

namespace {

/// The overview in a window that has room for the last 30 days.
class LastDaysTest : public LinkedUiTest {
protected:
    MissionRecord visitDaysAgo(double days, bool demo = false) {
        constexpr double daySeconds = 86'400;
        MissionRecord made = record("M-1", Outcome::expired, days * daySeconds);
        made.cameraName = "Gate";
        made.demo = demo;
        return made;
    }
    void look(QSize size = {2560, 1440}) {
        window().resize(size);
        settle();
    }

    const TimeZone zone{"UTC"};
};

TEST_F(LastDaysTest, CountsTheVisitsOfThirtyDaysAndFollowsThem) {
    records({visitDaysAgo(1), visitDaysAgo(3), visitDaysAgo(29.999), visitDaysAgo(31)});
    look();
    EXPECT_TRUE(shows("3 visits, all at the gate camera."));
    EXPECT_TRUE(shows("Gate, 3 visits"));
    now += std::chrono::minutes(5);
    clock.advance(std::chrono::minutes(1));
    settle();
    EXPECT_TRUE(shows("2 visits.")) << "one has become too old";
    visit(Scenario::driveway);
    respond(Command::ignore);
    tickAfter(0.05);
    settle();
    EXPECT_TRUE(shows("3 visits, most at the gate camera."));
    EXPECT_TRUE(shows("Driveway, 1 visit"));
    store().removeRecord(store().history()[1].key);
    settle();
    EXPECT_TRUE(shows("2 visits."));
    store().setSection(Section::history);
    store().removeRecord(store().history()[0].key);
    store().setSection(Section::overview);
    settle();
    EXPECT_TRUE(shows("1 visit."));
    click("Patterns →");
    EXPECT_EQ(store().section(), Section::history);
}

TEST_F(LastDaysTest, RehearsedVisitsCountInDemoModeOnly) {
    records({visitDaysAgo(1, true), visitDaysAgo(2), visitDaysAgo(3, true)});
    look();
    EXPECT_TRUE(shows("3 visits, all at the gate camera."));
    store().applyLinkMode(true);
    serve(LiveState::initial());
    EXPECT_TRUE(shows("1 visit."));
}

TEST_F(LastDaysTest, IsShownWhereTheRailHasRoom) {
    look({1360, 860});
    EXPECT_FALSE(shows("The last 30 days"));
    look({1700, 760});
    EXPECT_FALSE(shows("The last 30 days"));
    look({1920, 1200});
    EXPECT_TRUE(shows("The last 30 days"));
    store().clearDemoHistory();
    look();
    EXPECT_TRUE(shows("No visits."));
    const QWidget* heading = find("The last 30 days");
    const QWidget* offers = find("Simulate a visitor");
    EXPECT_GT(heading->mapTo(heading->window(), QPoint()).y(), offers->mapTo(offers->window(), QPoint()).y());
}

} // namespace

} // namespace velmora
