#include "ui/charts/heat_map.h"
#include "ui/charts/visit_matrix.h"
#include "ui/look/art.h"
#include "ui/map/site_map.h"
#include "ui/screens/cameras/camera_card.h"
#include "ui/screens/live/live_card.h"
#include "ui/screens/live/live_rail.h"
#include "ui/screens/overview/overview_parts.h"
#include "ui/screens/overview/overview_rail.h"
#include "ui/screens/overview/status_strip.h"
#include "ui/screens/patterns/pattern_facts.h"
#include "ui/screens/settings/limits_sketch.h"
#include "ui/served_fixture.h"

#include <QTemporaryDir>

namespace velmora {

namespace {

constexpr QSize sizes[] = {{1120, 720}, {1279, 759},  {1360, 860},  {1360, 720},  {1699, 1000}, {1700, 1000},
                           {1920, 720}, {1920, 1200}, {2560, 1080}, {2560, 1440}, {3840, 2160}};

/// How the screens use windows of different sizes.
class PageLayoutTest : public ServedTest {
protected:
    void show(Section section, QSize size) {
        store().setSection(section);
        window().resize(size);
        settle();
        settle();
    }
    QRect areaOf(const QWidget& widget) { return {widget.mapTo(&window(), QPoint()), widget.size()}; }
    template <class Widget>
    QRect areaOf() {
        return areaOf(*shown<Widget>());
    }
    template <class Widget>
    Widget* shown() {
        for (auto* widget : window().findChildren<Widget*>())
            if (widget->isVisible())
                return widget;
        throw std::logic_error("no such widget is visible");
    }
    /// The content's right edge in a window of this width.
    static int rightEdge(int window) {
        return std::min(window - 40, 272 + (window < 1700 ? 1320 : 1880)) - 1;
    }
    void expectWholeMap(QSize size) {
        const QRect map = areaOf<SiteMap>();
        EXPECT_LE(std::abs(map.width() - map.height() * 1.5), 0.75) << map.width() << 'x' << map.height();
        EXPECT_EQ(map.left(), 272);
        EXPECT_LE(map.bottom(), size.height()) << size.width();
    }
};

TEST_F(PageLayoutTest, OverviewAndLiveFlightFillEveryWindow) {
    for (const Phase phase : {Phase::docked, Phase::following})
        for (const QSize size : sizes) {
            SCOPED_TRACE(testing::Message() << size.width() << 'x' << size.height());
            serve(mission(phase));
            show(Section::overview, size);
            expectWholeMap(size);
            for (const QRect& area : {areaOf<ArmSwitch>(), areaOf<OverviewRail>(), areaOf<StatusStrip>()})
                EXPECT_EQ(area.right(), rightEdge(size.width()));
            EXPECT_EQ(areaOf<OverviewRail>().left(), areaOf<SiteMap>().right() + 1 + 32);
            EXPECT_GE(areaOf<OverviewRail>().width(), size.width() < 1700 ? 320 : 360);
            EXPECT_EQ(areaOf<StatusStrip>(),
                      QRect(272, size.height() - 24 - 93, rightEdge(size.width()) + 1 - 272, 93));
            EXPECT_LT(areaOf<SiteMap>().bottom(), areaOf<StatusStrip>().top());

            show(Section::live, size);
            expectWholeMap(size);
            EXPECT_EQ(areaOf<LiveRail>().right(), rightEdge(size.width()));
            EXPECT_LE(areaOf<LiveRail>().bottom(), size.height() - 24);
            EXPECT_LE(areaOf<LiveCard>().bottom(), size.height() - 24);
        }
}

TEST_F(PageLayoutTest, AWideWindowShowsALargeMapAndTenVisits) {
    std::vector<MissionRecord> history;
    for (int i = 0; i < 12; ++i)
        history.push_back(record("M-" + std::to_string(i), Outcome::ignored, i * 100));
    records(history);
    const auto visits = [&] {
        int found = 0;
        for (const auto* button : window().findChildren<QAbstractButton*>())
            found += button->isVisible() && button->accessibleName().startsWith("You ignored the alert, ");
        return found;
    };
    serve(mission(Phase::docked));
    show(Section::overview, {2560, 1440});
    EXPECT_EQ(areaOf<SiteMap>(), QRect(272, 228, 1488, 992));
    EXPECT_EQ(visits(), 10);
    show(Section::overview, {1360, 860});
    EXPECT_EQ(visits(), 5);
    show(Section::live, {2560, 1440});
    EXPECT_EQ(areaOf<SiteMap>().size(), QSize(1488, 992));
}

TEST_F(PageLayoutTest, PatternsUseEveryWindow) {
    std::vector<MissionRecord> history;
    for (int i = 0; i < 12; ++i) {
        history.push_back(record("M-" + std::to_string(i), Outcome::ignored, i < 8 ? 600 : i * 86'400));
        history.back().cameraName = "Driveway";
    }
    records(history);
    serve(mission(Phase::docked));
    show(Section::history, sizes[0]);
    click("Patterns");
    for (const QSize size : sizes) {
        SCOPED_TRACE(testing::Message() << size.width() << 'x' << size.height());
        show(Section::history, size);
        const QRect map = areaOf<HeatMap>(), matrix = areaOf<VisitMatrix>(), facts = areaOf<PatternFacts>();
        const int right = std::min(size.width() - 40, 272 + 1880) - 1;
        EXPECT_LE(std::abs(map.width() - map.height() * 1.5), 1) << map.width() << 'x' << map.height();
        EXPECT_EQ(map.left(), size.width() < 1280 ? 584 : 640);
        EXPECT_GE(map.height(), size.width() < 1280 ? 330 : 352);
        EXPECT_EQ(matrix.left(), map.left());
        EXPECT_LE(matrix.right(), right);
        EXPECT_EQ(facts.right(), right);
        EXPECT_TRUE(facts.left() > map.right() || facts.top() > map.bottom());
        EXPECT_TRUE(size.height() < 860 || matrix.bottom() <= size.height() - 24) << "without scrolling";
    }
    show(Section::history, {1360, 860});
    EXPECT_EQ(areaOf<HeatMap>(), QRect(640, 128, 528, 352)) << "below a sentence of one line";
    EXPECT_EQ(areaOf<VisitMatrix>().size(), QSize(680, 201));
    EXPECT_EQ(areaOf<PatternFacts>().left(), 1196);
    show(Section::history, {2560, 1440});
    EXPECT_EQ(areaOf<VisitMatrix>().width(), 56 + 24 * 40);
}

TEST_F(PageLayoutTest, ThreeCamerasFillTheRow) {
    serve(mission(Phase::docked));
    for (const QSize size : {QSize(1360, 860), QSize(1920, 1200), QSize(2560, 1440)}) {
        show(Section::cameras, size);
        int right = 0;
        for (const CameraCard* card : window().findChildren<CameraCard*>()) {
            EXPECT_EQ(areaOf(*card).top(), areaOf<CameraCard>().top());
            right = std::max(right, areaOf(*card).right());
        }
        EXPECT_NEAR(right, rightEdge(size.width()), 1) << size.width();
    }
}

TEST_F(PageLayoutTest, TheSketchStandsBesideTheFirstLimitWhereThereIsRoom) {
    for (const QSize size : sizes) {
        show(Section::settings, size);
        const auto* sketch = window().findChild<LimitsSketch*>();
        EXPECT_EQ(sketch->isVisible(), size.width() >= 1360) << size.width();
    }
    show(Section::settings, {1360, 860});
    EXPECT_EQ(areaOf<LimitsSketch>().topLeft(), QPoint(1170, 312));
    const auto isLevel = [&] {
        return areaOf<LimitsSketch>().top() == areaOf(*find("Flight height")->parentWidget()).top();
    };
    click("velmora on my network");
    EXPECT_TRUE(waitUntil([&] { return shows("Host"); }));
    clock.advance(std::chrono::seconds(1));
    settle();
    EXPECT_GT(areaOf<LimitsSketch>().top(), 312);
    EXPECT_TRUE(isLevel());
}

/// The picture has a red line at the top of the chimneys and a blue one at the foot of the walls.
TEST_F(PageLayoutTest, TheWelcomeShowsTheWholeHouse) {
    const QTemporaryDir art;
    QImage house(680, 225, QImage::Format_RGB32);
    house.fill(Qt::darkGreen);
    QPainter painter(&house);
    painter.fillRect(0, 40, 680, 5, Qt::red);
    painter.fillRect(0, 130, 680, 8, Qt::blue);
    painter.end();
    house.save(art.filePath("welcome-hero.png"));
    Art::setDirectory(QDir(art.path()));
    store().setShowWelcome(true);
    for (const QSize size : sizes) {
        show(Section::overview, size);
        const QImage shot = window().grab().toImage();
        bool red = false, blue = false;
        for (int y = 37; y < shot.height(); ++y) {
            const QColor color = shot.pixelColor(shot.width() / 2 + 100, y);
            red |= color.red() > 180 && color.green() < 80 && color.blue() < 80;
            blue |= color.blue() > 180 && color.red() < 150 && color.green() < 150;
        }
        EXPECT_TRUE(red && blue) << size.width() << 'x' << size.height() << ' ' << red << blue;
    }
    Art::setDirectory(QDir());
}

} // namespace

} // namespace velmora
