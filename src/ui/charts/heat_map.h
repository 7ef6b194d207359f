#pragma once

#include "model/walk_map.h"
#include "ui/map/map_scene.h"

#include <QPixmap>
#include <QWidget>

namespace velmora {

/// Where visitors walked, on the site map. The owner chooses a place by a click, or with the arrow keys and
/// Enter.
class HeatMap : public QWidget {
    Q_OBJECT

public:
    explicit HeatMap(QWidget* parent);

    /// The site and its buffer.
    void setGrounds(const LiveState& state, const Settings& settings);
    void setHeat(WalkHeat heat);

    bool hasHeightForWidth() const override { return true; }
    /// The height at this width that keeps the site's proportions.
    int heightForWidth(int width) const override;

signals:
    /// The owner chose a place of the site, in metres.
    void placeChosen(velmora::P place);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    MapTransform view() const { return {size(), scene_.state.site.size}; }
    std::optional<P> placeAt(QPointF point) const;
    void mark(const std::optional<P>& place);
    void moveMark(P by);
    void redraw();

    MapScene scene_;
    WalkHeat heat_;
    QPixmap picture_; ///< null while out of date
    std::optional<P> marked_;
    bool pressed_ = false;
};

/// What the map shows, and its colours from one visit to the greatest number.
class HeatKey : public QWidget {
    Q_OBJECT

public:
    explicit HeatKey(QWidget* parent);

    void setMostVisits(int visits);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int mostVisits_ = -1;
};

} // namespace velmora
