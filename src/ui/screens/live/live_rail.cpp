#include "ui/screens/live/live_rail.h"

#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/scroll_area.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/screens/live/flight_controls.h"
#include "ui/screens/live/phase_timeline.h"
#include "ui/screens/live/visitor_card.h"
#include "ui/screens/log_list.h"

#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

constexpr std::ptrdiff_t maximumNotices = 100; // a server may send many more

} // namespace

LiveRail::LiveRail(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      timeline_(new PhaseTimeline(this)),
      controls_(new FlightControls(store, this)) {
    visitorBlock_ = buildVisitor();
    column_ = bareLayout<QVBoxLayout>(this, Measure::gap16);
    column_->addWidget(controls_);
    column_->addWidget(new Hairline(this, Hairline::Tone::between));
    column_->addWidget(timeline_);
    column_->addWidget(visitorBlock_);
    column_->addWidget(new Hairline(this, Hairline::Tone::between));
    column_->addWidget(buildLog(), 1);
    connect(controls_, &FlightControls::landRequested, this, &LiveRail::landRequested);
    refresh();
}

QWidget* LiveRail::buildVisitor() {
    auto* block = new QWidget(this);
    visitor_ = new VisitorCard(block);
    auto* column = bareLayout<QVBoxLayout>(block, Measure::gap16);
    column->addWidget(new Hairline(block, Hairline::Tone::between));
    column->addWidget(visitor_);
    return block;
}

QWidget* LiveRail::buildLog() {
    auto* block = new QWidget(this);
    auto* area = new ScrollArea(block);
    auto* content = new QWidget(area);
    nothingLogged_ = new Text(tr("Nothing logged yet. Notices from the next flight appear here."),
                              Type::label2, SB::muted, content);
    log_ = new LogList(LogList::Interaction::readOnly, content);
    auto* entries = new QVBoxLayout(content);
    entries->setContentsMargins(0, 0, 0, 0);
    entries->addWidget(nothingLogged_);
    entries->addWidget(log_);
    entries->addStretch(1);
    area->setWidget(content);
    area->setFade(Measure::logFade);
    area->setAccessibleName(tr("Flight log"));
    area->enableKeyboardScrolling();
    area->setMinimumHeight(static_cast<int>(Type::log.line));

    auto* heading = new Text(tr("Flight log"), Type::groupHeading, SB::ink, block);
    heading->setMaximumLines(1); // a height that depends on the width could not shrink
    auto* column = bareLayout<QVBoxLayout>(block, Measure::gap8);
    column->addWidget(heading);
    column->addWidget(area, 1);
    return block;
}

void LiveRail::setLow(bool low) {
    const int gap = low ? Measure::railGapLow : Measure::gap16;
    column_->setSpacing(gap);
    visitorBlock_->layout()->setSpacing(gap);
    controls_->setLow(low);
    timeline_->setLine(low);
}

void LiveRail::refresh() {
    const LiveState* state = store_.knownState();
    timeline_->setPhase(store_.phase());
    controls_->refresh();
    visitorBlock_->setVisible(state && state->visitor);
    if (state && state->visitor)
        visitor_->setVisitor(*state->visitor, state->site);
    visitor_->setDimmed(store_.freshness() != Freshness::live);
    const bool logged = state && !state->notices.empty();
    nothingLogged_->setVisible(!logged);
    log_->setVisible(logged);
    if (!logged)
        return;
    const auto shown = std::min(std::ssize(state->notices), maximumNotices);
    log_->setNotices({state->notices.begin(), state->notices.begin() + shown});
}

} // namespace velmora
