#pragma once

#include "ui/screens/screen.h"

#include <vector>

class QLayout;

namespace velmora {

class CameraCard;
class EmptyState;

/// Cameras: what triggers an alert at each camera.
class CamerasView : public Screen {
    Q_OBJECT

public:
    CamerasView(AppStore& store, QWidget* parent);

protected:
    void refresh() override;

private:
    void setCameras(const std::vector<CameraInfo>& cameras);

    EmptyState* empty_; ///< shown instead of the cards if there are none
    QWidget* cardArea_; ///< holds the grid
    QLayout* grid_;
    std::vector<CameraCard*> cards_;
};

} // namespace velmora
