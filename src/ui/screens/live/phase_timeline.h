#pragma once

#include "model/enums.h"

#include <QWidget>

#include <vector>

namespace velmora {

/// One step of a mission and its phases.
struct TimelineStep {
    QString title;
    std::vector<Phase> phases;
};

/// The six steps of a mission, each drawn as done, current or upcoming.
class PhaseTimeline : public QWidget {
    Q_OBJECT

public:
    explicit PhaseTimeline(QWidget* parent);

    void setPhase(Phase phase);
    /// Index of the step for the current phase; nullopt while docked.
    std::optional<std::size_t> currentStep() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void describe();

    std::vector<TimelineStep> steps_;
    Phase phase_ = Phase::docked;
};

} // namespace velmora
