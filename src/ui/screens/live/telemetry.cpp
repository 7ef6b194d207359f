#include "ui/screens/live/telemetry.h"

#include "model/flight_limits.h"
#include "ui/blocks/metric.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"

#include <QGridLayout>

namespace velmora {

namespace {

constexpr const char* absent = "—";

} // namespace

Telemetry::Telemetry(QWidget* parent) : QWidget(parent) {
    const auto add = [this](const QString& label) {
        return new Metric(label, Metric::Size::telemetry, true, this);
    };
    height_ = add(tr("Height"));
    speed_ = add(tr("Speed"));
    toVisitor_ = add(tr("To visitor"));
    fromPad_ = add(tr("From pad"));
    battery_ = add(tr("Battery"));
    wind_ = add(tr("Wind"));
    flightTime_ = add(tr("Flight time"));
    signal_ = add(tr("Signal"));
    grid_ = new QGridLayout(this);
    grid_->setHorizontalSpacing(0);
    arrange();
}

std::array<Metric*, 8> Telemetry::metrics() const {
    return {height_, speed_, toVisitor_, fromPad_, battery_, wind_, flightTime_, signal_};
}

void Telemetry::showNothing() {
    for (Metric* metric : metrics()) {
        metric->setValue(QString::fromUtf8(absent), {});
        metric->setOnPill(false);
    }
    update();
}

void Telemetry::setDimmed(bool dimmed) {
    for (Metric* metric : metrics())
        metric->setDimmed(dimmed);
}

void Telemetry::setState(const LiveState* known, const Settings& settings, Date now) {
    if (!known) {
        showNothing();
        return;
    }
    const LiveState& state = *known;
    const DroneState& drone = state.drone;
    height_->setValue(rounded(drone.altitude), tr("m"));
    speed_->setValue(oneDecimal(drone.speed), tr("m/s"));
    if (state.visitor)
        toVisitor_->setValue(rounded(distance(drone.pos, state.visitor->pos)), tr("m"));
    else
        toVisitor_->setValue(QString::fromUtf8(absent), {});
    fromPad_->setValue(rounded(distance(drone.pos, state.site.pad)), tr("m"));
    battery_->setValue(rounded(drone.battery), tr("%"));
    battery_->setOnPill(isBatteryLow(drone, settings));
    wind_->setValue(rounded(state.windKmh), tr("km/h"));
    wind_->setOnPill(isTooWindy(state, settings));
    flightTime_->setValue(
        state.missionStart ? clockTime(now - *state.missionStart) : QString::fromUtf8(absent), {});
    signal_->setValue(percent(drone.signal), tr("%"));
    if (battery_->isOnPill() || wind_->isOnPill() || paintedPills_)
        update();
}

void Telemetry::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintedPills_ = false;
    for (const Metric* metric : metrics()) {
        if (!metric->isOnPill())
            continue;
        paintedPills_ = true;
        fillRounded(painter, metric->pill().translated(metric->pos()), Measure::thumbnailRadius, SB::caution);
    }
}

void Telemetry::setNarrow(bool narrow) {
    if (narrow == narrow_)
        return;
    narrow_ = narrow;
    arrange();
}

int Telemetry::heightFor(bool narrow) {
    return narrow ? Measure::telemetryNarrow : Measure::telemetry;
}

/// Uses equal columns, so that a longer number does not move the others.
void Telemetry::arrange() {
    const QMargins margins = narrow_ ? Measure::telemetryNarrowMargins : Measure::telemetryMargins;
    grid_->setContentsMargins(margins);
    grid_->setVerticalSpacing(Measure::telemetryRowGap);
    const int columns = narrow_ ? 4 : 8;
    int index = 0;
    for (Metric* metric : metrics()) {
        grid_->addWidget(metric, index / columns, index % columns);
        ++index;
    }
    for (int column = 0; column < 8; ++column)
        grid_->setColumnStretch(column, column < columns ? 1 : 0);
    setFixedHeight(heightFor(narrow_));
}

} // namespace velmora
