#include "ui/screens/live/live_view.h"

#include "ui/blocks/fold.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/page.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/words.h"
#include "ui/screens/live/live_card.h"
#include "ui/screens/live/live_rail.h"
#include "ui/screens/stale_banner.h"

#include <QVBoxLayout>

namespace velmora {

namespace {

Sentence headlineFor(const AppStore& store) {
    if (!store.knownState())
        return Sentence::marked(LiveView::tr("Waiting for *velmora*"));
    const LiveState& state = *store.knownState();
    switch (state.phase) {
    case Phase::docked:
        return Sentence::marked(LiveView::tr("The drone is *on its pad*"));
    case Phase::awaitingApproval:
        return Sentence::marked(LiveView::tr("Holding for *your decision*"));
    case Phase::launching:
        return Sentence::marked(LiveView::tr("Taking *off*"));
    case Phase::enRoute:
        return Sentence::marked(LiveView::tr("On its way to *the visitor*"));
    case Phase::following:
        return Sentence::marked(state.visitor
                                    ? LiveView::tr("Following *at %1 m*")
                                          .arg(rounded(distance(state.drone.pos, state.visitor->pos)))
                                    : LiveView::tr("Following *the visitor*"));
    case Phase::holding:
        return Sentence::marked(LiveView::tr("Holding *position*"));
    case Phase::returning:
        return Sentence::marked(LiveView::tr("Coming *home*"));
    case Phase::landing:
        break;
    }
    return Sentence::marked(isOverPad(state) ? LiveView::tr("Landing *on its pad*")
                                             : LiveView::tr("Landing *where it is*"));
}

} // namespace

LiveView::LiveView(AppStore& store, QWidget* parent) : Screen(store, parent) {
    auto* content = new QWidget(this);
    stale_ = new Fold(new StaleBanner(store, content), Measure::liveBannerGap, Motion::banner, content);
    card_ = new LiveCard(store, content);
    rail_ = new LiveRail(store, content);
    auto* column = bareLayout<QVBoxLayout>(content);
    column->addWidget(stale_);
    column->addLayout(new MapBesideRail(card_, rail_, Measure::railMinimum), 1);
    setPage(new Page({.eyebrow = tr("Live flight"),
                      .headline = headlineFor(store),
                      .fills = true,
                      .contentGap = Measure::gap20,
                      .content = content},
                     this));
    connect(rail_, &LiveRail::landRequested, this, &LiveView::landRequested);
    refreshOn({&AppStore::stateChanged, &AppStore::settingsChanged, &AppStore::freshnessChanged,
               &AppStore::linkStatusChanged, &AppStore::pendingCommandChanged});
    followMotion();
}

QWidget* LiveView::rail() const {
    return rail_;
}

QWidget* LiveView::card() const {
    return card_;
}

void LiveView::refresh() {
    page().setHeadline(headlineFor(store_));
    stale_->setOpen(StaleBanner::isDue(store_));
    card_->refresh();
    rail_->refresh();
    fitHeight();
}

void LiveView::follow() {
    card_->follow();
}

/// Makes room for all of the telemetry in a low window.
void LiveView::fitHeight() {
    const bool low = window()->height() < Measure::lowWindow;
    if (low != low_) {
        low_ = low;
        card_->setLow(low);
        rail_->setLow(low);
    }
    page().setContentGap(low && StaleBanner::isDue(store_) ? Measure::liveBannerGap : Measure::gap20);
}

void LiveView::resizeEvent(QResizeEvent*) {
    fitHeight();
}

} // namespace velmora
