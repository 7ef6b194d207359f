#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"
#include "ui/map/map_beside_rail.h"

namespace velmora {

class NoteRow;
class Telemetry;

/// The dark card of the live screen: the map, a row of notes below it, and the drone's telemetry.
class LiveCard : public MapPanel {
    Q_OBJECT

public:
    LiveCard(AppStore& store, QWidget* parent);

    void refresh();
    /// Updates the map only.
    void follow();
    /// Uses the lower row of notes, for low windows.
    void setLow(bool low);
    /// Arranges the telemetry in two rows if the card is narrow.
    QSize fitted(QSize room) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    AppStore& store_;
    NoteRow* note_;
    Telemetry* telemetry_;
    UiTimer everySecond_{std::chrono::seconds(1)}; ///< updates the age of an old picture
};

} // namespace velmora
