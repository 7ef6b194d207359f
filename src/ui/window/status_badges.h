#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class Badge;
class StatusDot;
class Text;

/// The drone's status in the sidebar: phase and battery.
class DroneBadge : public QWidget {
    Q_OBJECT

public:
    DroneBadge(AppStore& store, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();

    AppStore& store_;
    QString phase_;
    QString battery_;
    double charge_ = 0; ///< 0 to 1
    bool low_ = false;
};

/// The link's status in the sidebar: dot, text, and a badge in demo mode.
class LinkBadge : public QWidget {
    Q_OBJECT

public:
    LinkBadge(AppStore& store, QWidget* parent);

private:
    void refresh();

    AppStore& store_;
    StatusDot* dot_;
    Text* text_;
    Badge* demo_;
};

} // namespace velmora
