#include "ui/blocks/sb_button.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/live/flight_controls.h"
#include "ui/screens/live/live_rail.h"
#include "ui/screens/live/live_view.h"
#include "ui/screens/log_list.h"
#include "ui/served_fixture.h"

namespace velmora {

namespace {

const QString landCard = QStringLiteral("Land the drone where it is now?");

class LiveViewTest : public ServedTest {
protected:
    void SetUp() override {
        ServedTest::SetUp();
        store().setSection(Section::live);
        window();
    }

    /// Texts of the visible control buttons, from top to bottom.
    QStringList controls() {
        QStringList offered;
        for (const SBButton* button : window().findChild<FlightControls*>()->findChildren<SBButton*>())
            if (button->isVisible())
                offered += button->text();
        return offered;
    }
    bool explains(const QString& words) {
        return find(*window().findChild<FlightControls*>(), words) != nullptr;
    }

    /// Whether the metric contains pixels of this colour.
    bool isPainted(const QString& figure, const QColor& color) {
        QWidget* metric = find(figure);
        EXPECT_NE(metric, nullptr) << figure.toStdString();
        const QImage picture = metric ? metric->grab().toImage() : QImage();
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y) == color)
                    return true;
        return false;
    }
    void expectShown(const QStringList& names) {
        for (const QString& name : names)
            EXPECT_TRUE(shows(name)) << name.toStdString();
    }
    void askToLand() {
        click("Land now");
        ASSERT_TRUE(waitUntil([&] { return shows("Keep flying"); }));
    }
};

TEST_F(LiveViewTest, HeadlineAndTimelineFollowThePhase) {
    const struct {
        Phase phase;
        QString headline, step;
    } looks[] = {
        {Phase::docked, "The drone is on its pad", "No mission under way"},
        {Phase::awaitingApproval, "Holding for your decision", "Step 1 of 6: Spotted"},
        {Phase::launching, "Taking off", "Step 2 of 6: Approved"},
        {Phase::enRoute, "On its way to the visitor", "Step 3 of 6: On its way"},
        {Phase::following, "Following at 5 m", "Step 4 of 6: Following"},
        {Phase::holding, "Holding position", "Step 4 of 6: Following"},
        {Phase::returning, "Coming home", "Step 5 of 6: Coming home"},
        {Phase::landing, "Landing where it is", "Step 6 of 6: Landed"},
    };
    for (const auto& [phase, headline, step] : looks) {
        serve(mission(phase));
        expectShown({headline, step});
    }
    LiveState state = mission(Phase::landing);
    state.drone.pos = state.site.pad;
    serve(state);
    expectShown({"Landing on its pad"});
}

TEST_F(LiveViewTest, FinishedStepsAreFilledAndTheCurrentOneIsHollow) {
    serve(mission(Phase::enRoute));
    const QImage picture = find("Step 3 of 6: On its way")->grab().toImage();
    const auto marker = [&](int step, int x) { return picture.pixelColor(x, 14 + 28 * step); };
    for (const int step : {0, 1, 2})
        EXPECT_EQ(marker(step, 2), SB::teal) << step;
    EXPECT_NE(marker(3, 2), SB::teal);
    EXPECT_EQ(marker(2, 7), SB::page);
}

TEST_F(LiveViewTest, ShowsTheControlsOfThePhase) {
    const QString nothing = "Nothing to control — the drone launches only after you approve an alert.";
    const QString decide = "Approve or ignore the alert to continue.";
    EXPECT_EQ(controls(), QStringList{"Simulate a visitor"});
    EXPECT_TRUE(explains(nothing));
    visit(Scenario::garden);
    EXPECT_EQ(controls(), QStringList{"Simulate a visitor"});
    EXPECT_TRUE(explains(decide));

    for (const Phase phase :
         {Phase::launching, Phase::enRoute, Phase::following, Phase::returning, Phase::landing}) {
        serve(mission(phase));
        EXPECT_EQ(controls(), (QStringList{"Hold position", "Return home", "Land now"})) << rawValue(phase);
        EXPECT_FALSE(explains(nothing) || explains(decide));
    }
    serve(mission(Phase::holding));
    EXPECT_EQ(controls(), (QStringList{"Resume following", "Return home", "Land now"}));
    serve(mission(Phase::awaitingApproval));
    EXPECT_EQ(controls(), QStringList());
    EXPECT_TRUE(explains(decide));
    serve(mission(Phase::docked));
    EXPECT_EQ(controls(), QStringList());
    EXPECT_TRUE(explains(nothing));
}

