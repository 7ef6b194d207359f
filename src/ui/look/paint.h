#pragma once

#include "ui/look/icons.h"

#include <QPainter>

namespace velmora {

/// Fills a rectangle with round corners, antialiased. Leaves the painter without a pen.
void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill);
/// The same with a border of one pixel inside the edge.
void fillRounded(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill,
                 const QColor& border);

/// Whether the area lies in the rectangle and clear of its round corners.
bool liesInside(const QRect& area, const QRect& rect, double radius);

/// Fills a circle, antialiased. Leaves the painter without a pen.
void fillDisc(QPainter& painter, QPointF center, double diameter, const QBrush& fill);
/// The same with a border inside the edge, `width` pixels wide.
void fillDisc(QPainter& painter, QPointF center, double diameter, const QBrush& fill, const QColor& border,
              double width = 1);

/// A soft shadow: its distance below and its blur in pixels, and its opacity.
struct Shadow {
    double offset;
    double blur;
    double opacity;
};
/// Draws the shadow around a rectangle with round corners.
void paintShadow(QPainter& painter, const QRectF& rect, double radius, const Shadow& shadow);

/// Draws the icon in one colour into a square around this point.
void paintIcon(QPainter& painter, QPointF center, double side, Icon icon, const QColor& color);

/// Fills a 1 px line snapped to whole device pixels, so that it is equally thick at fractional scales.
void paintHairline(QPainter& painter, const QRect& line, const QColor& color);

} // namespace velmora
