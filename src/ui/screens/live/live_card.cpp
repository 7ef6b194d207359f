#include "ui/screens/live/live_card.h"

#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"
#include "ui/map/site_map.h"
#include "ui/screens/live/note_row.h"
#include "ui/screens/live/telemetry.h"

#include <QVBoxLayout>

namespace velmora {

LiveCard::LiveCard(AppStore& store, QWidget* parent)
    : MapPanel({Measure::liveCardMinimum, Measure::mapMinimumHeight}, parent),
      store_(store),
      note_(new NoteRow(store, this)),
      telemetry_(new Telemetry(this)) {
    auto* line = new QHBoxLayout;
    line->setContentsMargins(Measure::cardInset, 0, Measure::cardInset, 0);
    line->addWidget(new Hairline(this, Hairline::Tone::dark));
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addLayout(mapArea(Qt::AlignCenter, SB::navy), 1);
    column->addWidget(note_);
    column->addLayout(line);
    column->addWidget(telemetry_);
    connect(&everySecond_, &UiTimer::timeout, this, &LiveCard::refresh);
    refresh();
}

void LiveCard::refresh() {
    const bool old = store_.freshness() == Freshness::stale;
    follow();
    note_->refresh();
    telemetry_->setState(store_.knownState(), store_.settings(), old ? *store_.lastAnswerAt() : store_.now());
    telemetry_->setDimmed(store_.freshness() != Freshness::live);
    everySecond_.setActive(old && isVisible());
}

void LiveCard::follow() {
    map_->setState(store_.knownState(), store_.settings(), store_.freshness());
}

void LiveCard::setLow(bool low) {
    note_->setLow(low);
}

QSize LiveCard::fitted(QSize room) {
    constexpr int narrow = Measure::narrowContent - Measure::gutter - Measure::railMinimum;
    const int wideRows = rowsHeight() - telemetry_->minimumHeight() + Telemetry::heightFor(false);
    telemetry_->setNarrow(room.width() < narrow ||
                          MapPanel::fitted(room, wideRows).width() < Measure::wideTelemetry);
    return MapPanel::fitted(room);
}

void LiveCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::cardRadius, SB::navy);
}

} // namespace velmora
