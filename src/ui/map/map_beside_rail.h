#pragma once

#include "ui/blocks/layouts.h"

#include <QWidget>

namespace velmora {

class SiteMap;

/// A panel with a map, and rows of a fixed height above or below it. The map always has the site's
/// proportions; the panel is wider only if its rows need that.
class MapPanel : public QWidget {
    Q_OBJECT

public:
    /// The largest size within the room in which the map keeps the site's proportions. In a room that is too
    /// low the map has its minimum height.
    virtual QSize fitted(QSize room);
    QSize minimumSizeHint() const override;

protected:
    /// `minimum` holds the width that the rows need and the map's minimum height. The subclass lays out
    /// mapArea() and the rows.
    MapPanel(QSize minimum, QWidget* parent);

    /// A new layout item that keeps the map at its size where the panel is wider. `panel` is the colour of
    /// the panel, whose upper corners are those of a map that fills it.
    QLayout* mapArea(Qt::Alignment alignment, const QColor& panel);
    /// The panel's size if all rows together have this height.
    QSize fitted(QSize room, int rows) const;
    /// The height of all rows.
    int rowsHeight() const { return layout()->minimumSize().height(); }

    SiteMap* map_;

private:
    QSize minimum_; ///< wide grounds make a lower map
};

/// A panel as large as its map allows, and right of it a rail over the full height. If the height is not
/// enough, the layout uses the bottom margin, and cuts off a rail whose vertical size policy is `Ignored`.
/// A rail that is higher than the page shows makes the page scroll, but not the panel higher.
class MapBesideRail : public ItemLayout {
public:
    /// `railMinimum` is the width that the panel leaves the rail, except in wide windows.
    MapBesideRail(MapPanel* panel, QWidget* rail, int railMinimum);

    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    int hiddenHeight() const;

    MapPanel* panel_;
    QWidget* rail_;
    int railMinimum_;
    int shownMinimum_ = 0; ///< minimum height at the rail's present width
};

} // namespace velmora
