#include "ui/screens/live/land_confirmation.h"

namespace velmora {

LandConfirmation::LandConfirmation(AppStore& store, QWidget* window)
    : ConfirmationCard(
          {tr("Land the drone where it is now?"),
           tr("It will come down on the spot, not on its pad. Use this only if something is wrong."),
           tr("Keep flying"), tr("Land now")},
          window) {
    connect(this, &ConfirmationCard::confirmed, this, [&store] { store.send(Command::land); });
    const auto closeUnlessFlying = [this, &store] {
        if (!airborne(store.phase()))
            close();
    };
    connect(&store, &AppStore::stateChanged, this, closeUnlessFlying);
    connect(&store, &AppStore::freshnessChanged, this, closeUnlessFlying);
    connect(&store, &AppStore::sectionChanged, this, &OverlayCard::close);
}

} // namespace velmora
