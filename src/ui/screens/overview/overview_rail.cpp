#include "ui/screens/overview/overview_rail.h"

#include "ui/blocks/fold.h"
#include "ui/blocks/layouts.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/screens/overview/activity_list.h"
#include "ui/screens/overview/last_days.h"
#include "ui/screens/overview/map_card.h"
#include "ui/screens/overview/now_group.h"
#include "ui/screens/overview/overview_parts.h"

#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

OverviewRail::OverviewRail(AppStore& store, AnswerGuard& guard, const MapCard& map, QWidget* parent)
    : QWidget(parent),
      map_(map),
      now_(new NowGroup(store, guard, this)),
      nowFold_(new Fold(now_, 0, Motion::banner, this)),
      activity_(new ActivityList(store, this)),
      offers_(new VisitOffers(store, this)),
      lastDays_(new LastDays(store, this)) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addWidget(nowFold_);
    column->addWidget(activity_);
    column->addSpacing(Measure::gap28);
    column->addWidget(offers_);
    column->addWidget(lastDays_);
    column->addStretch(1);
}

void OverviewRail::refresh() {
    now_->refresh();
    nowFold_->setOpen(now_->isDue());
    activity_->refresh();
    offers_->refresh();
    fitRows();
    lastDays_->refresh();
}

bool OverviewRail::showsNow() const {
    return nowFold_->isOpen();
}

void OverviewRail::setLow(bool low) {
    if (low == low_)
        return;
    low_ = low;
    now_->setLow(low);
    fitRows();
}

/// The group "Now" opens and closes in steps, each of which requests a layout.
bool OverviewRail::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest)
        fitRows();
    return handled;
}

void OverviewRail::resizeEvent(QResizeEvent*) {
    fitRows();
}

void OverviewRail::fitRows() {
    const int now = nowFold_->isHidden() ? 0 : nowFold_->height();
    int room = map_.mapBottom() + (low_ ? Measure::activityOverhang : 0);
    if (!offers_->isHidden())
        room = std::min(room, height() - offers_->sizeHint().height() - Measure::gap28);
    activity_->setRows((room - now - ActivityList::headingHeight()) / Measure::activityRow);
    fitLastDays();
}

/// They get the room that the other groups leave.
void OverviewRail::fitLastDays() {
    const bool wide = window()->width() >= Measure::wideWindow;
    const int now = nowFold_->isHidden() ? 0 : nowFold_->height();
    const int offers = offers_->isHidden() ? 0 : offers_->sizeHint().height() + Measure::gap28;
    lastDays_->setGapAbove(offers_->isHidden() ? 0 : Measure::gap28);
    lastDays_->setRoom(wide ? height() - now - activity_->sizeHint().height() - Measure::gap28 - offers : 0);
}

} // namespace velmora
