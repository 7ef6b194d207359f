#include "ui/blocks/scroll_area.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/map/site_map.h"
#include "ui/screens/overview/activity_list.h"
#include "ui/screens/overview/mission_banner.h"
#include "ui/screens/overview/overview_parts.h"
#include "ui/screens/overview/overview_view.h"
#include "ui/screens/overview/status_strip.h"
#include "ui/served_fixture.h"

#include <set>

namespace velmora {

namespace {

const QString launchButton = QStringLiteral("Launch (approve)"),
              openFlight = QStringLiteral("Open live flight →"),
              staysInside = QStringLiteral(" It stays inside your boundary and comes home on its own.");

/// The overview during missions of a server.
class OverviewMissionTest : public ServedTest {
protected:
    void SetUp() override {
        ServedTest::SetUp();
        std::vector<MissionRecord> history;
        for (int i = 0; i < 7; ++i)
            history.push_back(record("M-" + std::to_string(i), Outcome::visitorLeft, i));
        records(history);
    }
    void serve(const LiveState& state) {
        ServedTest::serve(state);
        store().setSection(Section::overview); // a launch switches to Live flight
        clock.advance(std::chrono::milliseconds(400));
    }
    void goStale() {
        pass(10);
        clock.advance(std::chrono::milliseconds(1200));
    }
    void resize(int width, int height) {
        window().resize(width, height);
        clock.advance(std::chrono::milliseconds(400));
    }
    template <class Widget>
    Widget& part() {
        return *window().findChild<OverviewView*>()->findChild<Widget*>();
    }
    /// The geometry of a part in the window.
    QRect areaOf(QWidget& widget) { return {widget.mapTo(&window(), QPoint()), widget.size()}; }
    QList<QAbstractButton*> rows() {
        QList<QAbstractButton*> shown;
        for (auto* button : part<ActivityList>().findChildren<QAbstractButton*>())
            if (button->isVisible() && button->text() != "All activity →")
                shown.append(button);
        return shown;
    }
    void expectShown(const QStringList& names) {
        for (const QString& name : names)
            EXPECT_TRUE(shows(name)) << name.toStdString();
    }
    void expectHidden(const QStringList& names) {
        for (const QString& name : names)
            EXPECT_FALSE(shows(name)) << name.toStdString();
    }
};

TEST_F(OverviewMissionTest, LedeAndBannerMeasureFromTheVisitorOrFromThePad) {
    window();
    const struct {
        Phase phase;
        QString lede, facts;
    } looks[] = {
        {Phase::launching, "Taking off, 13 m out.", "13 m from the pad, 92% battery, 1:28"},
        {Phase::enRoute, "On its way, 5 m.", "5 m from the visitor, 92% battery, 1:28"},
        {Phase::following, "Following, 5 m.", "5 m from the visitor, 92% battery, 1:28"},
        {Phase::holding, "Holding position, 13 m out.", "13 m from the pad, 92% battery, 1:28"},
        {Phase::returning, "Coming home, 13 m out.", "13 m from the pad, 92% battery, 1:28"},
        {Phase::landing, "Landing, 13 m out.", "13 m from the pad, 92% battery, 1:28"},
    };
    for (const auto& [phase, lede, facts] : looks) {
        LiveState state = mission(phase);
        state.missionStart = now - Seconds{88};
        serve(state);
        expectShown({lede + staysInside, facts});
    }
    LiveState state = mission(Phase::following);
    state.visitor.reset();
    state.missionStart.reset();
    serve(state);
    expectShown({"Following, 13 m out." + staysInside, "13 m from the pad, 92% battery"});
    state.phase = Phase::launching;
    state.drone.pos = state.site.pad;
    serve(state);
    expectShown({"Taking off, over its pad." + staysInside});
    serve(mission(Phase::awaitingApproval));
    expectShown({"18 m from the pad, 30 s to answer"});
    fly(1.5);
    EXPECT_TRUE(waitUntil([&] { return shows("18 m from the pad, 29 s to answer"); }));
}

TEST_F(OverviewMissionTest, TheLedeCountsTheCameras) {
    window();
    const QString docked = " The drone is on its pad and only flies when you say so.";
    LiveState state = mission(Phase::docked);
    serve(state);
    expectShown({"3 cameras are looking for people they don't recognise." + docked});
    state.site.cameras.resize(1);
    serve(state);
    expectShown({"1 camera is looking for people it doesn't recognise." + docked});
    state.site.cameras.clear();
    serve(state);
    expectShown({"No camera is looking for people yet." + docked});
}

TEST_F(OverviewMissionTest, FactsFallAwayFromTheEnd) {
    MissionFacts facts(nullptr);
    facts.setFacts({{"16 m from the visitor"}, {"27% battery", true}, {"1:28"}});
    const auto contains = [&](const QColor& color) {
        const QImage picture = facts.grab().toImage();
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixelColor(x, 14) == color)
                return true;
        return false;
    };
    std::set<std::size_t> seen;
    for (int width = 400; width > 0; width -= 10) {
        facts.resize(width, 48);
        seen.insert(facts.fitting());
        EXPECT_EQ(contains(SB::caution), facts.fitting() >= 2) << width;
    }
    EXPECT_EQ(seen, (std::set<std::size_t>{0, 1, 2, 3}));
    EXPECT_EQ(facts.accessibleName(), "16 m from the visitor, 27% battery, 1:28");
}

TEST_F(OverviewMissionTest, NowShowsVisitorDroneAndLaunch) {
    window();
    serve(mission(Phase::docked));
    expectHidden({"Now", launchButton});
    serve(mission(Phase::awaitingApproval));
    expectShown({"Now", "Unknown person", "Front lawn camera", "87% sure it's no one you know",
                 "Inside your boundary", launchButton});
    expectHidden({"To visitor, 5 m"});

    LiveState state = mission(Phase::following);
    state.visitor->inside = false;
    state.drone.battery = 30;
    serve(state);
    expectShown({"Now", timeOfDay(*store().lastAnswerAt()), "Outside your boundary", "To visitor, 5 m",
                 "Battery, 30 %, under your return level of 30"});
    expectHidden({launchButton, "From pad, 13 m"});
    state.visitor.reset();
    serve(state);
    expectShown({"Now", "From pad, 13 m"});
    expectHidden({"Unknown person", "To visitor, 5 m"});
    serve(mission(Phase::docked));
    expectHidden({"Now", "From pad, 13 m"});
}

TEST_F(OverviewMissionTest, AStaleStateIsLastKnown) {
    window();
    const LiveState state = mission(Phase::following);
    serve(state);
    const QList<QRect> before{areaOf(part<SiteMap>()), areaOf(part<OverviewBanner>()), areaOf(*rows()[0])};
    goStale();
    const QList<QRect> after{areaOf(part<SiteMap>()), areaOf(part<OverviewBanner>()), areaOf(*rows()[0])};
    EXPECT_EQ(before, after);
    EXPECT_EQ(part<OverviewBanner>().height(), 48);
    expectShown({"Last known", "10 s ago", "Following — picture 10 s old. Commands may not arrive.",
                 "Connection settings", openFlight});
    expectHidden({"Now"});

    QWidget* first = find("Connection settings");
    first->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find(openFlight));
    ServedTest::serve(state);
    EXPECT_EQ(QApplication::focusWidget(), find(openFlight)) << "the focus stays on the banner";
    press(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find("All activity →"));
}

