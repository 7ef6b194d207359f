#include "ui/screens/overview/overview_view.h"

#include "ui/blocks/fold.h"
#include "ui/blocks/page.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/words.h"
#include "ui/screens/overview/activity_list.h"
#include "ui/screens/overview/map_card.h"
#include "ui/screens/overview/overview_parts.h"
#include "ui/screens/overview/status_strip.h"
#include "ui/screens/stale_banner.h"

#include <QEvent>
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

/// Banners above; the map and the rail share what the status strip leaves.
class OverviewView::Content : public QWidget {
public:
    Content(AppStore& store, AnswerGuard& guard)
        : activeBanner(new ActiveBanner(store, this)),
          map(new MapCard(store, this)),
          activity(new ActivityList(store, this)),
          offers(new VisitOffers(store, guard, this)),
          strip(new StatusStrip(store, this)),
          body(new Body(this)) {
        stale = new Fold(new StaleBanner(store, this), Measure::gap16, Motion::banner, this);
        active = new Fold(activeBanner, Measure::gap16, Motion::banner, this);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        column->addWidget(stale);
        column->addWidget(active);
        body->setMinimumHeight(Measure::overviewMapMinimum + Measure::mapTitle + Measure::mapLegend);
        column->addWidget(body, 1);
        column->addWidget(strip);
    }

    Fold* stale;
    Fold* active;
    ActiveBanner* activeBanner;
    MapCard* map;
    ActivityList* activity;
    VisitOffers* offers;
    StatusStrip* strip;

private:
    /// Map column and rail.
    class Body : public QWidget {
    public:
        explicit Body(Content* content) : QWidget(content), content_(*content) {
            for (QWidget* part :
                 std::initializer_list<QWidget*>{content->map, content->activity, content->offers})
                part->setParent(this);
        }

    protected:
        void resizeEvent(QResizeEvent*) override { lay(); }
        bool event(QEvent* event) override {
            if (event->type() == QEvent::LayoutRequest)
                lay();
            return QWidget::event(event);
        }

    private:
        void lay() {
            const int room = height() - Measure::gap16;
            const int widest = width() - Measure::gutter - Measure::overviewRailMinimum;
            const QSize map = content_.map->fitted(widest, room);
            content_.map->setGeometry({{}, map});
            const int left = map.width() + Measure::gutter;
            const int rail = std::min(width() - left, Measure::railMaximum);
            const int offers = content_.offers->isHidden() ? 0 : content_.offers->sizeHint().height();
            const int rows = (room - offers - Measure::mapTitle - Measure::gap28) / Measure::activityRow;
            content_.activity->setRows(std::clamp(rows, 1, Measure::activityRows));
            const int activity = content_.activity->layout()->heightForWidth(rail);
            content_.activity->setGeometry(left, 0, rail, activity);
            content_.offers->setGeometry(left, activity + Measure::gap28, rail, offers);
        }

        Content& content_;
    };

    Body* body;
};

OverviewView::OverviewView(AppStore& store, AnswerGuard& guard, QWidget* parent)
    : Screen(store, parent), armSwitch_(new ArmSwitch(store, this)), content_(new Content(store, guard)) {
    setPage(new Page({.eyebrow = tr("Overview"),
                      .headline = headlineFor(store),
                      .lede = ledeFor(store),
                      .fills = true,
                      .contentGap = Measure::gap24,
                      .trailing = armSwitch_,
                      .content = content_},
                     this));
    refreshOn({&AppStore::stateChanged, &AppStore::settingsChanged, &AppStore::historyChanged,
               &AppStore::freshnessChanged, &AppStore::linkStatusChanged});
}

void OverviewView::refresh() {
    page().setHeadline(headlineFor(store_));
    page().setLede(ledeFor(store_));
    armSwitch_->refresh();
    content_->stale->setOpen(StaleBanner::isDue(store_));
    content_->active->setOpen(store_.phase() != Phase::docked);
    content_->activeBanner->refresh();
    content_->map->refresh();
    content_->activity->refresh();
    content_->offers->refresh();
    content_->strip->refresh();
}

} // namespace velmora
