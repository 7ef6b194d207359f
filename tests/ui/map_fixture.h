#pragma once

#include "ui/look/tokens.h"
#include "ui/map/map_painting.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace velmora {

inline constexpr QSize canvas(600, 400); // 4 pixels a metre

inline bool isLike(const QColor& color, const QColor& expected, int tolerance = 6) {
    return std::abs(color.red() - expected.red()) <= tolerance &&
           std::abs(color.green() - expected.green()) <= tolerance &&
           std::abs(color.blue() - expected.blue()) <= tolerance;
}

#define EXPECT_COLOR(color, expected)                                                                        \
    EXPECT_TRUE(isLike(color, expected))                                                                     \
        << (color).name().toStdString() << " instead of " << (expected).name().toStdString()

inline QColor onNavy(const QColor& color, double opacity) {
    return SB::mixed(SB::navy, color, opacity);
}

/// The demo site without its picture, cameras and labels.
class MapPicture : public testing::Test {
protected:
    MapPicture() {
        scene.state = LiveState::initial();
        scene.state.site.planImage.clear();
        scene.state.site.cameras.clear();
        scene.measures.captions = false;
        mission.end = mission.start + Seconds{1};
        mission.visitorPath = {{20, 50.125}, {40, 50.125}};
        mission.dronePath = {{74, 70}, {60, 55}};
    }

    QImage draw(double t = 0) const {
        QImage image(canvas, QImage::Format_ARGB32_Premultiplied);
        image.fill(SB::navy);
        QImage paths = image;
        paths.fill(Qt::transparent);
        QPainter onPaths(&paths);
        drawPaths(onPaths, scene, canvas);
        QPainter painter(&image);
        drawGrounds(painter, scene, canvas);
        painter.drawImage(0, 0, paths);
        drawMovers(painter, scene, canvas, t);
        return image;
    }
    QColor at(double x, double y, double t = 0) const {
        return draw(t).pixelColor(static_cast<int>(x), static_cast<int>(y));
    }
    void addCamera(const std::string& id, P pos, double heading, bool online = true) {
        scene.state.site.cameras.push_back({id, id, pos, heading, "", online});
    }
    void see(P pos, const std::string& camera) {
        scene.state.visitor = Visitor{pos, "Unknown person", 0.9, camera, true, {}};
    }
    /// Shows the mission, which lasts one second, `seconds` after its start.
    void replay(double seconds = 1) {
        scene.replay = Replay{std::make_shared<MissionRecord>(mission), progressAt(mission, seconds)};
    }

    MapScene scene;
    MissionRecord mission;
};

} // namespace velmora
