#include "sim/simulator.h"
#include "support/random.h"
#include "ui/look/type.h"
#include "ui/map/map_captions.h"

#include <gtest/gtest.h>

namespace velmora {

namespace {

/// The captions of the map in every twentieth of a second of a flight.
class MapCaptions : public testing::TestWithParam<QSize> {
protected:
    template <class Look>
    void flight(Scenario scenario, Look look) {
        SeededRandom random;
        Simulator simulator(LiveState::initial(), Settings{}, random);
        Date now = dateFromSeconds(1'700'000'042);
        simulator.trigger(scenario, now);
        for (int step = 0; simulator.state.phase != Phase::docked; ++step) {
            if (step == 160)
                simulator.send(Command::approve, now);
            if (step == 1600)
                simulator.send(Command::returnHome, now);
            simulator.step(0.05, now += Seconds{0.05});
            scene.state = simulator.state;
            look();
        }
    }
    QRectF glyph() const {
        QRectF circle(0, 0, 30, 30);
        circle.moveCenter(view.map(scene.state.drone.pos));
        return circle;
    }

    MapScene scene;
    const MapTransform view{GetParam(), LiveState::initial().site.size};
};

INSTANTIATE_TEST_SUITE_P(Sizes, MapCaptions,
                         testing::Values(QSize(435, 290), QSize(728, 485), QSize(1488, 992)));

TEST_P(MapCaptions, ThePadGivesWayToTheHeightWithoutFlicker) {
    for (const auto& [scenario, name] : rawValuesOf<Scenario>) {
        SCOPED_TRACE(name);
        double before = 1;
        int appearances = 0, hidden = 0;
        flight(scenario, [&] {
            const double shown = padCaptionOpacity(scene, view);
            hidden += shown == 0;
            appearances += shown > 0 && before == 0;
            before = shown;
            if (shown > 0 && airborne(scene.state.phase)) {
                const QRectF pad = padCaption(scene, view).area();
                ASSERT_FALSE(pad.intersects(heightCaption(scene, view).box()));
                ASSERT_FALSE(padCaption(scene, view).box().intersects(glyph()));
            }
        });
        EXPECT_GT(hidden, 100);
        EXPECT_LE(appearances, 3);
    }
}

TEST_P(MapCaptions, TheEndsOfAPathAreNamedInsideTheMapAndClearOfTheBuffersCaption) {
    scene.state = LiveState::initial();
    const QRectF buffer = bufferCaption(scene, view).box();
    const QRectF canvas = view.canvas().adjusted(0, -Type::mapCaption.line, 0, Type::mapCaption.line);
    for (double x = 0; x <= scene.state.site.size.x; ++x)
        for (double y = 0; y <= scene.state.site.size.y; ++y) {
            const QRectF named =
                captionBeside(view.map(P{x, y}), 8, "LAST SEEN", Qt::white, scene, view).box();
            ASSERT_FALSE(named.intersects(buffer)) << x << ' ' << y;
            ASSERT_TRUE(canvas.contains(named)) << x << ' ' << y;
        }
}

TEST_P(MapCaptions, TheVisitorsLabelStaysClearOfTheDroneAndSeldomChangesSides) {
    for (const auto& [scenario, name] : rawValuesOf<Scenario>) {
        SCOPED_TRACE(name);
        int steps = 0, overlaps = 0, changes = 0;
        scene.labelSide = LabelSide::right;
        flight(scenario, [&] {
            if (!scene.state.visitor)
                return;
            const LabelSide side = freeLabelSide(scene, view);
            changes += side != scene.labelSide;
            scene.labelSide = side;
            const QRectF label = visitorCaption(scene, view, side).box();
            const bool flying = airborne(scene.state.phase);
            ++steps;
            overlaps +=
                label.intersects(glyph()) || (flying && label.intersects(heightCaption(scene, view).box()));
        });
        EXPECT_LE(overlaps, 20) << "a second, of " << steps; // where no side is free
        EXPECT_LE(changes, 6);
    }
}

} // namespace

} // namespace velmora
