#include "ui/screens/alert/alert_inset.h"

#include "ui/blocks/accessibility.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/map/site_map.h"

#include <QPaintEvent>

namespace velmora {

namespace {

constexpr double frameOpacity = 0.55;
constexpr Shadow shadow{2, 10, 0.45};
constexpr double staleWords = 0.75;
constexpr double wordsTop = 2; // below the map, pixels

} // namespace

AlertInset::AlertInset(QWidget* parent) : QWidget(parent), map_(new SiteMap(this)) {
    declareRole(this, QAccessible::Graphic);
    setAttribute(Qt::WA_TransparentForMouseEvents); // the picture below takes the click
    map_->setInset(true);
    setMapSize(Measure::insetMap);
}

void AlertInset::setState(const LiveState& state, const Settings& settings, Freshness freshness) {
    map_->setState(&state, settings, freshness);
    stale_ = freshness != Freshness::live;
    inside_ = state.visitor->inside;
    distance_ = tr("%1 m from the pad").arg(rounded(distance(state.visitor->pos, state.site.pad)));
    if (const QString place = inside_ ? tr("inside your boundary") : tr("outside your boundary");
        place != place_) {
        place_ = place;
        arrange();
    }
    setAccessibleName(distance_ + QStringLiteral(" · ") + place_);
    update();
}

void AlertInset::setMapSize(QSize size) {
    mapSize_ = size;
    arrange();
}

int AlertInset::wordsHeight() const {
    return Measure::insetWords +
           static_cast<int>(placeLines_.size() - 1) * static_cast<int>(Type::inset.line);
}

/// A long text below the map takes more lines.
void AlertInset::arrange() {
    placeLines_ = brokenIntoLines(place_, Type::inset, mapSize_.width() - 2 * Measure::insetWordsIndent);
    setFixedSize(mapSize_ + QSize(2 * margin, 2 * margin + wordsHeight()));
    map_->setGeometry(QRect({margin, margin}, mapSize_).adjusted(1, 1, -1, 0)); // inside the frame's line
}

/// A frame of the map needs no new shadow.
void AlertInset::paintEvent(QPaintEvent* event) {
    if (liesInside(event->rect(), map_->geometry(), Measure::insetRadius))
        return;
    QPainter painter(this);
    paintShadow(painter, frame(), Measure::insetRadius, shadow);
    fillRounded(painter, frame(), Measure::insetRadius, SB::navy, SB::faded(SB::dTitle, frameOpacity));
    const QColor quiet = SB::faded(SB::dLabel, staleWords);
    const QColor place = inside_ ? SB::dTeal : SB::lilac;
    QRectF line(frame().left() + Measure::insetWordsIndent, frame().bottom() + 1 - wordsHeight() + wordsTop,
                frame().width() - 2 * Measure::insetWordsIndent, Type::inset.line);
    drawText(painter, line, distance_, Type::insetStrong, stale_ ? quiet : SB::dTitle, Qt::AlignLeft);
    for (const QString& words : placeLines_) {
        line.translate(0, Type::inset.line);
        drawText(painter, line, words, Type::inset, stale_ ? quiet : place, Qt::AlignLeft);
    }
}

} // namespace velmora
