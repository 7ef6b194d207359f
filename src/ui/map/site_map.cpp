#include "ui/map/site_map.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/map/map_description.h"
#include "ui/map/map_painting.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double dimmedOpacity = 0.55;
constexpr double secondsBetweenDescriptions = 1;

QString waitingText() {
    return SiteMap::tr("Waiting for velmora");
}

std::string watchingCamera(const LiveState& state) {
    return state.visitor ? state.visitor->cameraId : std::string();
}

bool sameGrounds(const MapScene& scene, const LiveState& state, const Settings& settings) {
    return scene.state.site == state.site && scene.settings.boundaryBuffer == settings.boundaryBuffer &&
           watchingCamera(scene.state) == watchingCamera(state);
}

bool samePaths(const MapScene& a, const MapScene& b) {
    return a.replay == b.replay && a.state.drone.trail == b.state.drone.trail &&
           a.state.visitor.has_value() == b.state.visitor.has_value() &&
           (!a.state.visitor || a.state.visitor->trail == b.state.visitor->trail);
}

/// Compares what drawMovers() paints, apart from its animation.
bool sameMovers(const MapScene& a, const MapScene& b) {
    const DroneState &from = a.state.drone, &to = b.state.drone;
    return a.state.phase == b.state.phase && from.pos == to.pos && from.heading == to.heading &&
           from.altitude == to.altitude && a.state.visitor == b.state.visitor;
}

} // namespace

SiteMap::SiteMap(QWidget* parent) : QWidget(parent) {
    scene_.state = LiveState::initial();
    declareRole(this, QAccessible::Graphic);
    connect(&frames_, &UiTimer::timeout, this, &SiteMap::showFrame);
    describe();
}

void SiteMap::setState(const LiveState* known, const Settings& settings, Freshness freshness) {
    if (known)
        setScene({*known, settings, std::nullopt, scene_.showLabels});
    setFreshness(freshness);
}

/// Copies the state only if its grounds differ.
void SiteMap::setReplay(Replay replay, const LiveState& state, const Settings& settings) {
    if (!scene_.replay || !sameGrounds(scene_, state, settings)) {
        setScene({state, settings, std::move(replay), scene_.showLabels});
        return;
    }
    if (scene_.replay == replay)
        return;
    scene_.replay = std::move(replay);
    pathsStale_ = true;
    if (!covered_)
        update();
    describe();
}

void SiteMap::setShowLabels(bool show) {
    MapScene scene = scene_;
    scene.showLabels = show;
    setScene(std::move(scene));
}

void SiteMap::setFreshness(Freshness freshness) {
    if (freshness == freshness_)
        return;
    freshness_ = freshness;
    updateAnimation();
    describe();
    update();
}

void SiteMap::setCovered(bool covered) {
    if (covered == covered_)
        return;
    covered_ = covered;
    updateAnimation();
    if (!covered)
        update();
}

/// Repaints grounds and paths if they changed. Drone and visitor are repainted by the next frame, or here if
/// no frames run.
void SiteMap::setScene(MapScene scene) {
    const bool grounds =
        !sameGrounds(scene_, scene.state, scene.settings) || scene.showLabels != scene_.showLabels;
    const bool paths = !samePaths(scene, scene_);
    const bool movers = !sameMovers(scene, scene_);
    const bool newSize = scene.state.site.size != scene_.state.site.size;
    const bool newSituation = scene.state.phase != scene_.state.phase ||
                              scene.state.visitor.has_value() != scene_.state.visitor.has_value() ||
                              scene.replay != scene_.replay;
    scene_ = std::move(scene);
    groundsStale_ |= grounds;
    pathsStale_ |= paths;
    if (newSize)
        updateGeometry();
    updateAnimation();
    if (!covered_ && (grounds || paths))
        update();
    else if (!covered_ && movers && !frames_.isActive())
        showFrame();
    if (newSituation || Motion::seconds() - describedAt_ >= secondsBetweenDescriptions)
        describe();
}

