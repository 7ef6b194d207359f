#pragma once

#include "model/freshness.h"
#include "ui/screens/time_left.h"

#include <QWidget>

namespace velmora {

class Metric;

/// The four values of the approval card. A low battery and too much wind are marked, with the reason.
class ApprovalMetrics : public QWidget {
    Q_OBJECT

public:
    explicit ApprovalMetrics(QWidget* parent);

    void setState(const LiveState& state, const Settings& settings);
    /// nullopt: unknown.
    void setTimeLeft(const std::optional<TimeLeft>& left, Freshness freshness);
    /// Narrows the last column.
    void setNarrow(bool narrow);

private:
    Metric* match_;
    Metric* battery_;
    Metric* wind_;
    Metric* expires_;
};

} // namespace velmora
