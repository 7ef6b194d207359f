#include "ui/map/site_map.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/map/map_captions.h"
#include "ui/map/map_description.h"
#include "ui/map/map_painting.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora {

namespace {

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
        setScene(*known, settings, std::nullopt);
    setFreshness(freshness);
}

/// Copies the state only if its grounds differ.
void SiteMap::setReplay(Replay replay, const LiveState& state, const Settings& settings) {
    if (!scene_.replay || !sameGrounds(scene_, state, settings)) {
        setScene(state, settings, std::move(replay));
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

void SiteMap::setInset(bool inset) {
    scene_.measures = inset ? insetMap : MapMeasures();
    groundsStale_ = true;
    update();
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
void SiteMap::setScene(const LiveState& state, const Settings& settings, std::optional<Replay> replay) {
    const MapScene before = std::exchange(
        scene_, MapScene{state, settings, std::move(replay), scene_.measures, scene_.labelSide});
    placeLabel();
    const bool grounds = !sameGrounds(before, state, settings);
    const bool paths = !samePaths(before, scene_);
    const bool movers = !sameMovers(before, scene_);
    const bool newSituation = before.state.phase != state.phase ||
                              before.state.visitor.has_value() != state.visitor.has_value() ||
                              before.replay != scene_.replay;
    groundsStale_ |= grounds;
    pathsStale_ |= paths;
    if (before.state.site.size != state.site.size)
        updateGeometry();
    updateAnimation();
    if (!covered_ && (grounds || paths))
        update();
    else if (!covered_ && movers && !frames_.isActive())
        showFrame();
    if (newSituation || Motion::seconds() - describedAt_ >= secondsBetweenDescriptions)
        describe();
}

/// Chooses the side of the visitor's label. It starts on the right for each visitor.
void SiteMap::placeLabel() {
    if (!scene_.state.visitor)
        scene_.labelSide = LabelSide::right;
    else if (scene_.measures.captions && !scene_.replay)
        scene_.labelSide = freeLabelSide(scene_, MapTransform(size(), scene_.state.site.size));
}

int SiteMap::heightForWidth(int width) const {
    const P size = scene_.state.site.size;
    return static_cast<int>(std::lround(width * size.y / size.x));
}

/// A map that is as wide as the room has a rounded height. Another one takes the first height for which the
/// width is a whole number of pixels, if that costs little, so that the plan reaches every edge.
QSize SiteMap::fitted(QSize room) const {
    if (const int height = heightForWidth(room.width()); height <= room.height())
        return {room.width(), height};
    constexpr int most = 2;            // pixels of height
    constexpr double remainder = 0.05; // pixels of width
    const double ratio = scene_.state.site.size.x / scene_.state.site.size.y;
    const auto width = [&](int height) { return static_cast<int>(std::lround(height * ratio)); };
    for (int height = room.height(); height >= room.height() - most && height > 0; --height)
        if (std::abs(height * ratio - width(height)) < remainder)
            return {width(height), height};
    return {width(room.height()), room.height()};
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

void SiteMap::resizeEvent(QResizeEvent*) {
    placeLabel();
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
    const double radius = scene_.measures.cornerRadius;
    QRectF shape(rect());
    if (scene_.measures.squareBottom)
        shape.setBottom(shape.bottom() + radius);
    const auto fill = [&](const QBrush& brush) { fillRounded(painter, shape, radius, brush); };
    const Freshness freshness = scene_.replay ? Freshness::live : freshness_;
    if (freshness != Freshness::live)
        fill(SB::navy);
    if (freshness == Freshness::unknown) {
        drawText(painter, rect(), waitingText(), Type::emptyTitle, SB::dTitle, Qt::AlignCenter);
        return;
    }
    if (freshness == Freshness::stale)
        painter.setOpacity(Measure::staleOpacity);
    updateLayers();
    fill(grounds_);
    fill(paths_);
    QPainterPath corners;
    corners.addRoundedRect(shape, radius, radius);
    painter.setClipPath(corners, Qt::IntersectClip);
    drawMovers(painter, scene_, size(), Motion::reduced() ? 0 : Motion::seconds());
}

} // namespace velmora
