#include "ui/map/map_captions.h"

#include "language/language.h"
#include "model/truncated.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/map/drone_glyph.h"

#include <QCache>
#include <QPaintEngine>
#include <QPixmap>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double edgeWidth = 3; // behind the letters
constexpr double padGap = 4;    // pixels, as everything here
constexpr double heightOffset = 16;
constexpr double cameraCaptionOffset = 9;
constexpr double visitorLabelOffset = 10, visitorLabelRise = 24; // beside the visitor, and above or below
constexpr double mapEdge = 4;                                    // between a caption and the map's edge
constexpr double touching = 3, apart = 9;                        // distances to the drone
constexpr double longestName = 240;                              // pixels; longer ones are elided
constexpr qsizetype mostCharacters = 200;                        // of which more never fit

/// A name from outside, which may be long enough to stall every frame.
QString nameOnMap(std::string_view name) {
    return elided(shownText(name).left(mostCharacters), Type::mapCaption, longestName);
}

QPixmap painted(const MapCaption& caption, const QColor& letters, double scale) {
    const QRectF area = caption.area(), box = caption.box().translated(-area.topLeft());
    QPixmap picture((area.size() * scale).toSize() + QSize(1, 1));
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawText(painter, box, caption.text, Type::mapCaption, letters, Qt::AlignVCenter,
             {SB::faded(SB::navy, 0.55), edgeWidth});
    return picture;
}

qsizetype pixelsOf(const QPixmap& picture) {
    return qsizetype{picture.width()} * picture.height();
}

/// The caption as it is painted, with its area's size. Cached, because edges take longer than letters, and
/// the map paints its moving captions in every frame.
QPixmap pictureOf(const MapCaption& caption, double scale) {
    using Key = std::pair<std::pair<QRgb, double>, QString>;
    constexpr int mostPixels = 300'000; // about 1 MB
    static QCache<Key, QPixmap> cache(mostPixels);
    const Key key{{caption.color.rgba(), scale}, caption.text};
    if (const QPixmap* known = cache.object(key))
        return *known;
    QPixmap picture = painted(caption, caption.color, scale);
    cache.insert(key, new QPixmap(picture), pixelsOf(picture));
    return picture;
}

/// The edge of a caption without its letters. A document holds a picture once, however often it is drawn.
QPixmap edgeOf(const MapCaption& caption) {
    constexpr double scale = 3;
    constexpr int mostPixels = 600'000; // about 2 MB
    static QCache<QString, QPixmap> cache(mostPixels);
    if (const QPixmap* known = cache.object(caption.text))
        return *known;
    QPixmap picture = painted(caption, SB::none, scale);
    cache.insert(caption.text, new QPixmap(picture), pixelsOf(picture));
    return picture;
}

/// Distance between the rectangles along the axis on which they are farther apart; negative if they overlap.
double gapBetween(const QRectF& a, const QRectF& b) {
    return std::max({b.left() - a.right(), a.left() - b.right(), b.top() - a.bottom(), a.top() - b.bottom()});
}

/// Distance between the box and the drone's glyph with its height.
double gapToDrone(const QRectF& box, const MapScene& scene, const MapTransform& view) {
    const double radius = droneRadius * scene.measures.droneScale;
    QRectF glyph(0, 0, 2 * radius, 2 * radius);
    glyph.moveCenter(view.map(scene.state.drone.pos));
    const double gap = gapBetween(box, glyph);
    return airborne(scene.state.phase) ? std::min(gap, gapBetween(box, heightCaption(scene, view).box()))
                                       : gap;
}

} // namespace

QRectF MapCaption::box() const {
    QRectF box(at, QSizeF(textWidth(text, Type::mapCaption), Type::mapCaption.line));
    if (anchor & Qt::AlignRight)
        box.moveRight(at.x());
    else if (anchor & Qt::AlignHCenter)
        box.moveLeft(at.x() - box.width() / 2);
    if (anchor & Qt::AlignBottom)
        box.moveBottom(at.y());
    else if (anchor & Qt::AlignVCenter)
        box.moveTop(at.y() - box.height() / 2);
    return box;
}

QRectF MapCaption::area() const {
    constexpr double margin = edgeWidth / 2 + 1; // and rounding
    return box().adjusted(-margin, -margin, margin, margin);
}

/// On pixels, whole ones keep the letters sharp while the caption moves. In a document it is text.
void drawCaption(QPainter& painter, const MapCaption& caption) {
    if (painter.paintEngine()->type() == QPaintEngine::Pdf) {
        painter.drawPixmap(caption.area().topLeft(), edgeOf(caption));
        drawText(painter, caption.box(), caption.text, Type::mapCaption, caption.color, Qt::AlignVCenter);
        return;
    }
    const double scale = painter.device()->devicePixelRatioF();
    const QPointF corner = caption.area().topLeft() * scale;
    painter.drawPixmap(QPointF(std::round(corner.x()), std::round(corner.y())) / scale,
                       pictureOf(caption, scale));
}

