#pragma once

#include "ui/screens/screen.h"

namespace velmora {

/// Cameras: what sets off an alert, camera by camera.
class CamerasView : public Screen {
    Q_OBJECT

public:
    CamerasView(AppStore& store, QWidget* parent);

protected:
    void refresh() override;

private:
    class Grid;

    Grid* grid_;
};

} // namespace velmora
