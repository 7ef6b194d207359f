#pragma once

#include "ui/screens/screen.h"

namespace velmora {

class ActiveBanner;
class AnswerGuard;
class ArmSwitch;
class Fold;
class MapCard;
class StatusStrip;

/// Overview: a summary of the site.
class OverviewView : public Screen {
    Q_OBJECT

public:
    OverviewView(AppStore& store, AnswerGuard& guard, QWidget* parent);

protected:
    void refresh() override;

private:
    class Rail;

    ArmSwitch* armSwitch_;
    Fold* stale_;
    Fold* active_;
    ActiveBanner* activeBanner_;
    MapCard* map_;
    Rail* rail_;
    StatusStrip* strip_;
};

} // namespace velmora
