#pragma once

#include "model/live_state.h"
#include "model/settings.h"

#include <QWidget>

#include <array>

class QGridLayout;

namespace velmora {

class Metric;

/// The drone's figures, in one row of eight or two rows of four.
class Telemetry : public QWidget {
    Q_OBJECT

public:
    explicit Telemetry(QWidget* parent);

    /// `known` is null while nothing is known; `now` is the moment that it shows.
    void setState(const LiveState* known, const Settings& settings, Date now);
    /// Old figures are dimmer.
    void setDimmed(bool dimmed);
    /// Narrow: two rows of four.
    void setNarrow(bool narrow);
    /// Height that it takes in the given form, pixels.
    static int heightFor(bool narrow);

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
};

} // namespace velmora
