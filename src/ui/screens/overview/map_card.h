#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class SiteMap;

/// "Your grounds, live": the map under its title, a legend below it.
class MapCard : public QWidget {
    Q_OBJECT

public:
    MapCard(AppStore& store, QWidget* parent);

    void refresh();
    /// The widest card, up to a width, whose map keeps the site's proportions within a height.
    QSize fitted(int width, int height) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    AppStore& store_;
    SiteMap* map_;
    QString buffer_;
};

} // namespace velmora
