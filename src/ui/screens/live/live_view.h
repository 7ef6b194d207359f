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

    /// The column with the controls.
    QWidget* rail() const;
    /// The dark card with map and telemetry.
    QWidget* card() const;

signals:
    /// The owner clicked "Land now". Ask for confirmation before sending anything.
    void landRequested();

protected:
    void refresh() override;
    void follow() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void fitHeight();

    LiveCard* card_;
    LiveRail* rail_;
    Fold* stale_;
    bool low_ = false;
};

} // namespace velmora
