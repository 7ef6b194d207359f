#include "ui/charts/boundary_chart.h"

#include "language/language.h"
#include "model/truncated.h"
#include "ui/blocks/accessibility.h"
#include "ui/charts/chart_measures.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/map/simplified_line.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double lineWidth = 1.6, ring = 8; // pixels, as everything here
constexpr double filled = 0.1;              // opacity below the line, and of the buffer
constexpr double highest = 0.9;             // of the chart's height, for the greatest distance
constexpr double farthest = 1e6;            // metres; more only in a damaged record
constexpr double labelIndent = 6, valueGap = 8, valueDrop = 8;

/// Where distances and moments lie in the chart. The axis begins at the boundary, or at the least distance if
/// the drone was outside.
class Scale {
public:
    Scale(const QRectF& plot, const BoundaryChart& chart) : plot_(plot), chart_(chart) {
        double most = chart.buffer;
        for (const auto& point : chart.profile.points)
            most = std::max(most, bounded(point.inside));
        least_ = std::min(bounded(chart.profile.evidence.leastDistance), 0.0);
        perMetre_ = plot.height() * highest / std::max(most - least_, 1.0);
        if (least_ < 0)
            least_ -= plot.height() * (1 - highest) / 2 / perMetre_;
    }

    double x(double seconds) const { return plot_.left() + chart_.shareOf(seconds) * plot_.width(); }
    double y(double inside) const { return plot_.bottom() - (bounded(inside) - least_) * perMetre_; }

private:
    static double bounded(double inside) { return std::clamp(inside, -farthest, farthest); }

    const QRectF& plot_;
    const BoundaryChart& chart_;
    double least_ = 0;
    double perMetre_ = 1;
};

/// The line begins at the chart's left edge, because the drone was on its pad until it took off.
QPolygonF lineOf(const QRectF& plot, const BoundaryChart& chart, const Scale& scale) {
    const auto& points = chart.profile.points;
    QPolygonF line{{plot.left(), scale.y(points.front().inside)}};
    for (const auto& point : points)
        line.append({scale.x(point.seconds), scale.y(point.inside)});
    line.append({plot.right(), line.back().y()});
    constexpr double tolerance = 0.15;
    return simplified(line, tolerance);
}

/// The area between the line and the boundary; what lies outside has another colour.
void paintArea(QPainter& painter, const QRectF& plot, const QPolygonF& line, double boundary) {
    QPolygonF area = line;
    area << QPointF(plot.right(), boundary) << QPointF(plot.left(), boundary);
    const auto fill = [&](const QRectF& part, const QColor& color) {
        painter.save();
        painter.setClipRect(part);
        painter.setPen(Qt::NoPen);
        painter.setBrush(SB::faded(color, filled));
        painter.drawPolygon(area);
        painter.restore();
    };
    fill({plot.topLeft(), QPointF(plot.right(), boundary)}, SB::teal);
    if (boundary < plot.bottom())
        fill({QPointF(plot.left(), boundary), plot.bottomRight()}, SB::alert);
}

void paintBuffer(QPainter& painter, const QRectF& plot, double edge, double boundary) {
    painter.fillRect(QRectF(plot.left(), edge, plot.width(), boundary - edge), SB::faded(SB::purple, filled));
    QPen dashed(SB::faded(SB::purple, 0.5), 1, Qt::SolidLine, Qt::FlatCap);
    dashed.setDashPattern({3, 3});
    painter.setPen(dashed);
    painter.drawLine(QPointF(plot.left(), edge), QPointF(plot.right(), edge));
    painter.setPen(QPen(SB::rule, 1, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(plot.left(), boundary), QPointF(plot.right(), boundary));
}

QString metres(double inside) {
    return Words::tr("%1 m").arg(oneDecimal(inside));
}

/// Beside the ring and a little below it, because the line rises on both sides; in the buffer rather than on
/// its edge, and above the ring where the chart ends.
QRectF valueRect(const QRectF& plot, QPointF least, const QString& value, double edge) {
    QRectF rect(0, 0, textWidth(value, Type::legendStrong), Type::legendStrong.line);
    const bool left = least.x() - valueGap - rect.width() >= plot.left();
    rect.moveLeft(left ? least.x() - valueGap - rect.width() : least.x() + valueGap);
    rect.moveTop(least.y() + valueDrop - rect.height() / 2);
    const bool crossesEdge = rect.top() < edge && edge < rect.bottom();
    if (crossesEdge && edge + rect.height() <= plot.bottom())
        rect.moveTop(edge);
    if (rect.bottom() > plot.bottom())
        rect.moveBottom(plot.bottom());
    return rect;
}

void paintTimes(QPainter& painter, const QRectF& plot, const BoundaryChart& chart, const TextStyle& style) {
    const QRectF row(plot.left(), plot.bottom() + Measure::gap4, plot.width(), style.line);
    drawText(painter, row, timeOfDay(chart.start), style, SB::muted, Qt::AlignLeft);
    drawText(painter, row, timeOfDay(chart.start + Seconds{chart.length}), style, SB::muted, Qt::AlignRight);
}

/// In the buffer if it is high enough, else above it; at the right if the least distance is at the left.
void paintBufferLabel(QPainter& painter, const QRectF& plot, double edge, double boundary,
                      const QString& label, const QRectF& value) {
    constexpr double least = 10; // the height of the letters
    const bool fits = boundary - edge >= least;
    QRectF rect(plot.left() + labelIndent, fits ? edge : edge - Type::inset.line,
                textWidth(label, Type::inset), fits ? boundary - edge : Type::inset.line);
    if (rect.intersects(value))
        rect.moveRight(plot.right() - labelIndent);
    drawText(painter, rect, label, Type::inset, SB::purple, Qt::AlignVCenter);
}

QString descriptionOf(const BoundaryChart& chart) {
    const BoundaryEvidence& evidence = chart.profile.evidence;
    const QString at = timeOfDay(chart.start + Seconds{evidence.leastAt});
    return boundarySentence(evidence, chart.buffer) + ' ' +
           Words::tr("It was nearest to the boundary at %1.").arg(at);
}

constexpr int captionRow = static_cast<int>(Type::caption.line) + Measure::gap8;
constexpr int timesRow = Measure::gap4 + static_cast<int>(Type::legend.line);
constexpr int plotTop = captionRow;
constexpr int viewHeight = captionRow + ChartMeasure::boundaryChart + timesRow;

} // namespace

