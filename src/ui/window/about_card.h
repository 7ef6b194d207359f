#pragma once

#include "ui/blocks/overlay_card.h"

namespace velmora {

/// Shows the name, the version and a description of the program.
class AboutCard : public OverlayCard {
    Q_OBJECT

public:
    explicit AboutCard(QWidget* window);
};

} // namespace velmora
