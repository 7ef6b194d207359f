#pragma once

#include "model/mission_evidence.h"

#include <QAbstractSlider>

#include <vector>

namespace velmora {

/// The time slider of a replay, in steps of half a second. It shows a mark for each notice and a gap where
/// the record has no points.
class ReplaySlider : public QAbstractSlider {
    Q_OBJECT

public:
    explicit ReplaySlider(QWidget* parent);

    void setRecord(const MissionRecord& record);
    /// Sets the position in seconds. Does not emit `moved`.
    void setPosition(double seconds);

signals:
    /// The owner moved the slider to this position.
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
