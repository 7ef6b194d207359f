#include "ui/linked_ui_fixture.h"

#include "ui/charts/outcomes.h"
#include "ui/look/words.h"

#include <QAbstractButton>
#include <QEnterEvent>

namespace velmora {

namespace {

class OverviewTest : public LinkedUiTest {
protected:
    /// The rows of "Recent activity" that begin with this outcome.
    QList<QAbstractButton*> rows(Outcome outcome) {
        QList<QAbstractButton*> found;
        for (auto* button : window().findChildren<QAbstractButton*>())
            if (button->isVisible() &&
                button->accessibleName().startsWith(toQString(rawValue(outcome)) + ", "))
                found.append(button);
        return found;
    }
    bool offersVisits() {
        int offered = 0;
        for (const auto& [scenario, id] : rawValuesOf<Scenario>)
            offered += shows(scenarioTitle(scenario)) ? 1 : 0;
        EXPECT_TRUE(offered == 0 || offered == 3);
        EXPECT_EQ(shows("Simulate a visitor"), offered == 3);
        return offered > 0;
    }
};

TEST_F(OverviewTest, HeadlineAndLedeSummariseTheState) {
    EXPECT_TRUE(find("Your grounds are watched."));
    EXPECT_TRUE(
        shows("3 cameras are looking for people they don't recognise. The drone is on its pad and only "
              "flies when you say so."));
    EXPECT_TRUE(shows("Armed"));
    EXPECT_FALSE(shows("Arm system"));
    click("Disarm");
    EXPECT_TRUE(shows("Velmora is disarmed."));
    EXPECT_TRUE(shows("Cameras still log people they don't recognise, but the drone won't offer to launch."));
    EXPECT_TRUE(shows("Disarmed"));
    EXPECT_FALSE(shows("Disarm"));
    click("Arm system");
    EXPECT_TRUE(live().armed);
    EXPECT_TRUE(shows("Your grounds are watched."));

    visit(Scenario::driveway);
    EXPECT_TRUE(shows("Someone is on your grounds."));
    approve();
    store().setSection(Section::overview);
    fly(4);
    EXPECT_TRUE(shows("Your drone is on patrol."));
}

TEST_F(OverviewTest, TextsThatDoNotFitAreInTheTooltip) {
    window();
    QList<QWidget*> painted{rows(Outcome::visitorLeft).front(), find("Live flight")};
    for (QWidget* widget : window().findChildren<QWidget*>())
        if (widget->isVisible() && widget->accessibleName().startsWith("Wind, "))
            painted.append(widget);
    for (QWidget* widget : painted) {
        QEnterEvent enters({}, {}, {});
        QApplication::sendEvent(widget, &enters);
        EXPECT_EQ(widget->toolTip(), "") << widget->accessibleName().toStdString();
        widget->resize(50, widget->height());
        QApplication::sendEvent(widget, &enters);
        EXPECT_FALSE(widget->toolTip().isEmpty()) << widget->accessibleName().toStdString();
    }
    EXPECT_EQ(painted.front()->toolTip(), "Visitor left your grounds");
}

TEST_F(OverviewTest, ADoubleClickSwitchesOnlyOnceAndTheFocusFollows) {
    for (const auto& [clicked, other] : {std::pair("Disarm", "Arm system"), {"Arm system", "Disarm"}}) {
        click(clicked);
        const bool armed = live().armed;
        ASSERT_TRUE(shows(other)) << other;
        EXPECT_EQ(QApplication::focusWidget(), find(other));
        mouse(QEvent::MouseButtonDblClick, *find(other));
        mouse(QEvent::MouseButtonRelease, *find(other));
        EXPECT_EQ(live().armed, armed) << other;
    }
}

TEST_F(OverviewTest, TheBannerNamesThePhaseAndLeadsToTheFlight) {
    window();
    EXPECT_FALSE(shows("Open live flight →"));
    visit(Scenario::garden);
    EXPECT_TRUE(shows("Waiting for you"));
    EXPECT_EQ(store().section(), Section::overview);
    approve();
    store().setSection(Section::overview);
    settle();
    EXPECT_TRUE(shows("Taking off"));
    click("Open live flight →");
    EXPECT_EQ(store().section(), Section::live);
    store().setSection(Section::overview);
    store().send(Command::land, CommandSource::live);
    fly(60);
    ASSERT_EQ(phase(), Phase::docked);
    EXPECT_TRUE(waitUntil([&] { return !shows("Open live flight →"); }));
}

TEST_F(OverviewTest, VisitsAreOfferedInDemoModeBetweenMissions) {
    window();
    EXPECT_TRUE(offersVisits());
    EXPECT_FALSE(shows("Launch (approve)"));
    click("Visitor in the east garden");
    ASSERT_EQ(phase(), Phase::awaitingApproval);
    EXPECT_EQ(live().visitor->cameraId, "garden");
    EXPECT_FALSE(shows("Visitor in the east garden"));
    outwaitGuard();
    pressByAccessibility("Launch (approve)");
    EXPECT_EQ(phase(), Phase::launching);
    EXPECT_FALSE(offersVisits());
    EXPECT_FALSE(shows("Launch (approve)"));
}

TEST_F(OverviewTest, InLinkModeTheServerControlsVisitsAndArming) {
    store().applyLinkMode(true);
    window();
    LiveState state = LiveState::initial();
    serve(state);
    EXPECT_FALSE(offersVisits());
    EXPECT_FALSE(find("Disarm")->isEnabled());
    state.phase = Phase::awaitingApproval;
    serve(state);
    EXPECT_FALSE(offersVisits());
    outwaitGuard();
    pressByAccessibility("Launch (approve)");
    ASSERT_EQ(link.posts.size(), 1u);
    EXPECT_EQ(link.posts[0].command, Command::approve);
}

TEST_F(OverviewTest, TheAlertsCellShowsWhereAlertsGo) {
    window();
    const auto showsDestination = [&](bool mac, const std::string& topic, const QString& where) {
        Settings settings = store().settings();
        settings.notifyMac = mac;
        settings.ntfyTopic = topic;
        store().setSettings(settings);
        settle();
        return shows("Alerts, " + where + ", Unknown faces trigger an alert, Every launch needs your yes");
    };
    EXPECT_TRUE(showsDestination(true, "", "This computer"));
    EXPECT_TRUE(showsDestination(true, "velmora-home", "This computer + phone"));
    EXPECT_TRUE(showsDestination(false, "velmora-home", "Phone"));
    EXPECT_TRUE(showsDestination(false, "", "This window only"));
}

TEST_F(OverviewTest, TheStripShowsWindCamerasAndDrone) {
    Settings settings = store().settings();
    settings.maxWindKmh = 30.9;
    store().setSettings(settings);
    store().applyLinkMode(true);
    window();
    LiveState state = LiveState::initial();
    state.windKmh = 30.9;
    serve(state);
    EXPECT_TRUE(shows("Wind, 31 km/h, Fine to fly (limit 30 km/h)")) << "the limit itself is still allowed";
    EXPECT_TRUE(shows("Cameras, 3 of 3 online"));
    EXPECT_TRUE(shows("Drone, On its pad, 92% battery · signal 96%"));

    state.windKmh = 31;
    state.site.cameras[1].online = false;
    state.drone.pos = {20, 20};
    state.drone.battery = 49.5;
    state.drone.signal = 0.125;
    serve(state);
    EXPECT_TRUE(shows("Wind, 31 km/h, Too windy to fly"));
    EXPECT_TRUE(shows("Cameras, 2 of 3 online, " + toQString(state.site.cameras[1].name) + " offline"));
    EXPECT_TRUE(shows("Drone, Docked, 50% battery · signal 13%"));
    state.site.cameras[0].online = false;
    serve(state);
    ASSERT_TRUE(shows("Cameras, 1 of 3 online, 2 cameras offline"));
    EXPECT_EQ(find("Cameras, 1 of 3 online, 2 cameras offline")->toolTip(),
              toQString(state.site.cameras[0].name) + ", " + toQString(state.site.cameras[1].name));
    state.phase = Phase::returning;
    serve(state);
    EXPECT_TRUE(shows("Drone, Coming home, 50% battery · signal 13%"));
}

TEST_F(OverviewTest, TheNewestFiveVisitsAreListedAndAClickOpensOne) {
    std::vector<MissionRecord> history;
    for (int i = 0; i < 7; ++i)
        history.push_back(record("M-" + std::to_string(i), rawValuesOf<Outcome>[std::size_t(i)].first, i));
    records(history);
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(rows(history[std::size_t(i)].outcome).size(), i < 5 ? 1 : 0) << i;
    QTest::mouseClick(rows(Outcome::lowBattery).at(0), Qt::LeftButton);
    settle();
    EXPECT_EQ(store().section(), Section::history);
    EXPECT_EQ(store().selectedRecord(), store().history()[2].key);
    EXPECT_TRUE(shows("Came home on low battery"));

    store().setSection(Section::overview);
    settle();
    click("All activity →");
    EXPECT_EQ(store().section(), Section::history);
}

TEST_F(OverviewTest, OpensTheClickedOneOfTwoVisitsWithTheSameId) {
    records({record("M-1", Outcome::visitorLeft, 10), record("M-1", Outcome::lowBattery, 20)});
    QTest::mouseClick(rows(Outcome::lowBattery).at(0), Qt::LeftButton);
    settle();
    EXPECT_TRUE(shows("Came home on low battery"));
}

TEST_F(OverviewTest, AnEmptyHistoryShowsAHint) {
    const QString nothing = "Nothing yet. When a camera spots someone you don't know, it appears here.";
    window();
    EXPECT_FALSE(shows(nothing));
    EXPECT_EQ(rows(Outcome::visitorLeft).size(), 1);
    store().clearDemoHistory();
    settle();
    EXPECT_TRUE(shows(nothing));
    EXPECT_EQ(rows(Outcome::visitorLeft).size(), 0);
}

TEST_F(OverviewTest, TheFirstFrameWaitsForNoHistory) {
    const std::vector<HistoryEntry> history = store().history();
    EXPECT_TRUE(flush());
    AppStore late({[this] { return now; }, random, QDir(directory()), notifier, loginItem, link});
    MainWindow fresh(late);
    fresh.show();
    fresh.grab();
    const auto shown = [&] {
        return std::ranges::count_if(fresh.findChildren<QAbstractButton*>(), [&](const auto* button) {
            return button->isVisible() &&
                   button->accessibleName().startsWith(outcomeText(history[0].record->outcome) + ", ");
        });
    };
    EXPECT_FALSE(late.historyIsLoaded());
    EXPECT_EQ(shown(), 0);
    EXPECT_EQ(find(fresh, "Nothing yet. When a camera spots someone you don't know, it appears here."),
              nullptr);
    EXPECT_TRUE(waitUntil([&] { return shown() > 0; })) << "a thread reads it";
    EXPECT_EQ(late.history().size(), history.size());
}

} // namespace

} // namespace velmora
