#include "ui/screens/land_confirmation.h"

#include "ui/blocks/sb_button.h"
#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QVBoxLayout>

namespace velmora {

LandConfirmation::LandConfirmation(AppStore& store, QWidget* window)
    : OverlayCard(Measure::confirmationCard, window), store_(store) {
    const QString title = tr("Land the drone where it is now?");
    setAccessibleName(title);
    keepFlying_ = new SBButton(tr("Keep flying"), {.kind = SBButtonKind::secondary}, card());
    auto* land = new SBButton(tr("Land now"), {.kind = SBButtonKind::danger}, card());
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Measure::gap12);
    buttons->addStretch(1);
    buttons->addWidget(keepFlying_);
    buttons->addWidget(land);

    column()->setContentsMargins(Measure::confirmationMargins);
    column()->addWidget(new Text(title, Type::confirmationTitle, SB::ink, card()));
    column()->addSpacing(Measure::gap8);
    column()->addWidget(
        new Text(tr("It will come down on the spot, not on its pad. Use this only if something is wrong."),
                 Type::confirmationBody, SB::body, card()));
    column()->addSpacing(Measure::gap24);
    column()->addLayout(buttons);

    connect(keepFlying_, &SBButton::clicked, this, &OverlayCard::close);
    connect(this, &OverlayCard::dismissed, this, &OverlayCard::close);
    connect(land, &SBButton::clicked, this, [this] {
        store_.send(Command::land);
        close();
    });
    connect(&store_, &AppStore::stateChanged, this, [this] {
        if (!airborne(store_.state().phase))
            close();
    });
}

/// Its ring is shown whatever opened the card: what Enter would do must be plain to see.
void LandConfirmation::takeFirstFocus() {
    keepFlying_->setFocus(Qt::TabFocusReason);
}

} // namespace velmora
