#pragma once

#include "store/app_store.h"
#include "ui/blocks/confirmation_card.h"

namespace velmora {

class LiveView;
class Text;

/// Asks for confirmation before the drone lands where it is. The card covers the rail, and map and
/// telemetry stay bright and live beside it.
class LandConfirmation : public ConfirmationCard {
    Q_OBJECT

public:
    LandConfirmation(AppStore& store, QWidget* window);

    /// Opens the card beside the map of `live`. Its buttons lie below the button that asked, so that a double
    /// click on that one lands nothing.
    void ask(const LiveView& live);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();
    void showFacts();
    void place();

    AppStore& store_;
    const LiveView* live_ = nullptr; ///< where the card was opened
    Text* facts_;
};

} // namespace velmora
