#pragma once

#include "ui/look/measures.h"
#include "ui/look/ui_clock.h"

#include <QColor>
#include <QWidget>

namespace velmora {

/// Appearance of a dot. A halo marks something live.
struct DotStyle {
    QColor color;
    bool halo = false;
    bool dark = false;                    ///< on a navy surface
    double pulse = -1;                    ///< progress of the pulse, 0 to 1; negative for none
    double diameter = Measure::statusDot; ///< pixels

    bool operator==(const DotStyle&) const = default;
};

void paintStatusDot(QPainter& painter, QPointF center, const DotStyle& style);

/// A dot whose halo can pulse. The animation stops while the dot is not visible.
class StatusDot : public QWidget {
    Q_OBJECT

public:
    StatusDot(const DotStyle& style, QWidget* parent);

    void setDotStyle(const DotStyle& style);
    void setPulsing(bool pulsing);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void updateAnimation();

    DotStyle style_;
    bool pulsing_ = false;
    bool onScreen_ = false; ///< false also while the window is minimised
    UiTimer frames_;
};

} // namespace velmora
