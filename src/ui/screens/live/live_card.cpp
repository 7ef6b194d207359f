#include "ui/screens/live/live_card.h"

#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/map/site_map.h"
#include "ui/screens/live/telemetry.h"
#include "ui/screens/stale_banner.h"

#include <QVBoxLayout>

namespace velmora {

LiveCard::LiveCard(AppStore& store, QWidget* parent)
    : MapPanel({Measure::liveCardMinimum, Measure::mapMinimumHeight}, parent),
      store_(store),
      telemetry_(new Telemetry(this)) {
    auto* note = new QGridLayout;
    note->setContentsMargins(Measure::cardInset, 0, Measure::cardInset, 0);
    note->setVerticalSpacing(0);
    note->setRowMinimumHeight(0, Measure::noteRow);
    note->addWidget(new Text(tr("Keep the drone in sight while it flies"), Type::legend, SB::dLabel, this), 0,
                    0, Qt::AlignVCenter);
    note->addWidget(new Hairline(this, Hairline::Tone::dark), 1, 0);
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addLayout(mapArea(), 1);
    column->addLayout(note);
    column->addWidget(telemetry_);
    connect(&everySecond_, &UiTimer::timeout, this, &LiveCard::refresh);
    refresh();
}

void LiveCard::refresh() {
    const bool old = store_.freshness() == Freshness::stale;
    map_->setState(store_.knownState(), store_.settings(), store_.freshness());
    telemetry_->setState(store_.knownState(), store_.settings(), old ? *store_.lastAnswerAt() : store_.now());
    telemetry_->setDimmed(store_.freshness() != Freshness::live);
    everySecond_.setActive(old && isVisible());
    const QString age = old ? StaleBanner::pictureAge(store_) : QString();
    if (age == pictureAge_)
        return;
    pictureAge_ = age;
    update();
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
    if (!pictureAge_.isEmpty())
        paintPictureAge(painter);
}

void LiveCard::paintPictureAge(QPainter& painter) const {
    const QRectF row(Measure::cardInset, map_->geometry().bottom() + 1, width() - 2 * Measure::cardInset,
                     Measure::noteRow);
    drawText(painter, row, pictureAge_, Type::caption, SB::dTitle, Qt::AlignVCenter | Qt::AlignRight);
    const double dotX =
        row.right() - textWidth(pictureAge_, Type::caption) - Measure::gap8 - Measure::statusDotInRow / 2;
    paintStatusDot(painter, {dotX, row.center().y()},
                   {.color = SB::lilac, .diameter = Measure::statusDotInRow});
}

} // namespace velmora
