#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"
#include "ui/map/map_beside_rail.h"

namespace velmora {

class Telemetry;

/// The dark card of the live screen: the map, a note below it, and the drone's telemetry.
class LiveCard : public MapPanel {
    Q_OBJECT

public:
    LiveCard(AppStore& store, QWidget* parent);

    void refresh();
    /// Arranges the telemetry in two rows if the card is narrow.
    QSize fitted(QSize room) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintPictureAge(QPainter& painter) const;

    AppStore& store_;
    QString pictureAge_; ///< empty while the picture is fresh
    Telemetry* telemetry_;
    UiTimer everySecond_{std::chrono::seconds(1)}; ///< updates the age of an old picture
};

} // namespace velmora
