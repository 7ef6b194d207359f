#pragma once

#include "model/visit_patterns.h"

#include <QString>

namespace velmora {

/// One figure over a set of visits, as it is shown.
struct PatternFigure {
    QString name, value, unit;
    QString reason; ///< what it counts
};

/// How the owner and the drone responded: the median times to the answer and to the visitor, the share of
/// expired alerts, and the least distance from the boundary.
std::vector<PatternFigure> patternFigures(const VisitPatterns& patterns);

} // namespace velmora
