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
    int indentOf(std::size_t cell) const;
    int marginsOf(std::size_t cell) const;
    double spareOf(std::size_t cell) const;
    std::array<double, 4> columnWidths() const;
    void arrange();

    AppStore& store_;
    ArtImage* picture_;
    int pictureRoom_ = 0;        ///< width of the picture with its gap, pixels; 0 if it is hidden
    std::array<Cell*, 4> cells_; ///< drone, cameras, wind, alerts
};

} // namespace velmora
