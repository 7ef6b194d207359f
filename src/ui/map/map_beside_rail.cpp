#include "ui/map/map_beside_rail.h"

#include "ui/look/measures.h"
#include "ui/map/site_map.h"

#include <algorithm>

namespace velmora {

MapPanel::MapPanel(QSize mapMinimum, QWidget* parent)
    : QWidget(parent), map_(new SiteMap(this)), mapMinimum_(mapMinimum) {}

QSize MapPanel::minimumSizeHint() const {
    return {mapMinimum_.width(), mapMinimum_.height() + rowsHeight()};
}

QSize MapPanel::fitted(QSize room) {
    return fitted(room, rowsHeight());
}

QSize MapPanel::fitted(QSize room, int rows) const {
    const QSize forMap(room.width(), std::max(room.height() - rows, mapMinimum_.height()));
    return map_->fitted(forMap, mapMinimum_.width()) + QSize(0, rows);
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

void MapBesideRail::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    const QRect room = rect.marginsRemoved(contentsMargins());
    const int widest = std::max(room.width() - Measure::gutter - railMinimum_, 0);
    const QSize panel = panel_->fitted({widest, room.height()});
    panel_->setGeometry({room.topLeft(), panel});
    const int left = panel.width() + Measure::gutter;
    rail_->setGeometry(room.left() + left, room.top(), std::min(room.width() - left, Measure::railMaximum),
                       room.height());
    if (const int minimum = minimumSize().height(); minimum != shownMinimum_) {
        shownMinimum_ = minimum;
        update();
    }
}

} // namespace velmora
