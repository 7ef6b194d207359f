#pragma once

#include "model/live_state.h"
#include "model/settings.h"

#include <QWidget>

#include <array>

class QGridLayout;

namespace velmora {

class Metric;

/// The drone's telemetry: eight metrics in one row or in two rows of four. A low battery and a wind over the
/// limit stand on a pill.
class Telemetry : public QWidget {
    Q_OBJECT

public:
    explicit Telemetry(QWidget* parent);

    /// `known` is null while no state is known; `now` is used for the flight time.
    void setState(const LiveState* known, const Settings& settings, Date now);
    /// Dims the values, for a state that may be out of date.
    void setDimmed(bool dimmed);
    /// Switches between one row (false) and two rows of four (true).
    void setNarrow(bool narrow);
    /// Height of one row or, if `narrow`, two rows, in pixels.
    static int heightFor(bool narrow);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showNothing();
    void arrange();

    std::array<Metric*, 8> metrics() const;

    QGridLayout* grid_;
    Metric* height_;
    Metric* speed_;
    Metric* toVisitor_;
    Metric* fromPad_;
    Metric* battery_;
    Metric* wind_;
    Metric* flightTime_;
    Metric* signal_;
    bool narrow_ = false;
    bool paintedPills_ = false;
};

} // namespace velmora
