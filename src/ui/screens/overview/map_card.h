#pragma once

#include "store/app_store.h"
#include "ui/map/map_beside_rail.h"

namespace velmora {

/// "Your grounds, live": title, map and legend.
class MapCard : public MapPanel {
    Q_OBJECT

public:
    MapCard(AppStore& store, QWidget* parent);

    void refresh();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AppStore& store_;
    QString buffer_;
};

} // namespace velmora
