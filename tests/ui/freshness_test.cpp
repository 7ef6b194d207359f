#include "ui/linked_ui_fixture.h"

#include "ui/look/words.h"
#include "ui/screens/stale_banner.h"

#include <QLineEdit>

namespace velmora {

namespace {

const QString warning = QStringLiteral("Commands may not arrive"), nothingYet = "No picture received yet. ";

class FreshnessTest : public LinkedUiTest {
protected:
    void SetUp() override {
        LinkedUiTest::SetUp();
        store().applyLinkMode(true);
    }
    Freshness freshness() { return store().freshness(); }
    QString oldPicture(const QString& age) {
        if (store().section() == Section::overview)
            return "Picture " + age + " old. " + warning + '.';
        return "This picture is " + age + " old, received " + timeOfDay(*store().lastAnswerAt()) + ". " +
               warning + " until the link is back.";
    }
    /// Waits until the banner has closed.
    bool bannerCloses() {
        return waitUntil([&] { return !shows("Connection settings"); });
    }
};

TEST_F(FreshnessTest, ShowsNoSimulatedStateBeforeTheFirstAnswer) {
    store().applyLinkMode(false);
    window();
    visit(Scenario::driveway);
    ASSERT_TRUE(waitUntil([&] { return shows("Launch drone"); }));
    store().applyLinkMode(true);
    ASSERT_TRUE(waitUntil([&] { return !shows("Launch drone"); }));
    EXPECT_EQ(freshness(), Freshness::unknown);
    for (const char* known : {"Waiting for velmora.", "No picture received yet.", "Not known yet", "Drone, —",
                              "Cameras, —", "Wind, —", "No picture yet, battery —", "Waiting for velmora"})
        EXPECT_TRUE(shows(known)) << known;
    for (const char* simulated : {"Launch (approve)", "Open live flight →", "Armed", "Waiting for you"})
        EXPECT_TRUE(waitUntil([&] { return !shows(simulated); })) << simulated;
    EXPECT_TRUE(shows("Connecting…"));
    EXPECT_FALSE(shows(nothingYet + warning + '.')) << "the first request is pending";
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(link.posts.empty());

    store().setSection(Section::live);
    settle();
    for (const char* metric :
         {"Height", "Speed", "To visitor", "From pad", "Battery", "Wind", "Flight time", "Signal"})
        EXPECT_TRUE(shows(QString(metric) + ", —")) << metric;
    EXPECT_TRUE(shows("No mission under way"));
    EXPECT_TRUE(shows("Nothing logged yet. Notices from the next flight appear here."));
    EXPECT_FALSE(shows("Driveway camera"));
}

TEST_F(FreshnessTest, TheFirstGoodAnswerShowsTheSite) {
    window();
    refuse();
    EXPECT_EQ(freshness(), Freshness::unknown) << "a refusal contains no state";
    EXPECT_TRUE(shows("Can't reach velmora — The connection was refused"));
    EXPECT_TRUE(shows(nothingYet + warning + '.'));
    LiveState state = LiveState::initial();
    state.armed = false;
    serve(state);
    EXPECT_EQ(freshness(), Freshness::live);
    EXPECT_TRUE(shows("Velmora is disarmed."));
    EXPECT_TRUE(shows("Cameras, 3 of 3 online"));
    EXPECT_TRUE(bannerCloses());
}

TEST_F(FreshnessTest, TheStateIsStaleAfterTwoAndAHalfSecondsOfSilence) {
    window();
    serve(LiveState::initial());
    fly(2.45);
    EXPECT_EQ(freshness(), Freshness::live);
    EXPECT_TRUE(bannerCloses());
    fly(0.1);
    EXPECT_EQ(freshness(), Freshness::stale);
    EXPECT_TRUE(shows(oldPicture("2 s")));
    EXPECT_TRUE(shows("Your grounds are watched.")) << "the last state stays on screen";
}

TEST_F(FreshnessTest, TheStateIsStaleAfterTwoSecondsOfRefusals) {
    window();
    serve(LiveState::initial());
    refuse();
    fly(1.4);
    EXPECT_EQ(freshness(), Freshness::live) << "one refusal is no outage";
    refuse();
    fly(0.15);
    EXPECT_EQ(freshness(), Freshness::stale);
    store().setSection(Section::live);
    settle();
    EXPECT_TRUE(shows("Can't reach velmora — The connection was refused"));
    EXPECT_TRUE(shows(oldPicture("2 s")));
    const QString trying =
        " Last received at " + timeOfDay(*store().lastAnswerAt()) + ". Velmora tries again twice a second.";
    EXPECT_TRUE(std::ranges::any_of(window().findChildren<StaleBanner*>(), [&](const QWidget* banner) {
        return banner->isVisible() && banner->accessibleDescription() == oldPicture("2 s") + trying;
    }));
    click("Connection settings");
    EXPECT_EQ(store().section(), Section::settings);
}

TEST_F(FreshnessTest, TheBannerCountsTheAgeUntilAGoodAnswerClearsIt) {
    window();
    serve(LiveState::initial());
    fly(3);
    ASSERT_TRUE(shows(oldPicture("2 s")) || shows(oldPicture("3 s")));
    const Date heard = *store().lastAnswerAt();
    const QString counted = oldPicture("119 s"), minutes = oldPicture("2 min"), hours = oldPicture("2 h");
    now = heard + Seconds{119.5};
    EXPECT_TRUE(waitUntil([&] { return shows(counted); }));
    now = heard + Seconds{179};
    EXPECT_TRUE(waitUntil([&] { return shows(minutes); }));
    now = heard + Seconds{7300};
    EXPECT_TRUE(waitUntil([&] { return shows(hours); }));
    serve(LiveState::initial());
    EXPECT_EQ(freshness(), Freshness::live);
    EXPECT_TRUE(bannerCloses());
    EXPECT_EQ(*store().lastAnswerAt(), now);
}

TEST_F(FreshnessTest, ChangingTheServerDiscardsTheState) {
    window();
    LiveState first = LiveState::initial();
    serve(first);
    tickAfter(0.5);
    store().setSection(Section::settings);
    settle();
    QTest::keyClicks(find<QLineEdit>("Host"), "2");
    EXPECT_EQ(freshness(), Freshness::unknown);
    first.armed = false;
    serve(first);
    EXPECT_EQ(freshness(), Freshness::unknown) << "this reply is from the previous server";
    serve(first);
    EXPECT_EQ(freshness(), Freshness::live);
    Settings settings = store().settings();
    settings.flightHeight = 20;
    store().setSettings(settings);
    EXPECT_EQ(freshness(), Freshness::live);
    ++settings.port;
    store().setSettings(settings);
    EXPECT_EQ(freshness(), Freshness::unknown);
}

TEST_F(FreshnessTest, DemoModeIsLiveAtOnce) {
    window();
    serve(LiveState::initial());
    fly(5);
    ASSERT_EQ(freshness(), Freshness::stale);
    store().applyLinkMode(false);
    EXPECT_EQ(freshness(), Freshness::live);
    EXPECT_TRUE(bannerCloses());
    store().applyLinkMode(true);
    EXPECT_EQ(freshness(), Freshness::unknown) << "the state from before demo mode is discarded";
}

} // namespace

} // namespace velmora
