#include "ui/manual_clock.h"
#include "ui/map/site_map.h"
#include "ui/map_fixture.h"

#include <QPaintEvent>
#include <QScreen>

#include <cmath>

namespace velmora {

namespace {

/// A visible map of a flight that counts its paint events.
class MapFrames : public MapPicture {
protected:
    class Counted : public SiteMap {
    public:
        Counted() : SiteMap(nullptr) {
            resize(300, 200);
            show();
        }
        int paints = 0;
        QRegion painted;

    protected:
        void paintEvent(QPaintEvent* event) override {
            ++paints;
            painted |= event->region();
            SiteMap::paintEvent(event);
        }
    };

    MapFrames() {
        scene.state.phase = Phase::following;
        see({90, 60}, "a");
        map.setState(&scene.state, {}, Freshness::live);
    }

    void run(int frames) { clock.advance(frames * Motion::mapFrame); }
    /// Number of paint events in the time of five frames.
    int frames() {
        run(1);
        map.paints = 0;
        run(5);
        return map.paints;
    }
    /// Number of paint events in four ticks that move the drone.
    int framesOfMovement() {
        run(1);
        map.paints = 0;
        for (int i = 0; i < 4; ++i) {
            scene.state.drone.pos.x += 0.5;
            scene.state.drone.trail.push_back(scene.state.drone.pos);
            show();
            clock.advance(std::chrono::milliseconds(50));
        }
        return map.paints;
    }
    void show() { map.setState(&scene.state, {}, Freshness::live); }
    /// What the repainted parts make up. At other scales, where the platform of the tests cannot read the
    /// screen, what the map paints from its layers.
    QImage onScreen() {
        const bool readable = map.devicePixelRatioF() == 1;
        const QPixmap picture = readable ? map.screen()->grabWindow(map.winId()) : map.grab();
        return picture.toImage().convertToFormat(QImage::Format_RGB32);
    }

