#include "ui/map/site_map.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/map/map_captions.h"
#include "ui/map/map_description.h"
#include "ui/map/map_painting.h"

#include <QPaintEvent>
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

bool samePaths(const MapScene& scene, const LiveState& state, const std::optional<Replay>& replay) {
    const auto &from = scene.state.visitor, &to = state.visitor;
    return scene.replay == replay && scene.state.drone.trail == state.drone.trail &&
           from.has_value() == to.has_value() && (!from || from->trail == to->trail);
}

/// Compares what drawMovers() paints, apart from its animation.
bool sameMovers(const LiveState& a, const LiveState& b) {
    const DroneState &from = a.drone, &to = b.drone;
    return a.phase == b.phase && from.pos == to.pos && from.heading == to.heading &&
           from.altitude == to.altitude && a.visitor == b.visitor;
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
    repaintPaths(rect());
    describe();
}

void SiteMap::setInset(bool inset) {
    scene_.measures = inset ? insetMap : MapMeasures();
    repaintGrounds();
}

void SiteMap::setCorners(const std::optional<CornerColors>& around) {
    if (corners_ == around)
        return;
    corners_ = around;
    setAttribute(Qt::WA_OpaquePaintEvent, corners_.has_value());
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
    if (covered)
        return;
    shownArea_ = rect(); // the parts have moved without a frame
    update();
}

/// Repaints what changed.
void SiteMap::setScene(const LiveState& state, const Settings& settings, std::optional<Replay> replay) {
    const bool grounds = !sameGrounds(scene_, state, settings);
    const bool paths = !samePaths(scene_, state, replay);
    const bool movers = !sameMovers(scene_.state, state);
    const bool newSituation = scene_.state.phase != state.phase ||
                              scene_.state.visitor.has_value() != state.visitor.has_value() ||
                              scene_.replay != replay;
    const bool newShape = scene_.state.site.size != state.site.size;
    const QRectF paintedPaths = pathsArea(scene_, size());
    scene_.state = state;
    scene_.settings = settings;
    scene_.replay = std::move(replay);
    placeLabel();
    if (newShape)
        updateGeometry();
    updateAnimation();
    if (grounds)
        repaintGrounds();
    else if (paths)
        repaintPaths(paintedPaths | pathsArea(scene_, size()));
    if (!covered_ && movers)
        showFrame();
    if (newSituation || Motion::seconds() - describedAt_ >= secondsBetweenDescriptions)
        describe();
}

void SiteMap::repaintGrounds() {
    groundsStale_ = true;
    shownArea_ = rect(); // the parts may be elsewhere
    if (!covered_)
        update();
}

void SiteMap::repaintPaths(const QRectF& area) {
    stalePaths_ |= area.toAlignedRect() & rect();
    if (!covered_)
        update(stalePaths_);
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

/// Repaints the moving parts only, at their old and new positions. The timer starts again, so that there is
/// no second frame while the drone moves in each tick.
void SiteMap::showFrame() {
    if (frames_.isActive())
        frames_.start();
    const QRectF area = liveArea(scene_, size()) & QRectF(rect());
    update((area | shownArea_).toAlignedRect());
    shownArea_ = area;
}

void SiteMap::resizeEvent(QResizeEvent*) {
    placeLabel();
    shownArea_ = rect();
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

bool SiteMap::isScaleFractional() const {
    return devicePixelRatioF() != std::floor(devicePixelRatioF());
}

/// Redraws whichever cached layer is out of date.
void SiteMap::updateLayers() {
    if (groundsStale_ || grounds_.size() != size() * devicePixelRatioF()) {
        grounds_ = emptyLayer(devicePixelRatioF(), SB::navy);
        QPainter painter(&grounds_);
        drawGrounds(painter, scene_, size());
        painter.end();
        still_ = grounds_;
        groundsStale_ = false;
        stalePaths_ = rect();
    }
    if (!stalePaths_.isEmpty())
        drawStalePaths();
    stalePaths_ = {};
}

/// Paths overwrite themselves where their pieces overlap, so they need a transparent layer of their own.
void SiteMap::drawStalePaths() {
    if (isScaleFractional())
        stalePaths_ = rect(); // a part need not begin on a whole pixel
    QPixmap layer(stalePaths_.size() * devicePixelRatioF());
    layer.setDevicePixelRatio(devicePixelRatioF());
    layer.fill(Qt::transparent);
    QPainter paths(&layer);
    paths.translate(-stalePaths_.topLeft());
    drawPaths(paths, scene_, size());
    paths.end();
    QPainter painter(&still_);
    painter.setClipRect(stalePaths_);
    painter.drawPixmap(0, 0, grounds_);
    painter.drawPixmap(stalePaths_.topLeft(), layer);
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

void SiteMap::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (!corners_) {
        QPainterPath shape;
        shape.addRoundedRect(roundedShape(), scene_.measures.cornerRadius, scene_.measures.cornerRadius);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setClipPath(shape);
    }
    paintMap(painter);
    if (corners_)
        paintCorners(painter, event->rect());
}

void SiteMap::paintMap(QPainter& painter) {
    const Freshness freshness = scene_.replay ? Freshness::live : freshness_;
    if (isScaleFractional() || freshness != Freshness::live)
        painter.fillRect(rect(), SB::navy); // at a fractional scale the layers need not reach every edge
    if (freshness == Freshness::unknown) {
        drawText(painter, rect(), waitingText(), Type::emptyTitle, SB::dTitle, Qt::AlignCenter);
        return;
    }
    painter.setOpacity(freshness == Freshness::stale ? Measure::staleOpacity : 1);
    updateLayers();
    painter.drawPixmap(0, 0, still_);
    drawMovers(painter, scene_, size(), Motion::reduced() ? 0 : Motion::seconds());
    painter.setOpacity(1);
}

/// The map without the corners that its measures round.
QRectF SiteMap::roundedShape() const {
    const double below = scene_.measures.squareBottom ? scene_.measures.cornerRadius : 0;
    return QRectF(rect()).adjusted(0, 0, 0, below);
}

/// Rounds the corners that lie in the painted rectangle by painting what is around them.
void SiteMap::paintCorners(QPainter& painter, const QRect& painted) const {
    const double radius = scene_.measures.cornerRadius;
    QPainterPath outside;
    outside.addRect(rect());
    outside.addRoundedRect(roundedShape(), radius, radius);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const bool right : {false, true})
        for (const bool bottom : {false, true}) {
            const QRectF corner(right ? width() - radius : 0, bottom ? height() - radius : 0, radius, radius);
            if (!corner.intersects(painted))
                continue;
            painter.setClipRect(corner);
            painter.fillPath(outside, bottom ? corners_->below : corners_->above);
        }
}

} // namespace velmora
