#pragma once

#include "ui/blocks/overlay_card.h"

namespace velmora {

/// What this program is.
class AboutCard : public OverlayCard {
    Q_OBJECT

public:
    explicit AboutCard(QWidget* window);
};

} // namespace velmora
