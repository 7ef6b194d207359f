#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace velmora {

/// The line icons of the screens; each is resources/icons/NAME.svg, drawn on a grid of 20 units.
enum class Icon {
    overview,
    live,
    history,
    cameras,
    settings,
    minimise,
    maximise,
    restore,
    close,
    check,
    paperPlane,
    brokenLink,
    drone,
    chevron,
    exportRecord,
    deleteRecord,
    play,
    pause
};

/// Draws the icon in one colour, fitted into the rectangle.
void paintIcon(QPainter& painter, const QRectF& rect, Icon icon, const QColor& color);

} // namespace velmora
