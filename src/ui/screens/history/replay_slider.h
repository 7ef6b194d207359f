#pragma once

#include "model/mission_evidence.h"

#include <QAbstractSlider>

#include <vector>

namespace velmora {

/// The replay's time from start to end, in steps of half a second, with a mark for each notice and a gap
/// where the record has no points.
class ReplaySlider : public QAbstractSlider {
    Q_OBJECT

public:
    explicit ReplaySlider(QWidget* parent);

    void setRecord(const MissionRecord& record);
    /// Seconds. Emits nothing.
    void setPosition(double seconds);

signals:
    /// The owner moved it. Seconds.
    void moved(double seconds);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    double xOf(double seconds) const;
    void moveTo(double x);

    double length_ = 0;
    double shown_ = 0;
    std::vector<double> marks_; ///< seconds
    std::vector<TimeSpan> gaps_;
};

} // namespace velmora
