#pragma once

#include "model/visit_patterns.h"

#include <QWidget>

class QBoxLayout;

namespace velmora {

class Hairline;
class Metric;

/// How the owner and the drone responded: the median times, the share of expired alerts and the least
/// distance from the boundary.
class PatternFacts : public QWidget {
    Q_OBJECT

public:
    explicit PatternFacts(QWidget* parent);

    void setPatterns(const VisitPatterns& patterns);
    /// In a column of the width of a chart's rail, or in a row.
    void setInColumn(bool column);

private:
    std::vector<Metric*> metrics_;
    std::array<Hairline*, 2> lines_{};
    QBoxLayout* layout_;
};

} // namespace velmora
