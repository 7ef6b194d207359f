#include "ui/blocks/metric.h"
#include "ui/look/tokens.h"
#include "ui/map/site_map.h"
#include "ui/screens/live/land_confirmation.h"
#include "ui/screens/live/live_card.h"
#include "ui/screens/live/live_view.h"
#include "ui/served_fixture.h"

namespace velmora {

namespace {

class LiveLayoutTest : public ServedTest {
protected:
    void SetUp() override {
        ServedTest::SetUp();
        store().setSection(Section::live);
        resize({1360, 860});
    }

    void resize(QSize size) {
        window().resize(size);
        settle();
        settle();
    }
    QRect areaOf(const QWidget& widget) { return {widget.mapTo(&window(), QPoint()), widget.size()}; }
    QRect areaOf(const QString& name) {
        const QWidget* widget = find(name);
        EXPECT_NE(widget, nullptr) << name.toStdString();
        return widget ? areaOf(*widget) : QRect();
    }
    SiteMap& shownMap() {
        for (SiteMap* map : window().findChildren<SiteMap*>())
            if (map->isVisible())
                return *map;
        throw std::logic_error("no map is visible");
    }
    LandConfirmation& landing() { return *window().findChild<LandConfirmation*>(); }
    QWidget& landingCard() { return *find("Keep flying")->parentWidget(); }
    void askToLand() {
        click("Land now");
        ASSERT_TRUE(waitUntil([&] { return shows("Keep flying"); }));
    }
    void keepFlying() {
        click("Keep flying");
        ASSERT_TRUE(waitUntil([&] { return !shows("Keep flying"); }));
    }
};

TEST_F(LiveLayoutTest, TheControlsStandAboveTheTimeline) {
    serve(mission(Phase::following));
    EXPECT_EQ(areaOf("Controls").y(), 140);
    EXPECT_EQ(areaOf("Hold position"), QRect(1032, 176, 288, 36));
    EXPECT_EQ(areaOf("Land now"), QRect(1032, 264, 288, 36));
    EXPECT_EQ(areaOf("Step 4 of 6: Following"), QRect(1032, 333, 288, 168));
    resize({1120, 720});
    const int top = areaOf("Controls").y();
    EXPECT_EQ(areaOf("Hold position").y() - top, 30);
    EXPECT_EQ(areaOf("Land now").y() - top, 118);
    EXPECT_EQ(areaOf("Step 4 of 6: Following").height(), 28);
}

TEST_F(LiveLayoutTest, AllTelemetryIsInViewInTheSmallestWindowWithAStaleBanner) {
    resize({1120, 720});
    serve(mission(Phase::following));
    EXPECT_EQ(areaOf(shownMap()), QRect(272, 140, 488, 325));
    fly(3);
    ASSERT_EQ(store().freshness(), Freshness::stale);
    clock.advance(std::chrono::seconds(1));
    for (const Metric* metric : window().findChild<LiveCard*>()->findChildren<Metric*>())
        EXPECT_LE(areaOf(*metric).bottom(), 720 - 24 - 12) << metric->accessibleName().toStdString();
    EXPECT_LE(areaOf(*window().findChild<LiveCard*>()).bottom(), 720 - 24);
}

TEST_F(LiveLayoutTest, EveryMapHasTheProportionsOfItsSiteAtOnce) {
    for (const Section section : {Section::live, Section::overview})
        for (const QSize size : {QSize(1120, 720), QSize(1360, 860), QSize(1920, 1200), QSize(2560, 1440)}) {
            store().setSection(section);
            resize(size);
            for (const P site : {P{150, 100}, P{300, 80}, P{60, 200}, P{97, 61}}) {
                LiveState state = mission(Phase::following);
                state.site.size = site;
                serve(state);
                settle();
                const QSize map = shownMap().size();
                EXPECT_LE(std::abs(map.width() - map.height() * site.x / site.y), site.x / site.y * 0.5 + 0.5)
                    << map.width() << 'x' << map.height() << " for " << site.x << " in " << size.width();
            }
        }
    store().setSection(Section::settings);
    LiveState state = mission(Phase::following);
    state.site.size = {200, 100};
    serve(state);
    store().setSection(Section::live);
    settle();
    EXPECT_NEAR(shownMap().width(), 2 * shownMap().height(), 1);
}

TEST_F(LiveLayoutTest, TheLandingCardStandsBesideTheMapInEveryWindow) {
    serve(mission(Phase::following));
    for (const QSize size : {QSize(1360, 860), QSize(1120, 720), QSize(1920, 800), QSize(2560, 1440)}) {
        resize(size);
        serve(mission(Phase::following));
        const QRect pressed = areaOf("Land now");
        askToLand();
        settle();
        const QRect card = areaOf(landingCard());
        EXPECT_EQ(card.size(), QSize(328, 232));
        EXPECT_TRUE(window().rect().contains(card)) << size.width();
        EXPECT_FALSE(card.intersects(areaOf(*window().findChild<LiveCard*>()))) << size.width();
        EXPECT_GT(areaOf("Keep flying").top(), pressed.bottom()) << size.width();
        keepFlying();
    }
    resize({1360, 860});
    askToLand();
    EXPECT_EQ(areaOf(landingCard()), QRect(1012, 140, 328, 232));
    EXPECT_EQ(areaOf("Keep flying"), QRect(1032, 312, 140, 36));
    resize({1400, 900});
    EXPECT_FALSE(areaOf(landingCard()).intersects(areaOf(*window().findChild<LiveCard*>())))
        << "it follows the window";
}

TEST_F(LiveLayoutTest, ADoubleClickOnLandNowLandsNothing) {
    serve(mission(Phase::following));
    QWidget& land = *find("Land now");
    const QPoint at = land.mapTo(&window(), land.rect().center());
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                    QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, at, window().mapToGlobal(at), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window().windowHandle(), &event);
        clock.advance(std::chrono::milliseconds(150));
    }
    EXPECT_TRUE(waitUntil([&] { return shows("Keep flying"); }));
    EXPECT_TRUE(link.posts.empty());
}

TEST_F(LiveLayoutTest, MapAndFactsStayLiveAndBrightWhileTheCardAsks) {
    LiveState state = mission(Phase::following);
    serve(state);
    askToLand();
    EXPECT_TRUE(shows("0 m up · 13 m from the pad"));
    EXPECT_FALSE(landing().covers(shownMap()));
    const auto colorAt = [&](QPoint at) { return window().grab().toImage().pixelColor(at); };
    EXPECT_EQ(colorAt({300, 760}), SB::navy) << "the dark card";
    EXPECT_NE(colorAt({300, 820}), SB::page) << "under the veil";
    state.drone.altitude = 14.6;
    serve(state);
    EXPECT_TRUE(shows("15 m up · 13 m from the pad"));
    EXPECT_TRUE(shows("Height, 15 m"));
    clickThrough("Return home");
    EXPECT_TRUE(link.posts.empty());
}

} // namespace

} // namespace velmora