MapCaption cameraCaption(const CameraInfo& camera, const MapTransform& view) {
    return {nameOnMap(camera.name), SB::dBody, view.map(camera.pos) - QPointF(0, cameraCaptionOffset),
            Qt::AlignHCenter | Qt::AlignBottom};
}

MapCaption padCaption(const MapScene& scene, const MapTransform& view) {
    const double below = padRadius(scene, view) + padGap;
    return {Words::tr("Pad"), SB::dTeal, view.map(scene.state.site.pad) + QPointF(0, below),
            Qt::AlignHCenter | Qt::AlignTop};
}

double padCaptionOpacity(const MapScene& scene, const MapTransform& view) {
    if (!airborne(scene.state.phase) || scene.replay)
        return 1;
    const double gap = gapToDrone(padCaption(scene, view).box(), scene, view);
    return std::clamp((gap - touching) / (apart - touching), 0.0, 1.0);
}

MapCaption heightCaption(const MapScene& scene, const MapTransform& view) {
    return {Words::tr("%1 m").arg(rounded(scene.state.drone.altitude)), SB::dTitle,
            view.map(scene.state.drone.pos) + QPointF(0, heightOffset), Qt::AlignHCenter | Qt::AlignTop};
}

MapCaption bufferCaption(const MapScene& scene, const MapTransform& view) {
    const QRectF boundary = view.map(boundsOf(scene.state.site));
    return {Words::tr("%1 m buffer").arg(truncated(scene.settings.boundaryBuffer)), SB::lilac,
            boundary.bottomRight() - QPointF(8, 7), Qt::AlignRight | Qt::AlignBottom};
}

MapCaption captionBeside(QPointF point, double offset, const QString& text, const QColor& color,
                         const MapScene& scene, const MapTransform& view) {
    const QRectF buffer = bufferCaption(scene, view).box();
    MapCaption beside{text, color, point + QPointF(offset, 0), Qt::AlignLeft | Qt::AlignVCenter};
    if (beside.box().right() <= view.canvas().right() && !beside.box().intersects(buffer))
        return beside;
    MapCaption above{text,
                     color,
                     {std::min(point.x(), view.canvas().right() - mapEdge),
                      std::max(point.y() - offset, view.canvas().top() + Type::mapCaption.line)},
                     Qt::AlignRight | Qt::AlignBottom};
    if (above.box().intersects(buffer))
        above.at.setY(buffer.top());
    return above;
}

MapCaption visitorCaption(const MapScene& scene, const MapTransform& view, LabelSide side) {
    const QPointF at = view.map(scene.state.visitor->pos);
    MapCaption caption{nameOnMap(scene.state.visitor->label), SB::lilac, at, {}};
    const double last = std::max(view.canvas().right() - mapEdge - caption.box().width(), mapEdge);
    const double start = std::clamp(at.x(), mapEdge, last);
    switch (side) {
    case LabelSide::right:
        caption.at.rx() += visitorLabelOffset;
        caption.anchor = Qt::AlignLeft | Qt::AlignVCenter;
        break;
    case LabelSide::left:
        caption.at.rx() -= visitorLabelOffset;
        caption.anchor = Qt::AlignRight | Qt::AlignVCenter;
        break;
    case LabelSide::above:
        caption.at = {start, at.y() - visitorLabelRise};
        caption.anchor = Qt::AlignLeft | Qt::AlignBottom;
        break;
    case LabelSide::below:
        caption.at = {start, at.y() + visitorLabelRise};
        caption.anchor = Qt::AlignLeft | Qt::AlignTop;
        break;
    }
    return caption;
}

LabelSide freeLabelSide(const MapScene& scene, const MapTransform& view) {
    const auto fits = [&](LabelSide side) {
        return view.canvas().contains(visitorCaption(scene, view, side).box());
    };
    const auto meetsCamera = [&](LabelSide side) {
        return std::ranges::any_of(scene.state.site.cameras, [&](const CameraInfo& camera) {
            return gapBetween(cameraCaption(camera, view).box(), visitorCaption(scene, view, side).box()) <=
                   touching;
        });
    };
    for (const bool avoidsCameras : {true, false})
        for (const LabelSide side :
             {scene.labelSide, LabelSide::right, LabelSide::left, LabelSide::above, LabelSide::below})
            if (fits(side) && gapToDrone(visitorCaption(scene, view, side).box(), scene, view) > touching &&
                !(avoidsCameras && meetsCamera(side)))
                return side;
    return fits(scene.labelSide) ? scene.labelSide : LabelSide::above;
}

} // namespace velmora
