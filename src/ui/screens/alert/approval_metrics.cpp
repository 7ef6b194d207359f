#include "ui/screens/alert/approval_metrics.h"

#include "model/flight_limits.h"
#include "model/truncated.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/metric.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QHBoxLayout>

#include <cmath>

namespace velmora {

namespace {

void warn(Metric& metric, bool isRisky, const QString& reason) {
    metric.setTint(isRisky ? std::optional(SB::caution) : std::nullopt);
    metric.setReason(isRisky ? reason : QString());
}

} // namespace

ApprovalMetrics::ApprovalMetrics(QWidget* parent) : QWidget(parent) {
    auto* row = bareLayout<QHBoxLayout>(this);
    const int* column = Measure::approvalMetrics;
    const auto add = [&](const QString& label) {
        auto* metric = new Metric(label, Metric::Size::regular, false, this);
        metric->setFixedWidth(*column++);
        row->addWidget(metric, 0, Qt::AlignTop);
        return metric;
    };
    match_ = add(tr("Match"));
    battery_ = add(tr("Battery"));
    wind_ = add(tr("Wind"));
    expires_ = add(tr("Expires in"));
}

void ApprovalMetrics::setState(const LiveState& state, const Settings& settings) {
    match_->setValue(percent(state.visitor ? state.visitor->confidence : 0), tr("% unknown"));
    battery_->setValue(rounded(state.drone.battery), tr("%"));
    wind_->setValue(rounded(state.windKmh), tr("km/h"));
    warn(*battery_, isBatteryLow(state.drone, settings), batteryReason(settings));
    warn(*wind_, isTooWindy(state, settings), windReason(settings));
}

void ApprovalMetrics::setTimeLeft(const std::optional<TimeLeft>& left, Freshness freshness) {
    expires_->setValue(left ? QString::number(truncated(std::ceil(left->seconds))) : QStringLiteral("—"),
                       left ? tr("s") : QString());
    if (freshness != Freshness::live)
        expires_->setTint(SB::muted);
    else
        expires_->setTint(left && left->isShort() ? SB::alert : SB::purple);
}

void ApprovalMetrics::setNarrow(bool narrow) {
    expires_->setFixedWidth(narrow ? Measure::enlargedLastMetric : Measure::approvalMetrics[3]);
}

} // namespace velmora
