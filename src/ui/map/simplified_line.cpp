#include "ui/map/simplified_line.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

double distanceTo(QPointF point, const QLineF& line) {
    const QPointF along = line.p2() - line.p1(), offset = point - line.p1();
    const double square = QPointF::dotProduct(along, along);
    const double share = square > 0 ? std::clamp(QPointF::dotProduct(offset, along) / square, 0.0, 1.0) : 0;
    const QPointF away = offset - share * along;
    return std::hypot(away.x(), away.y());
}

} // namespace

/// From each point that stays it goes on as long as it may, but not over too many points, to take linear
/// time.
QPolygonF simplified(const QPolygonF& line, double tolerance) {
    constexpr qsizetype longest = 32;
    if (line.size() < 3)
        return line;
    QPolygonF kept{line.front()};
    qsizetype from = 0;
    for (qsizetype to = 2; to < line.size(); ++to) {
        const QLineF shortcut(line[from], line[to]);
        const bool passes = to - from < longest &&
                            std::all_of(line.begin() + from + 1, line.begin() + to, [&](QPointF point) {
                                return distanceTo(point, shortcut) <= tolerance;
                            });
        if (passes)
            continue;
        from = to - 1;
        kept.append(line[from]);
    }
    kept.append(line.back());
    return kept;
}

} // namespace velmora