TEST_F(LiveViewTest, EachControlSendsItsCommand) {
    serve(mission(Phase::following));
    click("Hold position");
    EXPECT_EQ(lastPosted(), Command::hold);
    click("Return home");
    EXPECT_EQ(lastPosted(), Command::returnHome);
    serve(mission(Phase::holding));
    click("Resume following");
    EXPECT_EQ(lastPosted(), Command::resume);
    EXPECT_EQ(link.posts.size(), 3U);
}

TEST_F(LiveViewTest, TheControlsSteerTheDemo) {
    click("Simulate a visitor");
    ASSERT_EQ(live().visitor->cameraId, "driveway");
    approve();
    fly(10);
    click("Hold position");
    EXPECT_EQ(phase(), Phase::holding);
    click("Resume following");
    EXPECT_EQ(phase(), Phase::enRoute);
}

TEST_F(LiveViewTest, LandingIsSentOnlyAfterConfirmation) {
    serve(mission(Phase::following));
    askToLand();
    clickThrough("Return home");
    press(Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(store().section(), Section::live);
    press(Qt::Key_Escape);
    ASSERT_TRUE(waitUntil([&] { return !shows(landCard); }));
    askToLand();
    EXPECT_EQ(QApplication::focusWidget(), find("Keep flying"));
    press(Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return !shows(landCard); }));
    askToLand();
    serve(mission(Phase::landing));
    EXPECT_TRUE(shows("Keep flying"));
    serve(mission(Phase::docked));
    ASSERT_TRUE(waitUntil([&] { return !shows(landCard); })); // the drone has landed
    EXPECT_TRUE(link.posts.empty());

    serve(mission(Phase::following));
    askToLand();
    QTest::mouseClick(find(*find(landCard), "Land now"), Qt::LeftButton);
    EXPECT_EQ(lastPosted(), Command::land);
    EXPECT_EQ(link.posts.size(), 1U);
    EXPECT_TRUE(waitUntil([&] { return !shows(landCard); }));
}

TEST_F(LiveViewTest, FiguresAreRoundedHalvesAwayFromZero) {
    LiveState state = mission(Phase::following);
    state.drone.altitude = 14.5;
    state.drone.speed = 3.25;
    state.drone.pos = {74, 83.2};
    state.visitor->pos = {74, 90.7};
    state.drone.battery = 62.5;
    state.windKmh = 8.5;
    state.drone.signal = 0.845;
    serve(state);
    expectShown({"Height, 15 m", "Speed, 3.2 m/s", "To visitor, 8 m", "From pad, 13 m", "Battery, 63 %",
                 "Wind, 9 km/h", "Signal, 85 %"});
    state.visitor.reset();
    state.missionStart.reset();
    state.drone.speed = 0.96;
    serve(state);
    expectShown({"To visitor, —", "Flight time, —", "Speed, 1.0 m/s"});
}

TEST_F(LiveViewTest, FlightTimeCountsInMinutesAndHours) {
    const std::pair<double, QString> times[] = {{0.9, "0:00"},     {88.9, "1:28"},    {3599.9, "59:59"},
                                                {3600, "1:00:00"}, {3723, "1:02:03"}, {-30, "0:00"}};
    for (const auto& [seconds, shown] : times) {
        LiveState state = mission(Phase::following);
        serve(state);
        state.missionStart = now + Seconds{0.44 - seconds}; // serve() answers 0.45 s later
        serve(state);
        EXPECT_TRUE(shows("Flight time, " + shown)) << seconds;
    }
}

