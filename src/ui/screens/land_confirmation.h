#pragma once

#include "store/app_store.h"
#include "ui/blocks/overlay_card.h"

namespace velmora {

class SBButton;

/// Asks before the drone comes down on the spot. Dismissing it sends nothing.
class LandConfirmation : public OverlayCard {
    Q_OBJECT

public:
    LandConfirmation(AppStore& store, QWidget* window);

protected:
    void takeFirstFocus() override;

private:
    AppStore& store_;
    SBButton* keepFlying_;
};

} // namespace velmora
