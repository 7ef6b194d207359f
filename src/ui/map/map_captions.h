#pragma once

#include "ui/map/map_scene.h"

#include <QColor>
#include <QString>

class QPainter;

namespace velmora {

/// One line of text on the map.
struct MapCaption {
    QString text;
    QColor color;
    QPointF at;
    Qt::Alignment anchor; ///< the side or corner with which the text's box touches the point

    QRectF box() const;
    /// Everything that the caption paints.
    QRectF area() const;
};

/// Draws the caption with a dark edge around its letters.
void drawCaption(QPainter& painter, const MapCaption& caption);

/// Above the camera.
MapCaption cameraCaption(const CameraInfo& camera, const MapTransform& view);
/// Below the pad.
MapCaption padCaption(const MapScene& scene, const MapTransform& view);
/// How much of the pad's caption is drawn, 0 to 1: it fades out before a flying drone or its height reaches
/// it.
double padCaptionOpacity(const MapScene& scene, const MapTransform& view);
/// The height of a flying drone, below its glyph.
MapCaption heightCaption(const MapScene& scene, const MapTransform& view);

/// The visitor's label on this side of the visitor. Call only with a visitor.
MapCaption visitorCaption(const MapScene& scene, const MapTransform& view, LabelSide side);
/// The side for the visitor's label: the scene's as long as the label fits there into the map and meets
/// neither the drone nor its height nor a camera's caption, so that it does not change back and forth.
/// Otherwise the first side that is free; if none is, a camera's caption counts less than the drone.
LabelSide freeLabelSide(const MapScene& scene, const MapTransform& view);

/// The width of the buffer, in its corner.
MapCaption bufferCaption(const MapScene& scene, const MapTransform& view);

/// To the right of a point on a path. If the map ends too soon or the buffer's caption is there, above and
/// left of the point, clear of that caption.
MapCaption captionBeside(QPointF point, double offset, const QString& text, const QColor& color,
                         const MapScene& scene, const MapTransform& view);

} // namespace velmora
