#pragma once

#include "store/app_store.h"

#include <QWidget>

#include <array>

namespace velmora {

class ArtImage;

/// The bottom row of the overview: drone, cameras, wind and alert destinations.
class StatusStrip : public QWidget {
    Q_OBJECT

public:
    StatusStrip(AppStore& store, QWidget* parent);

    void refresh();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Cell;

    void showDrone(const LiveState& state);
    void showCameras(const LiveState& state);
    void showWind(const LiveState& state);
    void showAlerts();

    AppStore& store_;
    ArtImage* picture_;
    std::array<Cell*, 4> cells_; ///< drone, cameras, wind, alerts
};

} // namespace velmora
