#include "model/follow_point.h"
#include "ui/look/art.h"
#include "ui/look/words.h"
#include "ui/map/map_description.h"
#include "ui/map_fixture.h"

namespace velmora {

namespace {

TEST_F(MapPicture, ThePlanFitsTheCanvasAndIsCentred) {
    const MapTransform wide({300, 300}, {100, 50});
    EXPECT_DOUBLE_EQ(wide.scale(), 3);
    EXPECT_EQ(wide.plan(), QRectF(0, 75, 300, 150));
    EXPECT_EQ(wide.map(P{100, 50}), QPointF(300, 225));
    const MapTransform high({300, 300}, {50, 100});
    EXPECT_EQ(high.plan(), QRectF(75, 0, 150, 300));
    EXPECT_EQ(high.map(Bounds{10, 20, 40, 90}), QRectF(105, 60, 90, 210));
}

TEST_F(MapPicture, ThePictureOfTheGroundsLiesBelowAVeil) {
    const auto averageOf = [](const QImage& image) { // of the upper right, which has no lines
        return image.copy(430, 40, 120, 80).scaled(1, 1, {}, Qt::SmoothTransformation).pixelColor(0, 0);
    };
    scene.state.site.planImage = LiveState::initial().site.planImage;
    const QImage plan =
        Art::find(toQString(scene.state.site.planImage)).scaled(canvas, {}, Qt::SmoothTransformation);
    EXPECT_COLOR(averageOf(draw()), SB::mixed(averageOf(plan), SB::navy, 0.18));
}

TEST_F(MapPicture, TheBoundaryIsDashedInPixelsOverItsBufferBand) {
    scene.settings.boundaryBuffer = 5;
    const QImage image = draw();
    for (const int x : {31, 33, 42, 45}) // dashes of 6 and gaps of 5 from the corner at 29.6, 26.4
        EXPECT_COLOR(image.pixelColor(x, 26), onNavy(SB::dTeal, 0.9)) << x;
    for (const int x : {37, 39, 48})
        EXPECT_LT(image.pixelColor(x, 26).green(), 90) << x;
    EXPECT_COLOR(image.pixelColor(200, 36), onNavy(SB::lilac, 0.16));
    EXPECT_COLOR(image.pixelColor(200, 60), SB::navy);
    EXPECT_COLOR(image.pixelColor(200, 15), SB::navy);
}

TEST_F(MapPicture, OnlyTheCameraThatSeesTheVisitorIsBrighter) {
    addCamera("a", {50, 40}, 0);
    addCamera("b", {100, 60}, 90);
    const double lit = 1 - 40 / 136.0; // 40 pixels from the camera, of a range of 34 m
    const auto expectWedges = [&](double a, double b) {
        EXPECT_COLOR(at(240, 160), onNavy(SB::softBlue, a * lit));
        EXPECT_COLOR(at(400, 280), onNavy(SB::softBlue, b * lit));
    };
    expectWedges(0.16, 0.16);
    see({130, 20}, "a");
    expectWedges(0.3, 0.16);
    see({130, 20}, "b");
    expectWedges(0.16, 0.3);
    EXPECT_COLOR(at(400, 200), SB::navy);       // behind a camera that looks down
    EXPECT_COLOR(at(228, 188), SB::navy);       // 45 degrees off its axis
    EXPECT_COLOR(at(200 + 138, 160), SB::navy); // out of range
    EXPECT_GT(at(228, 160 + 15).blue(), 60);    // 28 degrees off its axis, towards +y
    EXPECT_GT(at(228, 160 - 15).blue(), 60);
}

TEST_F(MapPicture, AnOfflineCameraHasAnAlertRingWithACross) {
    addCamera("on", {50, 40}, 0);
    addCamera("off", {100, 40}, 0, false);
    EXPECT_COLOR(at(200, 160), SB::navy);
    EXPECT_COLOR(at(195, 160), SB::softBlue);
    EXPECT_COLOR(at(395, 160), SB::alert);
    EXPECT_GT(at(400, 160).red(), 200) << "the middle of a cross";
    EXPECT_COLOR(at(400, 157), SB::navy);
    EXPECT_COLOR(at(440, 160), onNavy(SB::softBlue, 0.05 * (1 - 40 / 136.0)));
}

TEST_F(MapPicture, ATrailOfOnePointDrawsNothing) {
    see({130, 20}, "a");
    const QImage none = draw();
    scene.state.drone.trail = {{40, 50}};
    scene.state.visitor->trail = {{20, 30.125}};
    EXPECT_EQ(draw(), none);
    scene.state.visitor->trail.push_back({60, 30.125});
    EXPECT_COLOR(at(160, 120), onNavy(SB::lilac, 0.55));
    scene.state.drone.trail.push_back({40, 80});
    const QImage both = draw();
    int dashes = 0;
    for (int y = 210; y < 290; ++y)
        dashes += both.pixelColor(159, y).green() > 90;
    EXPECT_GT(dashes, 30); // round caps lengthen each of the ten
    EXPECT_LT(dashes, 75);
}

TEST_F(MapPicture, ALongTrailHasNoSeamsBetweenItsSegments) {
    see({130, 20}, "a");
    scene.state.visitor->trail = {{5, 30.125}};
    for (int metres = 6; metres < 120; ++metres)
        scene.state.visitor->trail.push_back({double(metres), 30.125});
    const QImage line = draw();
    for (int x = 80; x < 440; ++x)
        ASSERT_TRUE(isLike(line.pixelColor(x, 120), onNavy(SB::lilac, 0.55))) << x;
}

TEST_F(MapPicture, AReplayShowsItsPathsInsteadOfTheLiveOnes) {
    replay();
    scene.state.phase = Phase::following;
    const QImage quiet = draw();
    scene.state.drone.pos = {110, 40};
    scene.state.drone.trail = {{90, 20}, {110, 40}};
    see({130, 30}, "a");
    scene.state.visitor->trail = {{130, 20}, {130, 30}};
    EXPECT_EQ(draw(0.4), quiet);
    EXPECT_COLOR(at(120, 200), onNavy(SB::lilac, 0.85));
    for (const double end : {80.0, 160.0})
        EXPECT_COLOR(at(end, 198), SB::lilac) << end;
}

TEST_F(MapPicture, AVisitorWhoLeftIsLabelledLastSeenUntilTheReplayEnds) {
    scene.measures.captions = true;
    const auto caption = [&](Outcome outcome, double seconds) { // at the visitor's last point
        mission.outcome = outcome;
        replay(seconds);
        return draw().copy(168, 190, 80, 20);
    };
    const QImage lastSeen = caption(Outcome::expired, 1);
    EXPECT_NE(caption(Outcome::visitorLeft, 1), lastSeen);
    EXPECT_EQ(caption(Outcome::visitorLeft, 0.9), lastSeen);
    EXPECT_EQ(caption(Outcome::expired, 0.9), lastSeen);
}

TEST_F(MapPicture, LabelsOffLeavesTheShapesAndNoText) {
    scene.state.phase = Phase::following;
    scene.state.drone.pos = {74, 40};
    scene.state.drone.altitude = 15;
    addCamera("a", {50, 40}, 180);
    see({110, 40}, "a");
    const QImage shapes = draw();
    scene.state.visitor->label = "Someone else";
    scene.state.site.cameras[0].name = "Another name";
    scene.state.drone.altitude = 9;
    EXPECT_EQ(draw(), shapes);
    EXPECT_COLOR(shapes.pixelColor(440, 160), SB::lilac);
    EXPECT_COLOR(shapes.pixelColor(296, 160), SB::dTitle);
    EXPECT_GT(shapes.pixelColor(static_cast<int>(74 * 4 + 2.6 * 4), 282).green(), 120); // the pad's circle
    scene.measures.captions = true;
    const QImage labelled = draw();
    for (const QRect& label : {QRect(37, 33, 90, 11), QRect(450, 154, 80, 12), QRect(160, 140, 80, 11),
                               QRect(282, 176, 28, 11), QRect(282, 298, 28, 11), QRect(470, 344, 90, 11)})
        EXPECT_NE(labelled.copy(label), shapes.copy(label)) << label.x() << ' ' << label.y();
}

TEST_F(MapPicture, CaptionsAndPathsHaveADarkEdge) {
    scene.state.site.boundary = {{-50, -50}, {200, -50}, {200, 150}, {-50, 150}};
    see({110, 60}, "a");
    scene.state.visitor->trail = {{20, 30.275}, {60, 30.275}}; // fills whole rows of pixels
    const auto drawn = [&] {
        QImage image(canvas, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QImage paths(canvas, QImage::Format_ARGB32_Premultiplied);
        paths.fill(Qt::transparent);
        QPainter onPaths(&paths);
        drawPaths(onPaths, scene, canvas);
        QPainter painter(&image);
        painter.drawImage(0, 0, paths);
        drawMovers(painter, scene, canvas, 0);
        return image;
    };
    const QColor edge = SB::mixed(Qt::white, SB::navy, 0.55);
    EXPECT_COLOR(drawn().pixelColor(160, 122), edge);
    EXPECT_COLOR(drawn().pixelColor(160, 121), SB::mixed(edge, SB::lilac, 0.55));
    EXPECT_COLOR(drawn().pixelColor(160, 124), QColor(Qt::white));
    const auto darkest = [](const QImage& image) {
        int least = 255;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                least = std::min(least, image.pixelColor(x, y).green());
        return least;
    };
    const QRect label(452, 232, 90, 16);
    EXPECT_EQ(darkest(drawn().copy(label)), 255);
    scene.measures.captions = true;
    EXPECT_NEAR(darkest(drawn().copy(label)), edge.green(), 8);
}

TEST_F(MapPicture, TheBufferIsTruncatedAndTheHeightIsRounded) {
    scene.measures.captions = true;
    const auto buffer = [&](double metres) {
        scene.settings.boundaryBuffer = metres;
        return draw().copy(460, 343, 102, 11);
    };
    scene.state.site.boundary = {{10, 10}, {142.5, 10}, {142.5, 90.5}, {10, 90.5}};
    EXPECT_EQ(buffer(5.9), buffer(5));
    EXPECT_NE(buffer(6), buffer(5));
    scene.state.phase = Phase::following;
    const auto height = [&](double metres) {
        scene.state.drone.altitude = metres;
        return draw();
    };
    EXPECT_EQ(height(14.5), height(15));
    EXPECT_EQ(height(15.2), height(15));
    EXPECT_NE(height(14.4), height(15));
}

TEST_F(MapPicture, TheInsetShowsWhereTheDroneWouldHold) {
    see({110, 60.125}, "a");
    const auto ring = [&] {
        const P hold = followPoint(scene.state.drone.pos, {110, 60.125}, scene.state.site, scene.settings).at;
        return at(hold.x * 4 + 5, hold.y * 4); // on the right of a circle 10 across
    };
    const auto outline = [&](double radius) { return at(74 * 4 + radius, 70.7 * 4).green() > 50; };
    EXPECT_COLOR(ring(), SB::navy);
    EXPECT_TRUE(outline(15));
    scene.measures = insetMap;
    EXPECT_GT(ring().green(), 150);
    EXPECT_TRUE(outline(6.9) && !outline(15));
    scene.state.visitor.reset();
    const QImage empty = draw();
    scene.measures.holdRadius = 0;
    EXPECT_EQ(draw(), empty) << "nobody is there";
}

TEST_F(MapPicture, RotorsTurnOnlyInFlightAndTheNosePointsForward) {
    const QImage parked = draw();
    EXPECT_EQ(draw(0.05), parked);
    scene.state.phase = Phase::enRoute;
    EXPECT_NE(draw(0.05), draw(0));
    scene.state.drone.pos = {75, 30};
    for (const int quarter : {0, 1, 2, 3}) {
        scene.state.drone.heading = 90 * quarter;
        const QImage around = draw().copy(290, 110, 20, 20).transformed(QTransform().rotate(-90 * quarter));
        const auto teal = [&](int x) { // near the axis of the heading
            const QColor above = around.pixelColor(x, 9), below = around.pixelColor(x, 10);
            return std::max(above.green() - above.red(), below.green() - below.red()) > 50;
        };
        EXPECT_TRUE(teal(15) && !teal(5)) << quarter;
    }
}

TEST_F(MapPicture, ThePulseGrowsAndFadesEvery16Tenths) {
    see({75.125, 30.125}, "a");
    EXPECT_COLOR(at(313, 120, 0.8), onNavy(SB::lilac, 0.4));
    EXPECT_COLOR(at(313, 120, 0), SB::navy);
    EXPECT_EQ(draw(1.0), draw(2.6));
}

TEST_F(MapPicture, MovingPartsStayInsideTheAreaThatEachFrameRepaints) {
    scene.measures.captions = true;
    scene.state.phase = Phase::following;
    scene.state.drone.pos = {40, 30};
    see({90, 60}, "a");
    const QRect before = liveArea(scene, canvas).toAlignedRect();
    const QImage first = draw(0);
    scene.state.drone.pos = {42, 33};
    scene.state.drone.altitude = 9;
    see({95, 63}, "a");
    scene.state.visitor->label = "A visitor with a long name";
    const QImage second = draw(0.7);
    const QRect area = before | liveArea(scene, canvas).toAlignedRect();
    int outside = 0;
    for (int y = 0; y < canvas.height(); ++y)
        for (int x = 0; x < canvas.width(); ++x)
            outside += first.pixel(x, y) != second.pixel(x, y) && !area.contains(x, y);
    EXPECT_EQ(outside, 0);
}

TEST_F(MapPicture, TheDescriptionLocatesDroneAndVisitor) {
    EXPECT_EQ(mapDescription(scene),
              "Map of your grounds. The drone is on its pad. Nobody is being watched.");
    scene.state.phase = Phase::following;
    scene.state.drone.pos = {74, 20.7};
    scene.state.drone.altitude = 14.5;
    see({74, 12.6}, "a");
    EXPECT_EQ(
        mapDescription(scene),
        "Map of your grounds. The drone is at 15 m height, 50 m from its pad and 14 m from the boundary. "
        "Unknown person is 8 m from the drone, 6 m inside the boundary.");
    see({74, 4.7}, "a");
    EXPECT_TRUE(
        mapDescription(scene).endsWith("Unknown person is 16 m from the drone, outside the boundary."));
    mission.maxDistanceFromPad = 20.5;
    replay();
    EXPECT_EQ(mapDescription(scene),
              "Replay of the visitor's path and of the drone's, at most 21 m from its pad.");
    replay(0);
    EXPECT_EQ(mapDescription(scene), "Replay of the visitor's path; the drone stayed on its pad.");
    mission.visitorPath.clear();
    replay();
    EXPECT_EQ(mapDescription(scene), "Replay: nobody was tracked.");
}

} // namespace

} // namespace velmora
