#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"
#include "ui/map/map_beside_rail.h"

namespace velmora {

class Telemetry;

/// The dark card of the live screen: the map, a note under it, the drone's figures.
class LiveCard : public MapPanel {
    Q_OBJECT

public:
    LiveCard(AppStore& store, QWidget* parent);

    void refresh();
    /// Puts the figures into two rows where the card gets narrow.
    QSize fitted(QSize room) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintPictureAge(QPainter& painter) const;

    AppStore& store_;
    QString pictureAge_; ///< empty while the picture is fresh
    Telemetry* telemetry_;
    UiTimer everySecond_{std::chrono::seconds(1)}; ///< counts the age of an old picture
};

} // namespace velmora
