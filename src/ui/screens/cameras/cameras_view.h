#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class Page;

/// Cameras: what sets off an alert, camera by camera.
class CamerasView : public QWidget {
    Q_OBJECT

public:
    CamerasView(AppStore& store, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class Grid;

    void refresh();

    AppStore& store_;
    Grid* grid_;
    Page* page_;
};

} // namespace velmora
