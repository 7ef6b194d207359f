#pragma once

#include "model/enums.h"

#include <QWidget>

#include <vector>

namespace velmora {

/// One step of a mission and the phases that belong to it.
struct TimelineStep {
    QString title;
    std::vector<Phase> phases;
};

/// The six steps of a mission: those done, the current one, those to come.
class PhaseTimeline : public QWidget {
    Q_OBJECT

public:
    explicit PhaseTimeline(QWidget* parent);

    void setPhase(Phase phase);
    /// Index of the step that contains the phase; absent while docked.
    std::optional<std::size_t> currentStep() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void describe();

    std::vector<TimelineStep> steps_;
    Phase phase_ = Phase::docked;
};

} // namespace velmora
