#pragma once

#include "ui/look/measures.h"
#include "ui/look/ui_clock.h"

#include <QColor>
#include <QWidget>

namespace velmora {

/// How a dot looks: plain for a steady fact, with a halo for something live.
struct DotLook {
    QColor color;
    bool halo = false;
    bool dark = false; ///< on a navy surface
    double pulse = -1; ///< 0 to 1 through the pulse; negative: still
    double diameter = Measure::statusDot;

    bool operator==(const DotLook&) const = default;
};

void paintStatusDot(QPainter& painter, QPointF center, const DotLook& look);

/// A dot whose halo pulses while a mission is under way.
class StatusDot : public QWidget {
    Q_OBJECT

public:
    StatusDot(const DotLook& look, QWidget* parent);

    void setLook(const DotLook& look);
    void setPulsing(bool pulsing);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void runOrRest();

    DotLook look_;
    bool pulsing_ = false;
    bool onScreen_ = false; ///< false also while the window is minimised
    UiTimer frames_;
};

} // namespace velmora
