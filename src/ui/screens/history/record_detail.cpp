#include "ui/screens/history/record_detail.h"

#include "model/mission_evidence.h"
#include "ui/blocks/chip.h"
#include "ui/blocks/headline.h"
#include "ui/blocks/icon_button.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/sb_button.h"
#include "ui/blocks/scroll_area.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/map/site_map.h"
#include "ui/screens/history/record_facts.h"
#include "ui/screens/history/replay_bar.h"
#include "ui/screens/history/replay_player.h"
#include "ui/screens/outcomes.h"

#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

namespace {

/// The state whose site is drawn under a record: the current one, or the demo's if none is known.
const LiveState& groundsFor(const AppStore& store) {
    static const LiveState demo = LiveState::initial();
    return store.knownState() ? *store.knownState() : demo;
}

} // namespace

RecordDetail::RecordDetail(AppStore& store, QWidget* parent)
    : QWidget(parent), store_(store), player_(new ReplayPlayer(this)) {
    auto* content = new QWidget(this);
    auto* heading = buildHeading(content);
    map_ = new SiteMap(content);
    auto* chip = new Chip(map_);
    chip->setText(tr("Replay"));
    auto* onMap = new QVBoxLayout(map_);
    onMap->setContentsMargins(Measure::gap12, Measure::gap12, Measure::gap12, Measure::gap12);
    onMap->addWidget(chip, 0, Qt::AlignTop | Qt::AlignRight);
    bar_ = new ReplayBar(*player_, content);
    facts_ = new RecordFacts(content);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(Measure::detailLeft, Measure::pageMargins.top(), Measure::detailRight,
                               Measure::pageMargins.bottom());
    column->setSpacing(0);
    column->addWidget(heading);
    column->addSpacing(Measure::gap16);
    column->addWidget(map_);
    column->addSpacing(Measure::gap8);
    column->addWidget(bar_);
    column->addSpacing(Measure::gap20);
    column->addWidget(facts_);
    column->addStretch(1);
    auto* area = new ScrollArea(this);
    area->setWidget(content);
    area->setFade(Measure::logFade);
    auto* all = bareLayout<QVBoxLayout>(this);
    all->addWidget(area);
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
    auto* words = new QVBoxLayout;
    words->setSpacing(Measure::gap4);
    words->addWidget(eyebrow_);
    words->addWidget(title_);
    auto* row = bareLayout<QHBoxLayout>(heading, Measure::gap8);
    row->addLayout(words, 1);
    row->addWidget(export_, 0, Qt::AlignBottom);
    row->addWidget(remove, 0, Qt::AlignBottom);
    connect(export_, &SBButton::clicked, this, [this] {
        emit exportRequested(export_->mapToGlobal(QPoint(0, export_->height() + Measure::gap4)));
    });
    connect(remove, &QAbstractButton::clicked, this, &RecordDetail::deleteRequested);
    return heading;
}

void RecordDetail::setEntry(const HistoryEntry& entry) {
    if (key_ == entry.key)
        return;
    key_ = entry.key;
    record_ = entry.record;
    const MissionRecord& record = *record_;
    eyebrow_->setText(isolated(toQString(record.cameraName)) + QStringLiteral(" · ") +
                      dayAndTime(record.start, store_.now()));
    title_->setSentence(outcomeSentence(record.outcome));
    facts_->setRecord(record, groundsFor(store_).site, store_.settings());
    bar_->setRecord(record);
}

void RecordDetail::showMoment() {
    map_->setReplay({record_, progressAt(*record_, player_->position())}, groundsFor(store_),
                    store_.settings());
}

void RecordDetail::focusReplay() {
    bar_->focusSlider();
}

void RecordDetail::pause() {
    player_->pause();
}

QPixmap RecordDetail::mapPicture() const {
    constexpr int scale = 2;
    return map_->picture(scale);
}

/// Makes the map as wide as the pane, but leaves room for the log below.
void RecordDetail::fitMap() {
    const int width = this->width() - Measure::detailLeft - Measure::detailRight;
    const int heading = Measure::pageMargins.top() + Measure::gap20 +
                        static_cast<int>(Type::recordTitle.line) + Measure::gap16;
    constexpr int figures = Measure::gap8 + Measure::buttonHeight + Measure::gap20 + Measure::sliderRow +
                            Measure::gap20 + Measure::gap20;
    const int room = height() - heading - figures - Measure::detailLog;
    map_->setFixedHeight(std::clamp(room, Measure::mapMinimumHeight,
                                    std::max(map_->heightForWidth(width), Measure::mapMinimumHeight)));
}

void RecordDetail::resizeEvent(QResizeEvent*) {
    fitMap();
}

void RecordDetail::hideEvent(QHideEvent*) {
    pause();
}

} // namespace velmora
