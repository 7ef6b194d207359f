#pragma once

#include "model/mission_evidence.h"
#include "ui/look/type.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace velmora {

/// How far inside the boundary the drone was over a visit.
struct BoundaryChart {
    BoundaryProfile profile;
    double buffer = 0; ///< metres
    Date start;        ///< the chart begins here, as the replay does
    double length = 0; ///< seconds

    /// Horizontal position of a moment after the start, as a share of the chart's width.
    double shareOf(double seconds) const;
};

/// nullopt if the drone did not fly.
std::optional<BoundaryChart> boundaryChartOf(const MissionRecord& record, const Site& site, double buffer);

/// "The drone stayed at least 10.6 m inside the boundary and was 0 s in the 5 m buffer."
QString boundarySentence(const BoundaryEvidence& evidence, double buffer);

/// Paints the buffer, the line and the least distance into `plot`, and the times of start and end below it.
void paintBoundaryChart(QPainter& painter, const QRectF& plot, const BoundaryChart& chart,
                        const TextStyle& times);

/// The chart below its caption, with a line at the moment of the replay.
class BoundaryChartView : public QWidget {
    Q_OBJECT

public:
    explicit BoundaryChartView(QWidget* parent);

    void setChart(BoundaryChart chart);
    /// Marks this moment, in seconds after the start; nullopt for none.
    void setMoment(const std::optional<double>& seconds);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF plot() const;

    BoundaryChart chart_;
    std::optional<double> moment_;
    QPixmap picture_; ///< of everything but the moment
    bool stale_ = true;
};

} // namespace velmora