TEST_F(OverviewMissionTest, ABannerThatClosesLeavesTheFocusOnNoControl) {
    window();
    serve(mission(Phase::docked));
    goStale();
    expectShown({"Picture 10 s old. Commands may not arrive."});
    expectHidden({openFlight});
    find("Connection settings")->setFocus(Qt::TabFocusReason);
    serve(mission(Phase::docked));
    EXPECT_EQ(qobject_cast<QAbstractButton*>(QApplication::focusWidget()), nullptr);
}

TEST_F(OverviewMissionTest, LaunchWaitsForTheGuardAndForItsEffect) {
    window();
    LiveState state = mission(Phase::awaitingApproval);
    serve(mission(Phase::docked));
    ServedTest::serve(state);
    pressByAccessibility(launchButton);
    EXPECT_TRUE(link.posts.empty()) << "the guard is closed";
    outwaitGuard();
    pressByAccessibility(launchButton);
    ASSERT_EQ(link.posts.size(), 1U);
    EXPECT_EQ(lastPosted(), Command::approve);
    ASSERT_TRUE(shows(launchButton)) << "it stays in place while the answer is pending";
    EXPECT_EQ(find(launchButton)->accessibleDescription(), sentText());
    fly(1);
    clock.advance(std::chrono::seconds(1));
    pressByAccessibility(launchButton);
    EXPECT_EQ(link.posts.size(), 1U);

    fly(1);
    ASSERT_EQ(store().freshness(), Freshness::live);
    fly(6);
    ASSERT_EQ(store().freshness(), Freshness::stale);
    EXPECT_EQ(find(launchButton)->accessibleDescription(), QString());
    EXPECT_FALSE(find(launchButton)->isEnabled());
}

TEST_F(OverviewMissionTest, AsManyVisitsAreListedAsFitBesideTheMap) {
    window();
    const auto count = [&] { return rows().size(); };
    EXPECT_EQ(count(), 5);
    resize(1120, 720);
    EXPECT_EQ(count(), 4) << "the demo visits are below";
    serve(mission(Phase::docked));
    EXPECT_EQ(count(), 5);
    serve(mission(Phase::following));
    EXPECT_EQ(count(), 3);
    serve(mission(Phase::awaitingApproval));
    EXPECT_EQ(count(), 2);
    resize(1360, 860);
    EXPECT_EQ(count(), 5);
}

TEST_F(OverviewMissionTest, ASmallWindowShowsEverythingInEveryState) {
    resize(1120, 720);
    const auto expectInView = [&](const char* when, int mapHeight) {
        EXPECT_EQ(part<ScrollArea>().verticalScrollBar()->maximum(), 0) << when;
        const QRect map = areaOf(part<SiteMap>()), strip = areaOf(part<StatusStrip>());
        EXPECT_EQ(strip.bottom() + 1, 720 - 24) << when;
        EXPECT_EQ(strip.right(), areaOf(part<ArmSwitch>()).right()) << when;
        EXPECT_EQ(strip.right(), areaOf(*rows().back()).right()) << when;
        EXPECT_LE(areaOf(*rows().back()).bottom(), map.bottom() + 20) << when;
        EXPECT_TRUE(std::abs(map.height() - mapHeight) <= 1 || mapHeight == 0)
            << when << ": " << map.height();
        EXPECT_EQ(map.height(), part<SiteMap>().heightForWidth(map.width())) << when;
    };
    expectInView("demo", 0);
    serve(mission(Phase::docked));
    expectInView("docked", 0);
    serve(mission(Phase::awaitingApproval));
    expectInView("waiting", 275);
    goStale();
    expectInView("waiting and stale", 275);
    LiveState state = mission(Phase::following);
    serve(state);
    expectInView("flying", 300);
    EXPECT_EQ(part<SiteMap>().width(), 450);
    state.drone.battery = 20;
    serve(state);
    expectInView("low battery", 300);
    goStale();
    expectInView("stale", 300);
    state.visitor.reset();
    serve(state);
    expectInView("without a visitor", 0);
}

} // namespace

} // namespace velmora
