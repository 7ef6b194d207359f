#pragma once

#include "ui/screens/screen.h"

namespace velmora {

class Fold;
class LiveCard;
class LiveRail;

/// Live flight: where the owner watches and steers a flight.
class LiveView : public Screen {
    Q_OBJECT

public:
    LiveView(AppStore& store, QWidget* parent);

signals:
    /// "Land now" was pressed; nothing is sent before the owner confirms.
    void landRequested();

protected:
    void refresh() override;

private:
    LiveCard* card_;
    LiveRail* rail_;
    Fold* stale_;
};

} // namespace velmora
