#pragma once

#include "store/app_store.h"
#include "ui/blocks/confirmation_card.h"

namespace velmora {

/// Asks before the drone comes down on the spot.
class LandConfirmation : public ConfirmationCard {
    Q_OBJECT

public:
    LandConfirmation(AppStore& store, QWidget* window);
};

} // namespace velmora
