#include "ui/screens/overview/overview_view.h"

#include "ui/blocks/fold.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/page.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/screens/overview/map_card.h"
#include "ui/screens/overview/mission_banner.h"
#include "ui/screens/overview/overview_parts.h"
#include "ui/screens/overview/overview_rail.h"
#include "ui/screens/overview/overview_words.h"
#include "ui/screens/overview/status_strip.h"

#include <QVBoxLayout>

namespace velmora {

OverviewView::OverviewView(AppStore& store, AnswerGuard& guard, QWidget* parent)
    : Screen(store, parent), armSwitch_(new ArmSwitch(store, this)) {
    auto* content = new QWidget(this);
    banner_ = new OverviewBanner(store, content);
    bannerFold_ = new Fold(banner_, Measure::gap16, Motion::banner, content);
    map_ = new MapCard(store, content);
    rail_ = new OverviewRail(store, guard, *map_, content);
    strip_ = new StatusStrip(store, content);
    auto* mapAndRail = new MapBesideRail(map_, rail_, Measure::overviewRailMinimum);
    mapAndRail->setContentsMargins(0, 0, 0, Measure::mapGap);
    auto* column = bareLayout<QVBoxLayout>(content);
    column->addWidget(bannerFold_);
    column->addLayout(mapAndRail, 1);
    column->addWidget(strip_);
    setPage(new Page({.eyebrow = tr("Overview"),
                      .headline = overviewHeadline(store),
                      .lede = overviewLede(store),
                      .fills = true,
                      .contentGap = Measure::gap24,
                      .trailing = armSwitch_,
                      .content = content},
                     this));
    refreshOn({&AppStore::stateChanged, &AppStore::settingsChanged, &AppStore::historyChanged,
               &AppStore::freshnessChanged, &AppStore::linkStatusChanged});
    followMotion();
    connect(&everySecond_, &UiTimer::timeout, this, &OverviewView::refreshMission);
}

void OverviewView::refresh() {
    page().setHeadline(overviewHeadline(store_));
    page().setLede(overviewLede(store_));
    armSwitch_->refresh();
    map_->refresh();
    strip_->refresh();
    refreshMission();
}

void OverviewView::follow() {
    map_->refresh();
}

void OverviewView::refreshMission() {
    banner_->refresh();
    bannerFold_->setOpen(banner_->isDue());
    rail_->refresh();
    everySecond_.setActive(isVisible() && (banner_->isDue() || rail_->showsNow()));
}

void OverviewView::hideEvent(QHideEvent* event) {
    Screen::hideEvent(event);
    everySecond_.stop();
}

void OverviewView::resizeEvent(QResizeEvent*) {
    const bool low = window()->height() < Measure::lowWindow;
    page().setContentGap(low ? Measure::gap16 : Measure::gap24);
    rail_->setLow(low);
}

} // namespace velmora
