#include "ui/screens/history/path_thumbnail.h"

#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr double inset = 4;        // pixels
constexpr double minimumSpan = 20; // metres; shorter paths do not fill the thumbnail
constexpr std::size_t maximumPoints = 80;

/// Every n-th point of the path; more than `maximumPoints` would not be visible at this size.
QPolygonF thinned(const std::vector<P>& path) {
    QPolygonF line;
    const std::size_t step = std::max<std::size_t>(path.size() / maximumPoints, 1);
    for (std::size_t i = 0; i < path.size(); i += step)
        line.append({path[i].x, path[i].y});
    return line;
}

} // namespace

void paintPathThumbnail(QPainter& painter, const QRectF& rect, const MissionRecord& record) {
    fillRounded(painter, rect, Measure::badgeRadius, SB::navy);
    const QPolygonF visitor = thinned(record.visitorPath), drone = thinned(record.dronePath);
    const QRectF covered = visitor.boundingRect() | drone.boundingRect();
    const double span =
        std::max({covered.width() / rect.width() * rect.height(), covered.height(), minimumSpan});
    const double scale = (rect.height() - 2 * inset) / span;
    QTransform view;
    view.translate(rect.center().x(), rect.center().y());
    view.scale(scale, scale);
    view.translate(-covered.center().x(), -covered.center().y());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(SB::lilac, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(view.map(visitor));
    painter.setPen(QPen(SB::dTeal, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(view.map(drone));
}

} // namespace velmora
