#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class ActivityList;
class AnswerGuard;
class Fold;
class LastDays;
class MapCard;
class NowGroup;
class VisitOffers;

/// The column to the right of the map: what happens now, the latest visits as far as the map reaches, the
/// demo visits, and in wide windows the last 30 days.
class OverviewRail : public QWidget {
    Q_OBJECT

public:
    /// `map` lies beside the rail and has the same top.
    OverviewRail(AppStore& store, AnswerGuard& guard, const MapCard& map, QWidget* parent);

    void refresh();
    /// Whether the group "Now" is open.
    bool showsNow() const;
    /// Uses the measures of low windows.
    void setLow(bool low);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitRows();
    void fitLastDays();

    const MapCard& map_;
    bool low_ = false;
    NowGroup* now_;
    Fold* nowFold_;
    ActivityList* activity_;
    VisitOffers* offers_;
    LastDays* lastDays_;
};

} // namespace velmora
