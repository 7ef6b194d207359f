#include "ui/screens/live/live_card.h"

#include "ui/blocks/hairline.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/map/site_map.h"
#include "ui/screens/live/telemetry.h"
#include "ui/screens/stale_banner.h"

#include <algorithm>

namespace velmora {

LiveCard::LiveCard(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      map_(new SiteMap(this)),
      note_(new Text(tr("Keep the drone in sight while it flies"), Type::legend, SB::dLabel, this)),
      line_(new Hairline(this, Hairline::Tone::dark)),
      telemetry_(new Telemetry(this)) {
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

QSize LiveCard::fitted(int width, int height, bool narrow) {
    narrow_ = narrow;
    telemetry_->setNarrow(narrow);
    const int below = Measure::noteRow + line_->height() + Telemetry::heightFor(narrow);
    const QSize room(width, std::max(height - below, Measure::mapMinimumHeight));
    return map_->fitted(room, Measure::liveCardMinimum) + QSize(0, below);
}

void LiveCard::resizeEvent(QResizeEvent*) {
    const int mapBottom = height() - Measure::noteRow - line_->height() - Telemetry::heightFor(narrow_);
    const int noteTop = mapBottom + (Measure::noteRow - note_->sizeHint().height()) / 2;
    const int inner = width() - 2 * Measure::cardInset;
    map_->setGeometry(0, 0, width(), mapBottom);
    note_->setGeometry(Measure::cardInset, noteTop, inner, note_->sizeHint().height());
    line_->setGeometry(Measure::cardInset, mapBottom + Measure::noteRow, inner, line_->height());
    telemetry_->setGeometry(0, line_->geometry().bottom() + 1, width(), Telemetry::heightFor(narrow_));
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
