#include "ui/map/drone_glyph.h"

#include "ui/look/tokens.h"
#include "ui/map/blended_shapes.h"

#include <QPainter>

#include <cmath>

namespace velmora {

namespace {

constexpr double armEnd = 4.949747468305833; // 7 pixels at 45 degrees
constexpr QPointF armEnds[] = {{-armEnd, -armEnd}, {armEnd, -armEnd}, {-armEnd, armEnd}, {armEnd, armEnd}};
constexpr double rotorRadius = 3.4, rotorPulse = 0.4, rotorSpeed = 30; // pixels, pixels, radians a second

void drawBody(QPainter& painter, QPointF at, bool flying, double scale) {
    const double line = 1.2 * scale, radius = droneRadius * scale, reach = radius + line;
    blendShapes(painter, {at.x() - reach, at.y() - reach, 2 * reach, 2 * reach}, [&](QPainter& shapes) {
        shapes.setBrush(SB::faded(SB::navy, 0.55));
        shapes.setPen(QPen(SB::faded(SB::dTeal, flying ? 0.9 : 0.5), line));
        shapes.drawEllipse(at, radius, radius);
    });
}

void drawArms(QPainter& painter) {
    painter.setPen(QPen(SB::dTitle, 2, Qt::SolidLine, Qt::FlatCap));
    for (const QPointF& end : armEnds)
        painter.drawLine(QPointF(), end);
}

void drawRotors(QPainter& painter, bool flying, double t) {
    const double radius = rotorRadius + rotorPulse * std::sin(rotorSpeed * t * (flying ? 1 : 0));
    painter.setPen(QPen(SB::dTitle, 1.1));
    for (const QPointF& end : armEnds)
        painter.drawEllipse(end, radius, radius);
}

void drawNose(QPainter& painter) {
    painter.setPen(QPen(SB::dTeal, 1.4, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawPolyline(QPolygonF({QPointF(-2.5, -3), QPointF(0, -6.5), QPointF(2.5, -3)}));
}

} // namespace

void drawDrone(QPainter& painter, QPointF at, double heading, bool flying, double t, double scale) {
    drawBody(painter, at, flying, scale);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.translate(at);
    painter.rotate(heading + 90);
    painter.scale(scale, scale);
    drawArms(painter);
    drawRotors(painter, flying, t);
    drawNose(painter);
    painter.restore();
}

} // namespace velmora