int SiteMap::heightForWidth(int width) const {
    const P size = scene_.state.site.size;
    return static_cast<int>(std::lround(width * size.y / size.x));
}

QSize SiteMap::fitted(QSize room, int minimumWidth) const {
    const P size = scene_.state.site.size;
    const int wanted = std::max(static_cast<int>(room.height() * size.x / size.y), minimumWidth);
    const int width = std::min(room.width(), wanted);
    return {width, std::min(heightForWidth(width), room.height())};
}

void SiteMap::describe() {
    describedAt_ = Motion::seconds();
    const bool waits = freshness_ == Freshness::unknown && !scene_.replay;
    if (const QString words = waits ? waitingText() : mapDescription(scene_); words != accessibleName())
        setAccessibleName(words);
}

bool SiteMap::isAnimated() const {
    return !scene_.replay && freshness_ == Freshness::live &&
           (scene_.state.visitor || airborne(scene_.state.phase));
}

void SiteMap::updateAnimation() {
    const bool runs = onScreen_ && !covered_ && isAnimated() && !Motion::reduced();
    if (runs == frames_.isActive())
        return;
    frames_.setActive(runs);
    update();
}

/// Repaints the moving parts only, at their old and new positions.
void SiteMap::showFrame() {
    const QRectF area = liveArea(scene_, size()) & QRectF(rect());
    update((area | shownArea_).toAlignedRect());
    shownArea_ = area;
}

void SiteMap::showEvent(QShowEvent*) {
    onScreen_ = true;
    updateAnimation();
}

void SiteMap::hideEvent(QHideEvent*) {
    onScreen_ = false;
    updateAnimation();
}

QPixmap SiteMap::emptyLayer(double scale, const QColor& color) const {
    QPixmap picture(size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(color);
    return picture;
}

/// Redraws whichever cached layer is out of date.
void SiteMap::updateLayers() {
    if (grounds_.size() != size() * devicePixelRatioF()) {
        grounds_ = emptyLayer(devicePixelRatioF(), SB::navy);
        paths_ = emptyLayer(devicePixelRatioF(), Qt::transparent);
        groundsStale_ = true;
    }
    if (groundsStale_) {
        QPainter painter(&grounds_);
        painter.fillRect(rect(), SB::navy);
        drawGrounds(painter, scene_, size());
        pathsStale_ = true;
    }
    if (pathsStale_) {
        paths_.fill(Qt::transparent);
        QPainter painter(&paths_);
        drawPaths(painter, scene_, size());
    }
    groundsStale_ = pathsStale_ = false;
}

QPixmap SiteMap::picture(int scale) const {
    QPixmap picture = emptyLayer(scale, SB::navy);
    QPixmap paths = emptyLayer(scale, Qt::transparent);
    QPainter onPaths(&paths);
    drawPaths(onPaths, scene_, size());
    onPaths.end();
    QPainter painter(&picture);
    drawGrounds(painter, scene_, size());
    painter.drawPixmap(0, 0, paths);
    drawMovers(painter, scene_, size(), Motion::reduced() ? 0 : Motion::seconds());
    return picture;
}

void SiteMap::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto fill = [&](const QBrush& brush) { fillRounded(painter, rect(), Measure::cardRadius, brush); };
    const Freshness freshness = scene_.replay ? Freshness::live : freshness_;
    if (freshness != Freshness::live)
        fill(SB::navy);
    if (freshness == Freshness::unknown) {
        drawText(painter, rect(), waitingText(), Type::emptyTitle, SB::dTitle, Qt::AlignCenter);
        return;
    }
    if (freshness == Freshness::stale)
        painter.setOpacity(dimmedOpacity);
    updateLayers();
    fill(grounds_);
    fill(paths_);
    QPainterPath corners;
    corners.addRoundedRect(rect(), Measure::cardRadius, Measure::cardRadius);
    painter.setClipPath(corners, Qt::IntersectClip);
    drawMovers(painter, scene_, size(), Motion::reduced() ? 0 : Motion::seconds());
}

} // namespace velmora
