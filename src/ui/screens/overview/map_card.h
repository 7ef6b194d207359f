#pragma once

#include "store/app_store.h"
#include "ui/map/map_beside_rail.h"
#include "ui/map/site_map.h"

namespace velmora {

/// "Your grounds, live": title, map and legend.
class MapCard : public MapPanel {
    Q_OBJECT

public:
    MapCard(AppStore& store, QWidget* parent);

    void refresh();
    QSize fitted(QSize room) override;
    /// The y of the map's bottom edge.
    int mapBottom() const { return map_->geometry().bottom() + 1; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AppStore& store_;
    QString buffer_;
};

} // namespace velmora
