#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class SBButton;
class Text;

/// What the owner may ask of the drone in the phase at hand.
class FlightControls : public QWidget {
    Q_OBJECT

public:
    FlightControls(AppStore& store, QWidget* parent);

    void refresh();

signals:
    /// "Land now": sends nothing before the owner confirms.
    void landRequested();

private:
    AppStore& store_;
    Text* explanation_;
    QWidget* explained_; ///< the explanation with the room below it
    SBButton* hold_;
    SBButton* resume_;
    SBButton* returnHome_;
    SBButton* land_;
    SBButton* simulate_;
};

} // namespace velmora
