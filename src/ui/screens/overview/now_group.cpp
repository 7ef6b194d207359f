#include "ui/screens/overview/now_group.h"

#include "model/flight_limits.h"
#include "ui/blocks/art_image.h"
#include "ui/blocks/hairline.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/metric.h"
#include "ui/blocks/text.h"
#include "ui/blocks/text_line.h"
#include "ui/guard/answer_button.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/visitor_words.h"

#include <QVBoxLayout>

namespace velmora {

namespace {

constexpr int overhang = 1; // of the last line below the picture, pixels

QWidget* boxed(QWidget* content, QWidget* parent) {
    auto* box = new QWidget(parent);
    bareLayout<QVBoxLayout>(box)->addWidget(content);
    return box;
}

} // namespace

NowGroup::NowGroup(AppStore& store, AnswerGuard& guard, QWidget* parent)
    : QWidget(parent),
      store_(store),
      heading_(new Text(tr("Now"), Type::groupHeading, SB::ink, this)),
      time_(new TextLine(Type::label2.line, this)),
      visitor_(buildVisitor()),
      launch_(new AnswerButton(Command::approve, CommandSource::overview, guard, tr("Launch (approve)"),
                               {.kind = SBButtonKind::primary, .wide = true}, this)),
      metrics_(buildMetrics()) {
    auto* heading = new QHBoxLayout;
    heading->addWidget(heading_, 1);
    heading->addWidget(time_, 0, Qt::AlignVCenter);
    launchRow_ = boxed(launch_, this);
    auto* line = boxed(new Hairline(this), this);
    line_ = static_cast<QVBoxLayout*>(line->layout());
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addLayout(heading);
    column->addSpacing(Measure::nowHeading - static_cast<int>(Type::groupHeading.line));
    for (QWidget* part : {visitor_, launchRow_, metrics_, line})
        column->addWidget(part);
    setLow(false);
    connect(&store_, &AppStore::pendingCommandChanged, this, &NowGroup::showLaunch);
}

QWidget* NowGroup::buildVisitor() {
    auto* row = new QWidget(this);
    picture_ = new ArtImage({}, ArtImage::Mode::fill, Measure::thumbnailRadius, row);
    picture_->setFixedSize(Measure::nowPicture);
    picture_->setCrop({Measure::nowCrop});
    name_ = new Text({}, Type::rowTitleStrong, SB::ink, row);
    camera_ = new Text({}, Type::label2, SB::muted, row);
    certainty_ = new Text({}, Type::label2, SB::muted, row);
    location_ = new Text({}, Type::label2Medium, SB::teal, row);
    auto* words = new QVBoxLayout;
    words->setSpacing(0);
    for (Text* line : {name_, camera_, certainty_, location_}) {
        line->setMaximumLines(1);
        words->addWidget(line);
        words->addSpacing(line == name_ ? 1 : 0);
    }
    words->addStretch(1);
    auto* pictureColumn = new QVBoxLayout;
    pictureColumn->setSpacing(0);
    pictureColumn->addSpacing(Measure::nowPictureTop);
    pictureColumn->addWidget(picture_);
    pictureColumn->addStretch(1);
    auto* columns = bareLayout<QHBoxLayout>(row, Measure::visitorGap);
    columns->addLayout(pictureColumn);
    columns->addLayout(words, 1);
    return row;
}

QWidget* NowGroup::buildMetrics() {
    auto* row = new QWidget(this);
    const auto make = [row](const QString& label) {
        return new Metric(label, Metric::Size::regular, false, row);
    };
    battery_ = make(tr("Battery"));
    toVisitor_ = make(tr("To visitor"));
    fromPad_ = make(tr("From pad"));
    auto* halves = bareLayout<QGridLayout>(row);
    halves->addWidget(battery_, 0, 0, Qt::AlignTop);
    halves->addWidget(toVisitor_, 0, 1, Qt::AlignTop);
    halves->addWidget(fromPad_, 0, 1, Qt::AlignTop);
    for (const int half : {0, 1})
        halves->setColumnStretch(half, 1);
    return row;
}

void NowGroup::setLow(bool low) {
    line_->setContentsMargins(0, low ? Measure::gap12 : Measure::gap20, 0,
                              low ? Measure::gap12 : Measure::gap16);
}

bool NowGroup::isDue() const {
    return store_.phase() != Phase::docked || (store_.knownState() && store_.knownState()->visitor);
}

void NowGroup::refresh() {
    if (!isDue())
        return;
    const LiveState& state = *store_.knownState();
    showHeading();
    showVisitor(state);
    showMetrics(state);
    showLaunch();
}

/// The time is that of the state, which a waiting alert does not need: its camera picture is older.
void NowGroup::showHeading() {
    const bool stale = store_.freshness() == Freshness::stale;
    const Date received = store_.lastAnswerAt().value_or(store_.now());
    heading_->setText(stale ? tr("Last known") : tr("Now"));
    time_->setRuns(
        {stale ? TextRun{tr("%1 ago").arg(age(store_.now() - received)), Type::label2Medium, SB::alert}
               : TextRun{timeOfDay(received), Type::label2.withTabularDigits(), SB::muted}});
    time_->setVisible(stale || store_.phase() != Phase::awaitingApproval);
}

void NowGroup::showVisitor(const LiveState& state) {
    visitor_->setVisible(state.visitor.has_value());
    const auto gapBelow = [&](int gap) { return state.visitor ? gap - overhang : Measure::nowPictureTop; };
    launchRow_->layout()->setContentsMargins(0, gapBelow(Measure::gap16), 0, 0);
    metrics_->layout()->setContentsMargins(0, gapBelow(Measure::gap20), 0, 0);
    if (!state.visitor)
        return;
    const Visitor& visitor = *state.visitor;
    const bool stale = store_.freshness() == Freshness::stale;
    picture_->setName(visitorPicture(visitor, state.site));
    picture_->setOpacity(stale ? Measure::staleOpacity : 1);
    name_->setText(personName(visitor.label));
    camera_->setText(visitorCamera(visitor, state.site));
    certainty_->setText(certaintyText(visitor));
    location_->setText(visitor.inside ? tr("Inside your boundary") : tr("Outside your boundary"));
    picture_->setDescription(tr("Picture of %1").arg(camera_->text()));
    name_->setColor(stale ? SB::muted : SB::ink);
    location_->setColor(stale ? SB::muted : visitor.inside ? SB::teal : SB::ink);
}

void NowGroup::showLaunch() {
    const bool waits = store_.phase() == Phase::awaitingApproval;
    const bool stale = store_.freshness() == Freshness::stale;
    if ((!waits || stale) && launch_->hasFocus())
        setFocus(Qt::OtherFocusReason); // otherwise the focus would move to the next control
    launch_->setSent(store_.pendingCommand() == Command::approve);
    launch_->setEnabled(!stale);
    launchRow_->setVisible(waits);
}

void NowGroup::showMetrics(const LiveState& state) {
    metrics_->setVisible(airborne(state.phase));
    const bool low = isBatteryLow(state.drone, store_.settings());
    const bool stale = store_.freshness() == Freshness::stale;
    battery_->setValue(rounded(state.drone.battery), tr("%"));
    battery_->setTint(low ? std::optional(SB::caution) : std::nullopt);
    battery_->setReason(low ? batteryReason(store_.settings()) : QString());
    fromPad_->setValue(rounded(distance(state.drone.pos, state.site.pad)), tr("m"));
    if (state.visitor)
        toVisitor_->setValue(rounded(distance(state.drone.pos, state.visitor->pos)), tr("m"));
    toVisitor_->setVisible(state.visitor.has_value());
    fromPad_->setVisible(!state.visitor);
    for (Metric* metric : {battery_, toVisitor_, fromPad_})
        metric->setDimmed(stale);
}

} // namespace velmora
