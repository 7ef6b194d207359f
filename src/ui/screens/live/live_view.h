#pragma once

#include "ui/screens/screen.h"

namespace velmora {

class Fold;
class LiveCard;
class LiveRail;

/// Live flight: shows the flight and offers its controls.
class LiveView : public Screen {
    Q_OBJECT

public:
    LiveView(AppStore& store, QWidget* parent);

signals:
    /// The owner clicked "Land now". Ask for confirmation before sending anything.
    void landRequested();

protected:
    void refresh() override;

private:
    LiveCard* card_;
    LiveRail* rail_;
    Fold* stale_;
};

} // namespace velmora
