#pragma once

#include "model/enums.h"

#include <QWidget>

#include <optional>
#include <vector>

class QPainter;

namespace velmora {

/// One step of a mission and its phases.
struct TimelineStep {
    QString title;
    std::vector<Phase> phases;
};

/// The six steps of a mission, each drawn as done, current or upcoming: in six rows, or in one line that
/// names only the current step.
class PhaseTimeline : public QWidget {
    Q_OBJECT

public:
    explicit PhaseTimeline(QWidget* parent);

    void setPhase(Phase phase);
    /// Switches between six rows (false) and one line (true).
    void setLine(bool line);
    /// Index of the step for the current phase; nullopt while docked.
    std::optional<std::size_t> currentStep() const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QPointF markerCenter(std::size_t step) const;
    double currentTitleWidth() const;
    void paintConnector(QPainter& painter, std::size_t step) const;
    void paintTitle(QPainter& painter, std::size_t step) const;
    void describe();

    std::vector<TimelineStep> steps_;
    Phase phase_ = Phase::docked;
    bool line_ = false;
};

} // namespace velmora
