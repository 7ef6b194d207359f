#include "ui/screens/history/record_detail.h"

#include "model/mission_evidence.h"
#include "ui/blocks/chip.h"
#include "ui/blocks/headline.h"
#include "ui/blocks/icon_button.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/scroll_area.h"
#include "ui/blocks/text.h"
#include "ui/charts/outcomes.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/map/site_map.h"
#include "ui/screens/grounds.h"
#include "ui/screens/history/record_facts.h"
#include "ui/screens/history/replay_bar.h"
#include "ui/screens/history/replay_player.h"

#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

RecordDetail::RecordDetail(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      player_(new ReplayPlayer(this)),
      content_(new QWidget(this)),
      area_(new ScrollArea(this)) {
    content_->setMaximumWidth(Measure::pageWidthWide - (Measure::historyPane - Measure::historyLeft) +
                              Measure::detailRight);
    auto* column = new QVBoxLayout(content_);
    column->setContentsMargins(Measure::detailLeft, Measure::pageMargins.top(), Measure::detailRight,
                               Measure::pageMargins.bottom());
    column->setSpacing(0);
    column->addWidget(buildHeading(content_));
    column->addSpacing(Measure::gap16);
    facts_ = new RecordFacts(buildReplay(content_), content_);
    column->addWidget(facts_);
    column->addStretch(1);
    area_->setWidget(content_);
    area_->setFade(Measure::logFade);
    auto* all = bareLayout<QVBoxLayout>(this);
    all->addWidget(area_);
    connect(player_, &ReplayPlayer::changed, this, &RecordDetail::showMoment);
    connect(facts_, &RecordFacts::momentRequested, this, [this](double seconds) {
        player_->pause();
        player_->setPosition(seconds);
    });
}

QWidget* RecordDetail::buildHeading(QWidget* parent) {
    auto* heading = new QWidget(parent);
    eyebrow_ = new Eyebrow({}, false, heading);
    title_ = new Headline({}, Type::recordTitle, false, heading);
    export_ =
        new SBButton(tr("Export…"), {.kind = SBButtonKind::secondary, .icon = Icon::exportRecord}, heading);
    auto* remove = new IconButton(Icon::deleteRecord, tr("Delete this visit"), heading);
    auto* row = new QHBoxLayout;
    row->setSpacing(Measure::gap8);
    row->addWidget(title_, 1);
    row->addWidget(export_, 0, Qt::AlignBottom);
    row->addWidget(remove, 0, Qt::AlignBottom);
    auto* column = bareLayout<QVBoxLayout>(heading, Measure::gap4);
    column->addWidget(eyebrow_);
    column->addLayout(row);
    connect(export_, &SBButton::clicked, this, [this, remove] {
        const QRect buttons = export_->geometry() | remove->geometry();
        emit exportRequested({export_->mapToGlobal(QPoint()), buttons.size()});
    });
    connect(remove, &QAbstractButton::clicked, this, &RecordDetail::deleteRequested);
    return heading;
}

QWidget* RecordDetail::buildReplay(QWidget* parent) {
    auto* replay = new QWidget(parent);
    map_ = new SiteMap(replay);
    map_->setCorners(CornerColors{SB::page, SB::page});
    auto* chip = new Chip(map_);
    chip->setText(tr("Replay"));
    auto* onMap = new QVBoxLayout(map_);
    onMap->setContentsMargins(Measure::gap12, Measure::gap12, Measure::gap12, Measure::gap12);
    onMap->addWidget(chip, 0, Qt::AlignTop | Qt::AlignRight);
    bar_ = new ReplayBar(*player_, replay);
    auto* column = bareLayout<QVBoxLayout>(replay, Measure::gap8);
    column->addWidget(map_, 0, Qt::AlignLeft);
    column->addWidget(bar_);
    return replay;
}

void RecordDetail::setEntry(const HistoryEntry& entry) {
    if (key_ != entry.key) {
        key_ = entry.key;
        record_ = entry.record;
        title_->setSentence(outcomeSentence(record_->outcome));
        facts_->setRecord(*record_);
        facts_->setAnswer(*record_, store_.answerTo(*record_));
        bar_->setRecord(*record_);
        area_->verticalScrollBar()->setValue(0);
    }
    eyebrow_->setText(isolated(shownText(record_->cameraName)) + QStringLiteral(" · ") +
                      dayNameAndTime(record_->start, store_.now()));
    facts_->setBoundary(*record_, groundsFor(store_).site, store_.settings());
    showMoment();
    arrange();
}

void RecordDetail::showMoment() {
    const double seconds = player_->position();
    map_->setReplay({record_, progressAt(*record_, seconds)}, groundsFor(store_), store_.settings());
    facts_->setMoment(*record_, seconds < player_->length() ? std::optional(seconds) : std::nullopt);
}

void RecordDetail::focusReplay() {
    bar_->focusSlider();
}

void RecordDetail::pause() {
    player_->pause();
}

void RecordDetail::togglePlaying() {
    bar_->toggle();
}

QPixmap RecordDetail::mapPicture() const {
    constexpr int scale = 2;
    return map_->picture(scale);
}

/// The map is as wide as its column, but leaves room below it for the replay bar, and in one column for the
/// log.
void RecordDetail::arrange() {
    constexpr int heading = Measure::gap20 + static_cast<int>(Type::recordTitle.line) + Measure::gap16;
    constexpr int figures = Measure::gap20 + Measure::sliderRow + Measure::gap20 + Measure::gap20;
    const bool two = width() >= Measure::detailTwoColumns;
    const int pane = std::min(width(), content_->maximumWidth());
    const int column = std::max(pane - Measure::detailLeft - Measure::detailRight -
                                    (two ? Measure::gutter + Measure::detailSecondColumn : 0),
                                0);
    const int above = Measure::pageMargins.top() + heading;
    const int below = Measure::gap8 + Measure::buttonHeight +
                      (two ? Measure::pageMargins.bottom() : figures + Measure::detailLog);
    const QSize map = map_->fitted({column, std::max(height() - above - below, Measure::mapMinimumHeight)});
    map_->setFixedSize(map);
    bar_->setMaximumWidth(std::max(map.width(), bar_->minimumSizeHint().width()));
    facts_->setTwoColumns(two);
    for (const QWidget* widget = map_->parentWidget(); widget != area_->viewport();
         widget = widget->parentWidget())
        widget->layout()->activate(); // otherwise the next frame would show the old sizes
}

void RecordDetail::resizeEvent(QResizeEvent*) {
    arrange();
}

void RecordDetail::hideEvent(QHideEvent*) {
    pause();
}

} // namespace velmora
