#pragma once

#include "store/app_store.h"
#include "ui/look/ui_clock.h"

#include <QWidget>

namespace velmora {

class SiteMap;
class Telemetry;
class Text;

/// The dark card of the live screen: the map, a note under it, the drone's figures.
class LiveCard : public QWidget {
    Q_OBJECT

public:
    LiveCard(AppStore& store, QWidget* parent);

    void refresh();
    /// The widest card, up to a width, whose map keeps the site's proportions within a height. `narrow` puts
    /// the figures into two rows.
    QSize fitted(int width, int height, bool narrow);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void paintPictureAge(QPainter& painter) const;

    AppStore& store_;
    SiteMap* map_;
    Text* note_;
    QWidget* line_;
    QString pictureAge_; ///< empty while the picture is fresh
    Telemetry* telemetry_;
    UiTimer everySecond_{std::chrono::seconds(1)}; ///< counts the age of an old picture
    bool narrow_ = false;
};

} // namespace velmora
