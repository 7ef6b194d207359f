#include "ui/screens/live/land_confirmation.h"

#include "ui/blocks/hairline.h"
#include "ui/blocks/text.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/live/live_view.h"

#include <QEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {

LandConfirmation::LandConfirmation(AppStore& store, QWidget* window)
    : ConfirmationCard(
          {tr("Land the drone where it is now?"),
           tr("It will come down on the spot, not on its pad. Use this only if something is wrong."),
           tr("Keep flying"), tr("Land now")},
          window,
          {.width = Measure::landingCard,
           .margins = Measure::landingMargins,
           .aboveButtons = Measure::gap20,
           .betweenButtons = Measure::gap8,
           .wideButtons = true}),
      store_(store) {
    auto* block = new QWidget(card());
    facts_ = new Text({}, Type::bodyStrong, SB::ink, block);
    auto* column = new QVBoxLayout(block);
    column->setContentsMargins(0, Measure::gap16, 0, 0);
    column->setSpacing(Measure::factsGap);
    column->addWidget(new Hairline(block, Hairline::Tone::first));
    column->addWidget(facts_);
    addBelowBody(block);
    connect(this, &ConfirmationCard::confirmed, this,
            [this] { store_.send(Command::land, CommandSource::live); });
    connect(&store_, &AppStore::stateChanged, this, &LandConfirmation::follow);
    connect(&store_, &AppStore::moved, this, &LandConfirmation::follow);
    connect(&store_, &AppStore::freshnessChanged, this, &LandConfirmation::follow);
    connect(&store_, &AppStore::sectionChanged, this, &OverlayCard::close);
}

void LandConfirmation::ask(const LiveView& live) {
    if (!airborne(store_.phase()))
        return;
    live_ = &live;
    for (QObject* beside : {live.rail(), live.card()})
        beside->installEventFilter(this);
    showFacts();
    place();
    open();
}

/// Closes the card when the flight is over.
void LandConfirmation::follow() {
    if (!isOpen())
        return;
    if (airborne(store_.phase()))
        showFacts();
    else
        close();
}

void LandConfirmation::showFacts() {
    const LiveState& state = *store_.knownState();
    facts_->setText(
        tr("%1 m up · %2 m from the pad")
            .arg(rounded(state.drone.altitude), rounded(distance(state.drone.pos, state.site.pad))));
}

void LandConfirmation::place() {
    const auto area = [this](const QWidget* widget) {
        return QRect(widget->mapTo(window(), QPoint()), widget->size());
    };
    const QRect rail = area(live_->rail());
    const int lowest = window()->height() - column()->totalHeightForWidth(card()->width()) - Measure::gap8;
    setCorner({rail.left() - Measure::landingSide,
               std::max(std::min(rail.top(), lowest), Measure::titleStrip + Measure::gap8)});
    setBright(area(live_->card()) & area(live_), Measure::cardRadius);
}

bool LandConfirmation::eventFilter(QObject* watched, QEvent* event) {
    if (isOpen() && (event->type() == QEvent::Move || event->type() == QEvent::Resize))
        place();
    return ConfirmationCard::eventFilter(watched, event);
}

} // namespace velmora
