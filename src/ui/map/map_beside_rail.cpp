#include "ui/map/map_beside_rail.h"

#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/map/site_map.h"

#include <QScrollArea>
#include <QStyle>

#include <algorithm>

namespace velmora {

namespace {

/// Keeps a map at the largest size with the site's proportions, at the left or centred.
class MapArea : public ItemLayout {
public:
    MapArea(SiteMap* map, Qt::Alignment alignment, const QColor& panel)
        : map_(map), alignment_(alignment), panel_(panel) {
        addWidget(map);
    }

    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSize() const override { return {0, 0}; }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal | Qt::Vertical; }
    void setGeometry(const QRect& rect) override {
        QLayout::setGeometry(rect);
        map_->setGeometry(QStyle::alignedRect(Qt::LeftToRight, alignment_, map_->fitted(rect.size()), rect));
        map_->setCorners(corners(map_->pos() - rect.topLeft()));
    }

private:
    /// Around a map that begins at the panel's corner is the page. Where the panel's own round corners begin
    /// inside the map's, no single colour is.
    std::optional<CornerColors> corners(QPoint offset) const {
        if (panel_ == SB::page || (offset.isNull() && map_->width() == geometry().width()))
            return CornerColors{SB::page, panel_};
        const bool isInside = std::max(offset.x(), offset.y()) >= Measure::cardRadius;
        return isInside ? std::optional(CornerColors{panel_, panel_}) : std::nullopt;
    }

    SiteMap* map_;
    Qt::Alignment alignment_;
    QColor panel_;
};

} // namespace

MapPanel::MapPanel(QSize minimum, QWidget* parent)
    : QWidget(parent), map_(new SiteMap(this)), minimum_(minimum) {}

QLayout* MapPanel::mapArea(Qt::Alignment alignment, const QColor& panel) {
    return new MapArea(map_, alignment, panel);
}

QSize MapPanel::minimumSizeHint() const {
    return {minimum_.width(), minimum_.height() + rowsHeight()};
}

QSize MapPanel::fitted(QSize room) {
    return fitted(room, rowsHeight());
}

QSize MapPanel::fitted(QSize room, int rows) const {
    const QSize map = map_->fitted({room.width(), std::max(room.height() - rows, minimum_.height())});
    return {std::max(map.width(), std::min(minimum_.width(), room.width())), map.height() + rows};
}

MapBesideRail::MapBesideRail(MapPanel* panel, QWidget* rail, int railMinimum)
    : panel_(panel), rail_(rail), railMinimum_(railMinimum) {
    addWidget(panel);
    addWidget(rail);
}

QSize MapBesideRail::minimumSize() const {
    const bool railGivesWay = rail_->sizePolicy().verticalPolicy() == QSizePolicy::Ignored;
    const int rail = railGivesWay ? 0 : rail_->layout()->minimumHeightForWidth(rail_->width());
    return {0, std::max(panel_->minimumSizeHint().height(), rail)};
}

/// How much of the page is out of sight when it is scrolled to its top.
int MapBesideRail::hiddenHeight() const {
    for (const QWidget* widget = parentWidget(); widget; widget = widget->parentWidget())
        if (const auto* area = qobject_cast<const QScrollArea*>(widget))
            return std::max(area->widget()->height() - area->viewport()->height(), 0);
    return 0;
}

void MapBesideRail::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const QRect room = rect.marginsRemoved(contentsMargins());
    const bool wide = parentWidget()->window()->width() >= Measure::wideWindow;
    const int rail = wide ? Measure::railWide : railMinimum_;
    const int widest = std::max(room.width() - Measure::gutter - rail, 0);
    const QSize panel = panel_->fitted({widest, room.height() - hiddenHeight()});
    panel_->setGeometry({room.topLeft(), panel});
    const int left = panel.width() + Measure::gutter;
    rail_->setGeometry(room.left() + left, room.top(), room.width() - left, room.height());
    if (const int minimum = minimumSize().height(); minimum != shownMinimum_) {
        shownMinimum_ = minimum;
        update();
    }
}

} // namespace velmora
