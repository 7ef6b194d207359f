#pragma once

#include "model/visit_patterns.h"
#include "ui/charts/count_bars.h"

namespace velmora {

/// One figure over a set of visits, as it is shown.
struct PatternFigure {
    QString name, value, unit;
    QString reason; ///< what it counts
};

/// How the owner and the drone responded: the median times to the answer and to the visitor, the share of
/// expired alerts, and the least distance from the boundary.
std::vector<PatternFigure> patternFigures(const VisitPatterns& patterns);

/// How many visits each camera saw, the most first. The id is the camera's name as it is shown.
std::vector<CountRow> cameraRows(const VisitPatterns& patterns);
/// How many visits ended in each way. The id is the number of the outcome.
std::vector<CountRow> outcomeRows(const VisitPatterns& patterns);

} // namespace velmora
