#include "ui/screens/overview/overview_view.h"

#include "ui/blocks/fold.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/page.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/words.h"
#include "ui/screens/overview/activity_list.h"
#include "ui/screens/overview/map_card.h"
#include "ui/screens/overview/overview_parts.h"
#include "ui/screens/overview/status_strip.h"
#include "ui/screens/stale_banner.h"

#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

Sentence headlineFor(const AppStore& store) {
    const auto sentence = [](const QString& lead, const QString& emphasis) {
        return Sentence{lead, emphasis, QStringLiteral(".")};
    };
    if (!store.knownState())
        return sentence(OverviewView::tr("Waiting for "), OverviewView::tr("velmora"));
    const LiveState& state = *store.knownState();
    if (airborne(state.phase))
        return sentence(OverviewView::tr("Your drone is "), OverviewView::tr("on patrol"));
    if (state.visitor)
        return sentence(OverviewView::tr("Someone is "), OverviewView::tr("on your grounds"));
    if (state.armed)
        return sentence(OverviewView::tr("Your grounds are "), OverviewView::tr("watched"));
    return sentence(OverviewView::tr("Velmora is "), OverviewView::tr("disarmed"));
}

QString ledeFor(const AppStore& store) {
    if (!store.knownState())
        return OverviewView::tr("No picture received yet.");
    const LiveState& state = *store.knownState();
    if (airborne(state.phase)) {
        const P from = state.visitor ? state.visitor->pos : state.site.pad;
        return OverviewView::tr("%1, %2 m. It stays inside your boundary and comes home on its own.")
            .arg(phaseWord(state.phase), rounded(distance(state.drone.pos, from)));
    }
    if (!state.armed)
        return OverviewView::tr(
            "Cameras still log people they don't recognise, but the drone won't offer to launch.");
    return OverviewView::tr("%1 cameras are looking for people they don't recognise. The drone is on its pad "
                            "and only flies when you say so.")
        .arg(state.site.cameras.size());
}

} // namespace

/// The latest visits, as many as fit, and the visit offers below them.
class OverviewView::Rail : public QWidget {
public:
    Rail(AppStore& store, AnswerGuard& guard, QWidget* parent)
        : QWidget(parent),
          activity_(new ActivityList(store, this)),
          offers_(new VisitOffers(store, guard, this)) {
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
        auto* column = bareLayout<QVBoxLayout>(this);
        column->addWidget(activity_);
        column->addSpacing(Measure::gap28);
        column->addWidget(offers_);
        column->addStretch(1);
    }

    void refresh() {
        activity_->refresh();
        offers_->refresh();
        fitRows();
    }

protected:
    void resizeEvent(QResizeEvent*) override { fitRows(); }

private:
    void fitRows() {
        const int offers = offers_->isHidden() ? 0 : offers_->sizeHint().height();
        const int room = height() - offers - Measure::mapTitle - Measure::gap28;
        activity_->setRows(std::clamp(room / Measure::activityRow, 1, Measure::activityRows));
    }

    ActivityList* activity_;
    VisitOffers* offers_;
};

OverviewView::OverviewView(AppStore& store, AnswerGuard& guard, QWidget* parent)
    : Screen(store, parent), armSwitch_(new ArmSwitch(store, this)) {
    auto* content = new QWidget(this);
    activeBanner_ = new ActiveBanner(store, content);
    map_ = new MapCard(store, content);
    rail_ = new Rail(store, guard, content);
    strip_ = new StatusStrip(store, content);
    stale_ = new Fold(new StaleBanner(store, content), Measure::gap16, Motion::banner, content);
    active_ = new Fold(activeBanner_, Measure::gap16, Motion::banner, content);
    auto* mapAndRail = new MapBesideRail(map_, rail_, Measure::overviewRailMinimum);
    mapAndRail->setContentsMargins(0, 0, 0, Measure::gap16);
    auto* column = bareLayout<QVBoxLayout>(content);
    column->addWidget(stale_);
    column->addWidget(active_);
    column->addLayout(mapAndRail, 1);
    column->addWidget(strip_);
    setPage(new Page({.eyebrow = tr("Overview"),
                      .headline = headlineFor(store),
                      .lede = ledeFor(store),
                      .fills = true,
                      .contentGap = Measure::gap24,
                      .trailing = armSwitch_,
                      .content = content},
                     this));
    refreshOn({&AppStore::stateChanged, &AppStore::settingsChanged, &AppStore::historyChanged,
               &AppStore::freshnessChanged, &AppStore::linkStatusChanged});
}

void OverviewView::refresh() {
    page().setHeadline(headlineFor(store_));
    page().setLede(ledeFor(store_));
    armSwitch_->refresh();
    stale_->setOpen(StaleBanner::isDue(store_));
    active_->setOpen(store_.phase() != Phase::docked);
    activeBanner_->refresh();
    map_->refresh();
    rail_->refresh();
    strip_->refresh();
}

} // namespace velmora