    ManualClock clock;
    Counted map;
};

TEST_F(MapFrames, AFlightIsAnimatedAndADockedDroneIsNot) {
    EXPECT_EQ(frames(), 5);
    show();
    scene.state.phase = Phase::docked;
    scene.state.visitor.reset();
    show();
    EXPECT_EQ(frames(), 0);
    scene.state.windKmh = 20;
    scene.state.drone.battery = 50;
    map.paints = 0;
    show();
    run(3);
    EXPECT_EQ(map.paints, 0);
    scene.state.drone.heading += 40;
    show();
    run(3);
    EXPECT_EQ(map.paints, 1);
}

TEST_F(MapFrames, ACoveredOrHiddenMapPausesAndCatchesUp) {
    map.hide();
    EXPECT_EQ(framesOfMovement(), 0);
    map.show();
    EXPECT_EQ(frames(), 5);
    map.setCovered(true);
    EXPECT_EQ(frames(), 0);
    EXPECT_EQ(framesOfMovement(), 0);
    map.setCovered(false);
    EXPECT_EQ(frames(), 5);
    EXPECT_EQ(framesOfMovement(), 4) << "a tick is a frame, and there is no other one";
}

TEST_F(MapFrames, ATickRepaintsOnlyWhatMoved) {
    scene.state = LiveState::initial();
    scene.state.phase = Phase::following;
    scene.state.drone.trail = {{5, 5}, {8, 5}};
    see({90, 60}, "driveway");
    scene.state.visitor->trail = {{140, 95}, {143, 95}};
    show();
    const auto repaints = [&](const std::vector<QPoint>& points) {
        run(1);
        map.painted = {};
        show();
        run(1);
        EXPECT_FALSE(map.painted.isEmpty());
        return std::ranges::any_of(points, [&](QPoint at) { return map.painted.contains(at); });
    };
    const QPoint droneTrail(13, 10), visitorTrail(283, 190), corner(299, 0);
    scene.state.drone.pos.x += 1;
    EXPECT_FALSE(repaints({droneTrail, visitorTrail, corner}));
    scene.state.drone.trail.push_back({10, 5});
    EXPECT_TRUE(repaints({droneTrail}));
    EXPECT_FALSE(repaints({droneTrail}));
    scene.state.visitor->trail.push_back({144, 95});
    EXPECT_TRUE(repaints({visitorTrail}));
    EXPECT_FALSE(map.painted.contains(corner));
    scene.state.visitor->cameraId = "garden";
    EXPECT_TRUE(repaints({corner})) << "the wedges of the cameras are part of the grounds";
    EXPECT_FALSE(repaints({droneTrail, visitorTrail, corner}));
}

/// After each change, the screen must show what a map shows that is painted once.
TEST_F(MapFrames, EveryChangeReachesTheScreen) {
    scene.state = LiveState::initial();
    scene.measures.captions = true;
    scene.state.phase = Phase::following;
    Settings settings;
    Freshness freshness = Freshness::live;
    see({25, 85}, "driveway");
    const auto expectShown = [&](const char* change) {
        const auto setUp = [&](SiteMap& one) {
            if (scene.replay)
                one.setReplay(*scene.replay, scene.state, settings);
            else
                one.setState(&scene.state, settings, freshness);
        };
        SiteMap fresh(nullptr);
        fresh.setCorners(CornerColors{SB::page, SB::page});
        fresh.resize(map.size());
        setUp(map);
        run(2);
        setUp(fresh);
        EXPECT_EQ(onScreen(), fresh.grab().toImage().convertToFormat(QImage::Format_RGB32)) << change;
    };
    map.setCorners(CornerColors{SB::page, SB::page});
    expectShown("a flight");
    settings.boundaryBuffer = 20;
    expectShown("the buffer");
    scene.state.visitor->cameraId = "garden";
    expectShown("the camera that sees the visitor");
    scene.state.site.cameras[0].online = false;
    expectShown("an offline camera");
    scene.state.drone.trail = {{20, 20}, {60, 30}};
    expectShown("a trail");
    scene.state.visitor->trail = {{100, 20}, {110, 60}};
    expectShown("the visitor's trail");
    scene.state.drone.trail.clear();
    expectShown("a new flight");
    map.setCovered(true);
    scene.state.drone.pos = {30, 30};
    map.setState(&scene.state, settings, freshness);
    map.setCovered(false);
    scene.state.drone.pos = {100, 60};
    expectShown("a step right after it was uncovered");
    scene.state.visitor.reset();
    expectShown("the visitor left");
    scene.state.phase = Phase::docked;
    expectShown("landed");
    map.resize(450, 300);
    expectShown("another size");
    scene.state.drone.pos = {20, 20};
    expectShown("a step that is not animated");
    replay(0.5);
    expectShown("a replay");
    scene.replay->progress = progressAt(mission, 1);
    expectShown("the end of the replay");
    scene.replay.reset();
    freshness = Freshness::stale;
    expectShown("a stale state");
    freshness = Freshness::unknown;
    expectShown("nothing known");
    scene.state.site.size = {200, 100};
    freshness = Freshness::live;
    expectShown("another site");
}

/// Compares what is on the screen after many frames with a map that is painted once.
TEST_F(MapFrames, PartsThatWereRepaintedMakeUpTheWholeMap) {
    const CornerColors corners{SB::alert, SB::teal};
    map.setCorners(corners);
    for (int i = 0; i <= 60; ++i) {
        const P at{i * 2.5, 50 + 49 * std::sin(i / 3.0)};
        scene.state.drone.pos = at;
        scene.state.drone.trail.push_back(at);
        scene.state.visitor->pos = {150 - at.x, at.y};
        scene.state.visitor->trail.push_back(scene.state.visitor->pos);
        if (i == 60)
            scene.state.visitor.reset(); // the side of the label depends on where the visitor was before
        show();
        run(1);
    }
    SiteMap whole(nullptr);
    whole.resize(map.size());
    whole.setCorners(corners);
    whole.setState(&scene.state, {}, Freshness::live);
    const QImage painted = onScreen();
    EXPECT_EQ(painted, whole.grab().toImage().convertToFormat(QImage::Format_RGB32));
    EXPECT_COLOR(painted.pixelColor(0, 0), SB::alert);
    EXPECT_COLOR(painted.pixelColor(painted.width() - 1, painted.height() - 1), SB::teal);
}

TEST_F(MapFrames, StaleStatesAndReplaysAreNotAnimated) {
    map.setState(&scene.state, {}, Freshness::stale);
    EXPECT_EQ(frames(), 0);
    map.setState(nullptr, {}, Freshness::unknown);
    EXPECT_EQ(frames(), 0);
    EXPECT_EQ(map.accessibleName(), "Waiting for velmora");
    map.setState(&scene.state, {}, Freshness::live);
    EXPECT_EQ(frames(), 5);
    EXPECT_TRUE(map.accessibleName().startsWith("Map of your grounds. The drone is at"));
    replay();
    map.setReplay(*scene.replay, scene.state, {});
    EXPECT_EQ(frames(), 0);
    map.setReplay(*scene.replay, scene.state, {});
    run(3);
    EXPECT_EQ(map.paints, 0) << "the position is unchanged";
    scene.replay->progress = progressAt(mission, 0.2);
    map.setReplay(*scene.replay, scene.state, {});
    run(3);
    EXPECT_EQ(map.paints, 1);
}

} // namespace

} // namespace velmora
