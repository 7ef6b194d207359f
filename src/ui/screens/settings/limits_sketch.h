#pragma once

#include "ui/look/text.h"
#include "ui/map/map_scene.h"

#include <QPixmap>
#include <QWidget>

namespace velmora {

/// A small map that shows what the flight limits mean: the buffer, and the drone that follows a sample
/// visitor. Below it the same in words.
class LimitsSketch : public QWidget {
    Q_OBJECT

public:
    /// Shows the demo's grounds until setSite() is called.
    explicit LimitsSketch(QWidget* parent);

    void setSite(const Site& site);
    void setLimits(const Settings& settings);
    /// Emphasises the value of the limit that the owner is changing; null for none.
    void setChanging(double Settings::*limit);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    using Line = std::vector<TextRun>;

    void placeSample();
    void paintMap(QPainter& painter);
    std::vector<Line> words() const;
    TextRun value(double Settings::*limit) const;

    MapScene scene_; ///< a flight that follows the sample visitor
    double Settings::*changing_ = nullptr;
    QPixmap plan_; ///< cached, because the plan is a large picture
};

} // namespace velmora
