#pragma once

#include "ui/look/ui_clock.h"
#include "ui/screens/screen.h"

namespace velmora {

class AnswerGuard;
class ArmSwitch;
class Fold;
class MapCard;
class OverviewBanner;
class OverviewRail;
class StatusStrip;

/// Overview: a summary of the site.
class OverviewView : public Screen {
    Q_OBJECT

public:
    OverviewView(AppStore& store, AnswerGuard& guard, QWidget* parent);

protected:
    void refresh() override;
    void follow() override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Updates what changes with time, too.
    void refreshMission();

    ArmSwitch* armSwitch_;
    OverviewBanner* banner_;
    Fold* bannerFold_;
    MapCard* map_;
    OverviewRail* rail_;
    StatusStrip* strip_;
    UiTimer everySecond_{std::chrono::seconds(1)}; ///< runs while a time is shown
};

} // namespace velmora
