#include "ui/map/map_painting.h"

#include "language/language.h"
#include "model/follow_point.h"
#include "ui/look/art.h"
#include "ui/look/motion.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/map/blended_shapes.h"
#include "ui/map/drone_glyph.h"
#include "ui/map/map_captions.h"
#include "ui/map/simplified_line.h"

#include <QLineF>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double fieldOfView = 32; // degrees to each side of a camera's heading
constexpr double viewRange = 34;   // metres
constexpr double seeingView = 0.3, idleView = 0.16, offlineView = 0.05;
constexpr double crossReach = 2, crossLine = 1.2; // of an offline camera, in pixels as everything below
constexpr double markerLabelOffset = 8;
constexpr double markerRadius = 4;
constexpr double pathEdge = 2; // what the line below a path is wider
constexpr double documentTolerance = 0.15;
constexpr double longestPath = 24'000, pathPiece = 200;

QPen dashed(const QColor& color, double width, double on, double off, Qt::PenCapStyle cap = Qt::FlatCap) {
    QPen pen(color, width, Qt::SolidLine, cap, cap == Qt::RoundCap ? Qt::RoundJoin : Qt::MiterJoin);
    pen.setDashPattern({on / width, off / width}); // Qt counts dashes in line widths
    return pen;
}

void drawCircle(QPainter& painter, QPointF center, double radius, const QBrush& fill, const QPen& line) {
    painter.setBrush(fill);
    painter.setPen(line);
    painter.drawEllipse(center, radius, radius);
}

/// The colour of `above` painted over `below`, for one stroke instead of two.
QColor painted(const QColor& above, const QColor& below) {
    const double share = above.alphaF(), rest = below.alphaF() * (1 - share);
    const auto mix = [&](double a, double b) { return (a * share + b * rest) / (share + rest); };
    return QColor::fromRgbF(static_cast<float>(mix(above.redF(), below.redF())),
                            static_cast<float>(mix(above.greenF(), below.greenF())),
                            static_cast<float>(mix(above.blueF(), below.blueF())),
                            static_cast<float>(share + rest));
}

QRectF around(QPointF center, double radius) {
    constexpr double margin = 3; // line widths and rounding
    const double reach = radius + margin;
    return {center.x() - reach, center.y() - reach, 2 * reach, 2 * reach};
}

/// The rings around the visitor.
QRectF visitorArea(const MapScene& scene, const MapTransform& view) {
    const double ring = airborne(scene.state.phase) ? scene.settings.followDistance * view.scale() : 0;
    return around(view.map(scene.state.visitor->pos), std::max(scene.measures.pulseTo, ring));
}

/// One pass over the scene in drawing order; later steps paint over earlier ones.
class MapPass {
public:
    MapPass(QPainter& painter, const MapScene& scene, QSizeF canvas)
        : painter_(painter),
          scene_(scene),
          site_(scene.state.site),
          measures_(scene.measures),
          view_(canvas, site_.size) {
        painter_.setRenderHint(QPainter::Antialiasing);
    }

    /// Only the plan is drawn smoothly: with that hint Qt blends any picture by its slow way.
    void drawPlan() {
        painter_.setRenderHint(QPainter::SmoothPixmapTransform);
        if (const QImage picture = Art::find(toQString(site_.planImage)); !picture.isNull())
            painter_.drawImage(view_.plan(), picture);
        painter_.setRenderHint(QPainter::SmoothPixmapTransform, false);
    }

    void drawVeil() { painter_.fillRect(view_.plan(), SB::faded(SB::navy, 0.18)); }

