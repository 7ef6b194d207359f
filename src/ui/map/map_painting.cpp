#include "ui/map/map_painting.h"

#include "model/truncated.h"
#include "ui/look/art.h"
#include "ui/look/motion.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/map/drone_glyph.h"

#include <QCoreApplication>
#include <QLineF>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double fieldOfView = 32;   // degrees to each side of a camera's heading
constexpr double viewRange = 34;     // metres
constexpr double padRadius = 2.6;    // metres
constexpr double cameraRadius = 4.5; // pixels, as everything below
constexpr double visitorRadius = 5, pulseFrom = 6, pulseGrowth = 14;
constexpr double markerRadius = 4;
constexpr double altitudeOffset = 16, visitorLabelOffset = 10, markerLabelOffset = 8;
constexpr double captionEdge = 4; // between a caption and the map's edge
constexpr double lastingPathWidth = 1.8;
constexpr double longestPath = 24'000, pathPiece = 200;

QString tr(const char* text) {
    return QCoreApplication::translate("SiteMap", text);
}

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

/// Draws a caption whose box touches the point with the side or corner that the anchor names.
void drawCaption(QPainter& painter, QPointF at, Qt::Alignment anchor, const QString& text,
                 const QColor& color) {
    constexpr double reach = 400;
    QRectF box(at, QSizeF());
    if (!(anchor & Qt::AlignLeft))
        box.setLeft(at.x() - reach);
    if (!(anchor & Qt::AlignRight))
        box.setRight(at.x() + reach);
    if (!(anchor & Qt::AlignTop))
        box.setTop(at.y() - reach);
    if (!(anchor & Qt::AlignBottom))
        box.setBottom(at.y() + reach);
    drawText(painter, box, text, Type::mapCaption, color, anchor);
}

/// One pass over the scene in drawing order; later steps paint over earlier ones.
class MapPass {
public:
    MapPass(QPainter& painter, const MapScene& scene, QSizeF canvas)
        : painter_(painter),
          scene_(scene),
          site_(scene.state.site),
          view_(canvas, site_.size),
          width_(canvas.width()) {
        painter_.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    }

