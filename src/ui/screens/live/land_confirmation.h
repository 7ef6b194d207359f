#pragma once

#include "store/app_store.h"
#include "ui/blocks/confirmation_card.h"

namespace velmora {

/// Asks for confirmation before the drone lands where it is.
class LandConfirmation : public ConfirmationCard {
    Q_OBJECT

public:
    LandConfirmation(AppStore& store, QWidget* window);
};

} // namespace velmora
