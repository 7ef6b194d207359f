#include "ui/screens/live/live_view.h"

#include "ui/blocks/fold.h"
#include "ui/blocks/page.h"
#include "ui/look/measures.h"
#include "ui/look/motion.h"
#include "ui/look/words.h"
#include "ui/screens/live/live_card.h"
#include "ui/screens/live/live_rail.h"
#include "ui/screens/stale_banner.h"

#include <QEvent>
#include <QLayout>

#include <algorithm>

namespace velmora {

namespace {

Sentence headlineFor(const AppStore& store) {
    const auto sentence = [](const QString& lead, const QString& emphasis) {
        return Sentence{lead, emphasis, {}};
    };
    if (!store.knownState())
        return sentence(LiveView::tr("Waiting for "), LiveView::tr("velmora"));
    const LiveState& state = *store.knownState();
    switch (state.phase) {
    case Phase::docked:
        return sentence(LiveView::tr("The drone is "), LiveView::tr("on its pad"));
    case Phase::awaitingApproval:
        return sentence(LiveView::tr("Holding for "), LiveView::tr("your decision"));
    case Phase::launching:
        return sentence(LiveView::tr("Taking "), LiveView::tr("off"));
    case Phase::enRoute:
        return sentence(LiveView::tr("On its way to "), LiveView::tr("the visitor"));
    case Phase::following:
        return sentence(LiveView::tr("Following "),
                        state.visitor ? LiveView::tr("at %1 m").arg(
                                            rounded(distance(state.drone.pos, state.visitor->pos)))
                                      : LiveView::tr("the visitor"));
    case Phase::holding:
        return sentence(LiveView::tr("Holding "), LiveView::tr("position"));
    case Phase::returning:
        return sentence(LiveView::tr("Coming "), LiveView::tr("home"));
    case Phase::landing:
        break;
    }
    return sentence(LiveView::tr("Landing "),
                    isOverPad(state) ? LiveView::tr("on its pad") : LiveView::tr("where it is"));
}

} // namespace

/// Under the banner the card takes the largest map that fits; the rail takes the rest.
class LiveView::Content : public QWidget {
public:
    explicit Content(AppStore& store)
        : stale(new Fold(new StaleBanner(store, this), Measure::gap16, Motion::banner, this)),
          card(new LiveCard(store, this)),
          rail(new LiveRail(store, this)) {}

    Fold* const stale;
    LiveCard* const card;
    LiveRail* const rail;

    /// Below this height the page scrolls.
    QSize minimumSizeHint() const override {
        const int beside = rail->layout()->hasHeightForWidth()
                               ? rail->layout()->minimumHeightForWidth(rail->width())
                               : rail->minimumSizeHint().height();
        return {0, top() + std::max(card->minimumHeight(), beside)};
    }

protected:
    void resizeEvent(QResizeEvent*) override { lay(); }
    bool event(QEvent* event) override {
        if (event->type() == QEvent::LayoutRequest)
            lay();
        return QWidget::event(event);
    }

private:
    int top() const { return stale->isHidden() ? 0 : stale->height(); }
    void lay() {
        stale->setGeometry(0, 0, width(), stale->height());
        const int room = height() - top(), inView = std::min(height(), parentWidget()->height()) - top();
        const int widest = std::max(width() - Measure::gutter - Measure::railMinimum, 0);
        const bool narrow = width() < Measure::narrowContent ||
                            card->fitted(widest, inView, false).width() < Measure::wideTelemetry;
        card->setMinimumHeight(card->fitted(widest, 0, narrow).height());
        const QSize size = card->fitted(widest, inView, narrow);
        card->setGeometry({{0, top()}, size});
        const int left = size.width() + Measure::gutter;
        rail->setGeometry(left, top(), std::min(width() - left, Measure::railMaximum), room);
        if (const int least = minimumSizeHint().height(); least != least_) {
            least_ = least;
            updateGeometry();
        }
    }

    int least_ = 0; ///< height, as last told to the page
};

LiveView::LiveView(AppStore& store, QWidget* parent) : Screen(store, parent), content_(new Content(store)) {
    setPage(new Page({.eyebrow = tr("Live flight"),
                      .headline = headlineFor(store),
                      .fills = true,
                      .contentGap = Measure::gap20,
                      .content = content_},
                     this));
    connect(content_->rail, &LiveRail::landRequested, this, &LiveView::landRequested);
    refreshOn({&AppStore::stateChanged, &AppStore::settingsChanged, &AppStore::freshnessChanged,
               &AppStore::linkStatusChanged});
}

void LiveView::refresh() {
    page().setHeadline(headlineFor(store_));
    content_->stale->setOpen(StaleBanner::isDue(store_));
    content_->card->refresh();
    content_->rail->refresh();
}

} // namespace velmora