    void drawBoundary() {
        const double inset = scene_.settings.boundaryBuffer * view_.scale();
        const QRectF outer = view_.map(boundsOf(site_));
        const QRectF inner = outer.adjusted(inset, inset, -inset, -inset);
        QPainterPath band;
        band.setFillRule(Qt::OddEvenFill);
        band.addRect(outer);
        band.addRect(inner);
        painter_.fillPath(band, SB::faded(SB::lilac, measures_.bufferBand));
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(
            dashed(SB::faded(SB::dTeal, 0.9), 1.4, measures_.boundaryDash, measures_.boundaryGap));
        painter_.drawRect(outer);
        painter_.setPen(
            QPen(SB::faded(SB::lilac, measures_.bufferLine), 0.8, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter_.drawRect(inner);
    }

    void drawBoundaryCaptions() {
        if (!measures_.captions)
            return;
        const QRectF outer = view_.map(boundsOf(site_));
        drawCaption(painter_, {Words::tr("Your boundary"), SB::dTeal, outer.topLeft() + QPointF(8, 7),
                               Qt::AlignLeft | Qt::AlignTop});
        drawCaption(painter_, bufferCaption(scene_, view_));
    }

    void drawViews() {
        for (const CameraInfo& camera : site_.cameras) {
            const bool sees = scene_.state.visitor && scene_.state.visitor->cameraId == camera.id;
            drawView(view_.map(camera.pos), camera.heading,
                     !camera.online ? offlineView
                     : sees         ? seeingView
                                    : idleView);
        }
    }

    void drawCameras() {
        for (const CameraInfo& camera : site_.cameras) {
            const QPointF center = view_.map(camera.pos);
            drawCircle(painter_, center, measures_.cameraRadius, SB::navy,
                       QPen(camera.online ? SB::softBlue : SB::alert, measures_.cameraLine));
            if (!camera.online)
                drawCross(center);
            if (measures_.captions)
                drawCaption(painter_, cameraCaption(camera, view_));
        }
    }

    void drawPad() {
        drawCircle(painter_, view_.map(site_.pad), padRadius(scene_, view_), Qt::NoBrush,
                   QPen(SB::dTeal, 1.4));
    }

    /// Draws the lines below both paths first, so that no path cuts the other one.
    void drawPaths() {
        const auto& visitor = scene_.state.visitor;
        const auto& replay = scene_.replay;
        const auto seen = replay    ? replay->visitorPath()
                          : visitor ? std::span<const P>(visitor->trail)
                                    : std::span<const P>();
        const auto flown = replay ? replay->dronePath() : std::span<const P>(scene_.state.drone.trail);
        const QColor edge = SB::faded(SB::navy, 0.55);
        const double width = measures_.pathWidth;
        const QPen below(edge, width + pathEdge, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin); // fast
        drawPath(seen, below);
        drawPath(flown, below);
        const auto color = [&](const QColor& line) { return overwrites() ? painted(line, edge) : line; };
        drawPath(seen, QPen(color(SB::faded(SB::lilac, replay ? 0.85 : 0.55)), width, Qt::SolidLine,
                            Qt::RoundCap, Qt::RoundJoin));
        drawPath(flown, dashed(color(SB::faded(SB::dTeal, replay ? 0.95 : 0.7)), width, 4, 4, Qt::RoundCap));
    }

    void drawPadCaption() {
        const double opacity = padCaptionOpacity(scene_, view_);
        if (!measures_.captions || opacity <= 0)
            return;
        painter_.save();
        painter_.setOpacity(painter_.opacity() * opacity);
        drawCaption(painter_, padCaption(scene_, view_));
        painter_.restore();
    }

    void drawVisitor(double t) {
        const QPointF at = view_.map(scene_.state.visitor->pos);
        if (airborne(scene_.state.phase)) {
            painter_.setPen(dashed(SB::faded(Qt::white, 0.35), 1, 1, 3));
            painter_.drawLine(view_.map(scene_.state.drone.pos), at);
        }
        blendShapes(painter_, visitorArea(scene_, view_) & view_.canvas(), [&](QPainter& shapes) {
            if (airborne(scene_.state.phase))
                drawCircle(shapes, at, scene_.settings.followDistance * view_.scale(), Qt::NoBrush,
                           dashed(SB::faded(Qt::white, measures_.followRing), 1, 2, 4));
            const double pulse = Motion::pulseAt(t);
            drawCircle(shapes, at, measures_.pulseFrom + (measures_.pulseTo - measures_.pulseFrom) * pulse,
                       Qt::NoBrush, QPen(SB::faded(SB::lilac, (1 - pulse) * 0.8), 1.5));
        });
        drawCircle(painter_, at, measures_.visitorRadius, SB::lilac, QPen(Qt::white, measures_.visitorLine));
    }

    void drawHoldPoint() {
        if (measures_.holdRadius <= 0)
            return;
        const P at =
            followPoint(scene_.state.drone.pos, scene_.state.visitor->pos, site_, scene_.settings).at;
        drawCircle(painter_, view_.map(at), measures_.holdRadius, SB::faded(SB::navy, 0.35),
                   QPen(SB::dTeal, 1.2));
    }

    void drawFlyer(double t) {
        const DroneState& drone = scene_.state.drone;
        drawDrone(painter_, view_.map(drone.pos), drone.heading, airborne(scene_.state.phase), t,
                  measures_.droneScale);
    }

    /// Above the glyph, so that the drone never covers the visitor's label.
    void drawMovingCaptions() {
        if (!measures_.captions)
            return;
        if (scene_.state.visitor)
            drawCaption(painter_, visitorCaption(scene_, view_, scene_.labelSide));
        if (airborne(scene_.state.phase))
            drawCaption(painter_, heightCaption(scene_, view_));
    }

    void drawReplayMarkers() {
        const auto path = scene_.replay->visitorPath();
        if (path.empty())
            return;
        drawMarker(path.front(), Words::tr("Arrived"));
        const bool left =
            scene_.replay->progress.ended && scene_.replay->record->outcome == Outcome::visitorLeft;
        drawMarker(path.back(), left ? Words::tr("Left") : Words::tr("Last seen"));
    }

private:
    void drawView(QPointF center, double heading, double opacity) {
        const double radius = viewRange * view_.scale();
        QRectF around(0, 0, 2 * radius, 2 * radius);
        around.moveCenter(center);
        QPainterPath wedge(center);
        wedge.arcTo(around, -(heading - fieldOfView), -2 * fieldOfView); // Qt's angles grow counterclockwise
        wedge.closeSubpath();
        QRadialGradient light(center, radius);
        light.setColorAt(0, SB::faded(SB::softBlue, opacity));
        light.setColorAt(1, SB::faded(SB::softBlue, 0));
        painter_.fillPath(wedge, light);
    }

    void drawCross(QPointF center) {
        const double reach = crossReach * measures_.cameraRadius / MapMeasures().cameraRadius;
        painter_.setPen(QPen(SB::dTitle, crossLine, Qt::SolidLine, Qt::FlatCap));
        painter_.drawLine(center - QPointF(reach, reach), center + QPointF(reach, reach));
        painter_.drawLine(center - QPointF(reach, -reach), center + QPointF(reach, -reach));
    }

    /// Whether a line can replace what is below it. In a document it cannot.
    bool overwrites() const { return painter_.paintEngine()->hasFeature(QPaintEngine::PorterDuff); }

    /// Strokes a path piece by piece, because stroking a long tangle at once takes many times as long. Each
    /// piece overwrites the end of the one before, so that the overlap is not darker. A document takes the
    /// path as a whole.
    void drawPath(std::span<const P> path, QPen pen) {
        if (path.size() < 2)
            return;
        if (overwrites())
            painter_.setCompositionMode(QPainter::CompositionMode_Source);
        QPolygonF piece;
        double length = 0;
        for (auto point = path.begin() + newestPart(path); point != path.end(); ++point) {
            const QPointF at = view_.map(*point);
            if (!piece.empty())
                length += QLineF(piece.back(), at).length();
            piece.append(at);
            if ((length < pathPiece || !overwrites()) && std::next(point) != path.end())
                continue;
            painter_.setPen(pen);
            painter_.drawPolyline(overwrites() ? piece : simplified(piece, documentTolerance));
            if (pen.style() == Qt::CustomDashLine)
                pen.setDashOffset(pen.dashOffset() + length / pen.widthF());
            piece = {at};
            length = 0;
        }
        if (overwrites())
            painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }

    /// Index of the first point to draw. Older points are left out: a very long path covers the map, and a
    /// tangle takes seconds to stroke.
    std::ptrdiff_t newestPart(std::span<const P> path) const {
        double left = longestPath / view_.scale();
        auto from = std::ssize(path) - 1;
        for (; from > 0 && left > 0; --from) {
            const auto i = static_cast<std::size_t>(from);
            left -= std::hypot(path[i].x - path[i - 1].x, path[i].y - path[i - 1].y);
        }
        return from;
    }

    void drawMarker(P at, const QString& caption) {
        const QPointF center = view_.map(at);
        drawCircle(painter_, center, markerRadius, SB::lilac, Qt::NoPen);
        if (measures_.captions)
            drawCaption(painter_,
                        captionBeside(center, markerLabelOffset, caption, SB::lilac, scene_, view_));
    }

    QPainter& painter_;
    const MapScene& scene_;
    const Site& site_;
    const MapMeasures& measures_;
    MapTransform view_;
};

} // namespace

void drawPlan(QPainter& painter, const MapScene& scene, QSizeF canvas) {
    MapPass pass(painter, scene, canvas);
    pass.drawPlan();
    pass.drawVeil();
}

void drawLimits(QPainter& painter, const MapScene& scene, QSizeF canvas) {
    MapPass pass(painter, scene, canvas);
    pass.drawBoundary();
    pass.drawBoundaryCaptions();
    pass.drawPad();
}

void drawBackdrop(QPainter& painter, const MapScene& scene, QSizeF canvas) {
    MapPass pass(painter, scene, canvas);
    pass.drawPlan();
    pass.drawVeil();
    pass.drawBoundary();
    pass.drawViews();
}

void drawLandmarks(QPainter& painter, const MapScene& scene, QSizeF canvas) {
    MapPass pass(painter, scene, canvas);
    pass.drawBoundaryCaptions();
    pass.drawCameras();
}

void drawGrounds(QPainter& painter, const MapScene& scene, QSizeF canvas) {
    drawBackdrop(painter, scene, canvas);
    drawLandmarks(painter, scene, canvas);
    MapPass(painter, scene, canvas).drawPad();
}

void drawPaths(QPainter& painter, const MapScene& scene, QSizeF canvas) {
    MapPass pass(painter, scene, canvas);
    pass.drawPaths();
    if (scene.replay)
        pass.drawReplayMarkers();
}

void drawMovers(QPainter& painter, const MapScene& scene, QSizeF canvas, double t) {
    MapPass pass(painter, scene, canvas);
    pass.drawPadCaption();
    if (scene.replay)
        return;
    if (scene.state.visitor) {
        pass.drawVisitor(t);
        pass.drawHoldPoint();
    }
    pass.drawFlyer(t);
    pass.drawMovingCaptions();
}

QRectF pathsArea(const MapScene& scene, QSizeF canvas) {
    if (scene.replay)
        return {{}, canvas};
    constexpr double margin = 4; // line widths and rounding
    const MapTransform view(canvas, scene.state.site.size);
    QPolygonF points;
    for (const P& p : scene.state.drone.trail)
        points.append(view.map(p));
    if (scene.state.visitor)
        for (const P& p : scene.state.visitor->trail)
            points.append(view.map(p));
    return points.empty() ? QRectF() : points.boundingRect().adjusted(-margin, -margin, margin, margin);
}

QRectF liveArea(const MapScene& scene, QSizeF canvas) {
    if (scene.replay)
        return {};
    const MapTransform view(canvas, scene.state.site.size);
    const MapMeasures& measures = scene.measures;
    const auto& visitor = scene.state.visitor;
    QRectF area = around(view.map(scene.state.drone.pos), droneRadius * measures.droneScale);
    if (visitor)
        area |= visitorArea(scene, view);
    if (visitor && measures.holdRadius > 0)
        area |= around(
            view.map(followPoint(scene.state.drone.pos, visitor->pos, scene.state.site, scene.settings).at),
            measures.holdRadius);
    if (!measures.captions)
        return area;
    area |= heightCaption(scene, view).area();
    if (visitor)
        area |= visitorCaption(scene, view, scene.labelSide).area();
    if (padCaptionOpacity(scene, view) < 1)
        area |= padCaption(scene, view).area();
    return area;
}

} // namespace velmora
