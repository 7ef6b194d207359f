#pragma once

#include "ui/screens/screen.h"

namespace velmora {

class AnswerGuard;
class ArmSwitch;

/// Overview: a calm summary of the grounds.
class OverviewView : public Screen {
    Q_OBJECT

public:
    OverviewView(AppStore& store, AnswerGuard& guard, QWidget* parent);

protected:
    void refresh() override;

private:
    class Content;

    ArmSwitch* armSwitch_;
    Content* content_;
};

} // namespace velmora