TEST_F(LiveViewTest, BatteryAndWindStandOnAPillAtTheirLimits) {
    Settings settings = store().settings();
    settings.returnBattery = 30;
    settings.maxWindKmh = 25;
    store().setSettings(settings);
    LiveState state = mission(Phase::following);
    const auto hasPill = [&](const QString& figure) { // above the value
        const QWidget& metric = *find(figure);
        const QImage row = metric.parentWidget()->grab().toImage();
        return row.pixelColor(metric.pos() + QPoint(-4, 40)) == SB::caution;
    };
    state.drone.battery = 30.01;
    state.windKmh = 25;
    serve(state);
    EXPECT_FALSE(hasPill("Battery, 30 %"));
    EXPECT_TRUE(isPainted("Battery, 30 %", SB::dTitle));
    EXPECT_FALSE(hasPill("Wind, 25 km/h"));
    state.drone.battery = 30;
    state.windKmh = 25.01;
    serve(state);
    EXPECT_TRUE(hasPill("Battery, 30 %") && hasPill("Wind, 25 km/h"));
    EXPECT_TRUE(isPainted("Battery, 30 %", SB::page));
    fly(3);
    EXPECT_TRUE(hasPill("Battery, 30 %")) << "also while it may be out of date";
    serve(state);
    settings = store().settings(); // now in link mode
    settings.maxWindKmh = 26;
    store().setSettings(settings);
    settle();
    EXPECT_FALSE(hasPill("Wind, 25 km/h"));
}

TEST_F(LiveViewTest, TheVisitorIsDescribed) {
    LiveState state = mission(Phase::following);
    serve(state);
    LiveRail& rail = *window().findChild<LiveRail*>();
    const auto says = [&](const QString& words) { return find(rail, words) != nullptr; };
    EXPECT_TRUE(says("Unknown person") && says("Front lawn camera"));
    EXPECT_TRUE(says("87% sure it's no one you know ·") && says("inside your boundary"));
    state.visitor = Visitor{{150, 50}, "", 0.875, "attic", false, {}};
    serve(state);
    EXPECT_TRUE(says("Unknown person") && says("a camera"));
    EXPECT_TRUE(says("88% sure it's no one you know ·") && says("outside your boundary"));
    EXPECT_FALSE(says("inside your boundary"));
    state.visitor.reset();
    serve(state);
    EXPECT_FALSE(says("Unknown person"));
}

TEST_F(LiveViewTest, TheFlightLogIsNewestFirst) {
    const QString empty = "Nothing logged yet. Notices from the next flight appear here.";
    LiveRail& rail = *window().findChild<LiveRail*>();
    EXPECT_TRUE(find(rail, empty));
    LiveState state = mission(Phase::following);
    QStringList expected;
    for (int i = 3; i > 0; --i) {
        const Date at = now + Seconds{i};
        state.notices.push_back({Uuid::fromRandomBits(0, static_cast<std::uint64_t>(i)), at, "Notice", {}});
        expected += timeOfDay(at) + " Notice";
    }
    serve(state);
    const auto log = [&] {
        std::map<int, QString> lines;
        for (const QWidget* line : rail.findChild<LogList*>()->findChildren<QWidget*>())
            if (line->isVisible() && !line->accessibleName().isEmpty())
                lines[line->mapTo(&rail, QPoint()).y()] = line->accessibleName();
        QStringList texts;
        for (const auto& [y, text] : lines)
            texts += text;
        return texts;
    };
    EXPECT_TRUE(waitUntil([&] { return log() == expected; })) << log().join('\n').toStdString();
    EXPECT_FALSE(find(rail, empty));
    state.notices.erase(state.notices.begin());
    serve(state);
    EXPECT_EQ(log(), expected.mid(1));
    serve(mission(Phase::following));
    EXPECT_TRUE(find(rail, empty));
}

} // namespace

} // namespace velmora