    void drawPlan() {
        if (const QImage picture = Art::find(toQString(site_.planImage)); !picture.isNull())
            painter_.drawImage(view_.plan(), picture);
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
        painter_.fillPath(band, SB::faded(SB::lilac, 0.16));
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(dashed(SB::faded(SB::dTeal, 0.9), 1.4, 6, 5));
        painter_.drawRect(outer);
        painter_.setPen(QPen(SB::faded(SB::lilac, 0.35), 0.8, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter_.drawRect(inner);
        if (!scene_.showLabels)
            return;
        drawCaption(painter_, outer.topLeft() + QPointF(8, 7), Qt::AlignLeft | Qt::AlignTop,
                    tr("Your boundary"), SB::dTeal);
        drawCaption(painter_, outer.bottomRight() - QPointF(8, 7), Qt::AlignRight | Qt::AlignBottom,
                    tr("%1 m buffer").arg(truncated(scene_.settings.boundaryBuffer)), SB::lilac);
    }

    void drawCameras() {
        for (const CameraInfo& camera : site_.cameras) {
            const QPointF center = view_.map(camera.pos);
            const bool seesVisitor = scene_.state.visitor && scene_.state.visitor->cameraId == camera.id;
            drawView(center, camera.heading, seesVisitor ? 0.3 : 0.16);
            drawCircle(painter_, center, cameraRadius, SB::navy,
                       QPen(camera.online ? SB::softBlue : SB::alert, 1.5));
            if (scene_.showLabels)
                drawCaption(painter_, center - QPointF(0, 9), Qt::AlignHCenter | Qt::AlignBottom,
                            toQString(camera.name), SB::dBody);
        }
    }

    void drawPad() {
        const QPointF center = view_.map(site_.pad);
        const double radius = padRadius * view_.scale();
        drawCircle(painter_, center, radius, Qt::NoBrush, QPen(SB::dTeal, 1.4));
        if (scene_.showLabels)
            drawCaption(painter_, center + QPointF(0, radius + 4), Qt::AlignHCenter | Qt::AlignTop, tr("Pad"),
                        SB::dTeal);
    }

    void drawPaths() {
        const auto& visitor = scene_.state.visitor;
        const auto& replay = scene_.replay;
        const QColor seen = SB::faded(SB::lilac, replay ? 0.85 : 0.55);
        drawPath(replay    ? replay->visitorPath()
                 : visitor ? std::span<const P>(visitor->trail)
                           : std::span<const P>(),
                 QPen(seen, lastingPathWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QColor flown = SB::faded(SB::dTeal, replay ? 0.95 : 0.7);
        drawPath(replay ? replay->dronePath() : scene_.state.drone.trail,
                 dashed(flown, lastingPathWidth, 4, 4, Qt::RoundCap));
    }

    void drawVisitor(double t) {
        if (!scene_.state.visitor)
            return;
        const QPointF at = view_.map(scene_.state.visitor->pos);
        if (airborne(scene_.state.phase)) {
            drawCircle(painter_, at, scene_.settings.followDistance * view_.scale(), Qt::NoBrush,
                       dashed(SB::faded(Qt::white, 0.18), 1, 2, 4));
            painter_.setPen(dashed(SB::faded(Qt::white, 0.35), 1, 1, 3));
            painter_.drawLine(view_.map(scene_.state.drone.pos), at);
        }
        const double pulse = Motion::pulseAt(t);
        drawCircle(painter_, at, pulseFrom + pulseGrowth * pulse, Qt::NoBrush,
                   QPen(SB::faded(SB::lilac, (1 - pulse) * 0.8), 1.5));
        drawCircle(painter_, at, visitorRadius, SB::lilac, QPen(Qt::white, 1.5));
        if (scene_.showLabels)
            drawPointCaption(at, visitorLabelOffset, toQString(scene_.state.visitor->label));
    }

    void drawDroneWithHeight(double t) {
        const DroneState& drone = scene_.state.drone;
        const bool flying = airborne(scene_.state.phase);
        const QPointF at = view_.map(drone.pos);
        drawDrone(painter_, at, drone.heading, flying, t);
        if (flying && scene_.showLabels)
            drawCaption(painter_, at + QPointF(0, altitudeOffset), Qt::AlignHCenter | Qt::AlignTop,
                        tr("%1 m").arg(rounded(drone.altitude)), SB::dTitle);
    }

    void drawReplayMarkers() {
        const auto path = scene_.replay->visitorPath();
        if (path.empty())
            return;
        drawMarker(path.front(), tr("Arrived"));
        const bool left =
            scene_.replay->progress.ended && scene_.replay->record->outcome == Outcome::visitorLeft;
        drawMarker(path.back(), left ? tr("Left") : tr("Last seen"));
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

    /// Strokes a path piece by piece, because stroking a long tangle at once takes many times as long. Each
    /// piece overwrites the end of the one before, so that the overlap is not darker.
    void drawPath(std::span<const P> path, QPen pen) {
        if (path.size() < 2)
            return;
        painter_.setCompositionMode(QPainter::CompositionMode_Source);
        QPolygonF piece;
        double length = 0;
        for (auto point = path.begin() + newestPart(path); point != path.end(); ++point) {
            const QPointF at = view_.map(*point);
            if (!piece.empty())
                length += QLineF(piece.back(), at).length();
            piece.append(at);
            if (length < pathPiece && std::next(point) != path.end())
                continue;
            painter_.setPen(pen);
            painter_.drawPolyline(piece);
            if (pen.style() == Qt::CustomDashLine)
                pen.setDashOffset(pen.dashOffset() + length / pen.widthF());
            piece = {at};
            length = 0;
        }
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
        if (scene_.showLabels)
            drawPointCaption(center, markerLabelOffset, caption);
    }

    /// To the right of a point, or above and left of it if the map ends too soon.
    void drawPointCaption(QPointF point, double offset, const QString& caption) {
        if (point.x() + offset + textWidth(caption, Type::mapCaption) <= width_)
            drawCaption(painter_, point + QPointF(offset, 0), Qt::AlignLeft | Qt::AlignVCenter, caption,
                        SB::lilac);
        else
            drawCaption(painter_, {std::min(point.x(), width_ - captionEdge), point.y() - offset},
                        Qt::AlignRight | Qt::AlignBottom, caption, SB::lilac);
    }

    QPainter& painter_;
    const MapScene& scene_;
    const Site& site_;
    MapTransform view_;
    double width_; ///< of the canvas
};

} // namespace

void drawGrounds(QPainter& painter, const MapScene& scene, QSizeF canvas) {
    MapPass pass(painter, scene, canvas);
    pass.drawPlan();
    pass.drawVeil();
    pass.drawBoundary();
    pass.drawCameras();
    pass.drawPad();
}

void drawPaths(QPainter& painter, const MapScene& scene, QSizeF canvas) {
    MapPass pass(painter, scene, canvas);
    pass.drawPaths();
    if (scene.replay)
        pass.drawReplayMarkers();
}

void drawMovers(QPainter& painter, const MapScene& scene, QSizeF canvas, double t) {
    if (scene.replay)
        return;
    MapPass pass(painter, scene, canvas);
    pass.drawVisitor(t);
    pass.drawDroneWithHeight(t);
}

QRectF liveArea(const MapScene& scene, QSizeF canvas) {
    if (scene.replay)
        return {};
    constexpr double margin = 3; // line widths and rounding
    const MapTransform view(canvas, scene.state.site.size);
    const auto around = [&](P p, double radius) {
        QRectF box(0, 0, 2 * (radius + margin), 2 * (radius + margin));
        box.moveCenter(view.map(p));
        return box;
    };
    QRectF area = around(scene.state.drone.pos, altitudeOffset + Type::mapCaption.line);
    if (const auto& visitor = scene.state.visitor) {
        area |= around(visitor->pos,
                       std::max(pulseFrom + pulseGrowth, scene.settings.followDistance * view.scale()));
        const double captionReach =
            visitorLabelOffset + textWidth(toQString(visitor->label), Type::mapCaption);
        area |= around(visitor->pos, 0)
                    .adjusted(-captionReach, -visitorLabelOffset - Type::mapCaption.line, captionReach,
                              Type::mapCaption.line);
    }
    return area;
}

} // namespace velmora