double BoundaryChart::shareOf(double seconds) const {
    return length > 0 ? std::clamp(seconds / length, 0.0, 1.0) : 0;
}

std::optional<BoundaryChart> boundaryChartOf(const MissionRecord& record, const Site& site, double buffer) {
    auto profile = boundaryProfile(record, site, buffer);
    if (!profile)
        return std::nullopt;
    return BoundaryChart{std::move(*profile), buffer, record.start, durationOf(record)};
}

QString boundarySentence(const BoundaryEvidence& evidence, double buffer) {
    const QString inBuffer = duration(Seconds{evidence.secondsInBuffer});
    return evidence.leastDistance < 0
               ? Words::tr("The drone was %1 m outside the boundary at the furthest and was %2 in the %3 m "
                           "buffer.")
                     .arg(oneDecimal(-evidence.leastDistance), inBuffer, rounded(buffer))
               : Words::tr(
                     "The drone stayed at least %1 m inside the boundary and was %2 in the %3 m buffer.")
                     .arg(oneDecimal(evidence.leastDistance), inBuffer, rounded(buffer));
}

void paintBoundaryChart(QPainter& painter, const QRectF& plot, const BoundaryChart& chart,
                        const TextStyle& times) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const Scale scale(plot, chart);
    const BoundaryEvidence& evidence = chart.profile.evidence;
    const double boundary = scale.y(0), edge = scale.y(chart.buffer);
    const QPolygonF line = lineOf(plot, chart, scale);
    paintArea(painter, plot, line, boundary);
    paintBuffer(painter, plot, edge, boundary);
    painter.setPen(QPen(SB::teal, lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(line);
    const QPointF least(
        std::clamp(scale.x(evidence.leastAt), plot.left() + ring / 2, plot.right() - ring / 2),
        scale.y(evidence.leastDistance));
    fillDisc(painter, least, ring, SB::page, SB::teal, lineWidth);
    const QString value = metres(evidence.leastDistance);
    const QRectF beside = valueRect(plot, least, value, edge);
    drawText(painter, beside, value, Type::legendStrong, SB::ink, Qt::AlignVCenter);
    paintBufferLabel(painter, plot, edge, boundary, Words::tr("%1 m buffer").arg(rounded(chart.buffer)),
                     beside);
    paintTimes(painter, plot, chart, times);
    painter.restore();
}

BoundaryChartView::BoundaryChartView(QWidget* parent) : QWidget(parent) {
    declareRole(this, QAccessible::Graphic);
    setFixedHeight(viewHeight);
}

void BoundaryChartView::setChart(BoundaryChart chart) {
    chart_ = std::move(chart);
    setAccessibleName(descriptionOf(chart_));
    stale_ = true;
    update();
}

void BoundaryChartView::setMoment(const std::optional<double>& seconds) {
    if (seconds == moment_)
        return;
    moment_ = seconds;
    update();
}

QRectF BoundaryChartView::plot() const {
    return {0, plotTop, static_cast<double>(width()), ChartMeasure::boundaryChart};
}

void BoundaryChartView::paintEvent(QPaintEvent*) {
    if (chart_.profile.points.empty())
        return;
    const QSize pixels = size() * devicePixelRatioF();
    if (stale_ || picture_.size() != pixels) {
        picture_ = QPixmap(pixels);
        picture_.setDevicePixelRatio(devicePixelRatioF());
        picture_.fill(Qt::transparent);
        QPainter painter(&picture_);
        drawText(painter, QRectF(0, 0, width(), Type::caption.line), tr("Metres inside your boundary"),
                 Type::caption, SB::muted, Qt::AlignLeft);
        paintBoundaryChart(painter, plot(), chart_, Type::legend);
        stale_ = false;
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture_);
    if (moment_)
        paintHairline(painter,
                      {static_cast<int>(std::lround(chart_.shareOf(*moment_) * (width() - 1))), plotTop, 1,
                       ChartMeasure::boundaryChart},
                      SB::ink);
}

} // namespace velmora
