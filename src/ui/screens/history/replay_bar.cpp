#include "ui/screens/history/replay_bar.h"

#include "ui/blocks/choice.h"
#include "ui/blocks/icon_button.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/history/replay_player.h"
#include "ui/screens/history/replay_slider.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include <cmath>

namespace velmora {

namespace {

constexpr double speeds[] = {1, 2, 4, 8};

} // namespace

ReplayBar::ReplayBar(ReplayPlayer& player, QWidget* parent)
    : QWidget(parent),
      player_(player),
      play_(new IconButton(Icon::play, tr("Play"), this)),
      slider_(new ReplaySlider(this)),
      time_(new Text({}, Type::sliderValue, SB::muted, this)) {
    QStringList names;
    for (const double speed : speeds)
        names.append(tr("%1×").arg(speed));
    speed_ = new SegmentedChoice(tr("Replay speed"), names, false, this);
    auto* row = bareLayout<QHBoxLayout>(this, Measure::gap12);
    row->addWidget(play_);
    row->addWidget(slider_, 1);
    row->addWidget(time_, 0, Qt::AlignVCenter);
    row->addWidget(speed_);
    connect(play_, &QAbstractButton::clicked, this, &ReplayBar::toggle);
    connect(slider_, &ReplaySlider::moved, this, [this](double seconds) {
        player_.pause();
        player_.setPosition(seconds);
    });
    connect(speed_, &SegmentedChoice::activated, this,
            [this](int option) { player_.setSpeed(speeds[option]); });
    connect(&player_, &ReplayPlayer::changed, this, &ReplayBar::refresh);
}

void ReplayBar::setRecord(const MissionRecord& record) {
    slider_->setRecord(record);
    player_.load(durationOf(record));
}

void ReplayBar::focusSlider() {
    slider_->setFocus(Qt::TabFocusReason);
}

void ReplayBar::toggle() {
    if (player_.isPlaying())
        player_.pause();
    else
        player_.play();
}

void ReplayBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space)
        toggle();
    else
        QWidget::keyPressEvent(event);
}

void ReplayBar::refresh() {
    const bool playing = player_.isPlaying();
    play_->setIcon(playing ? Icon::pause : Icon::play, playing ? tr("Pause") : tr("Play"));
    slider_->setPosition(player_.position());
    const auto clock = [](double seconds) { return clockTime(Seconds{std::round(seconds)}); };
    time_->setText(clock(player_.position()) + QStringLiteral(" / ") + clock(player_.length()));
}

} // namespace velmora
