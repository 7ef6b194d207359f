#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class SBButton;
class Text;

/// The commands available to the owner in the current phase.
class FlightControls : public QWidget {
    Q_OBJECT

public:
    FlightControls(AppStore& store, QWidget* parent);

    void refresh();

signals:
    /// The owner clicked "Land now". Ask for confirmation before sending anything.
    void landRequested();

private:
    AppStore& store_;
    Text* explanation_;
    QWidget* explanationBlock_; ///< the explanation and the space below it
    SBButton* hold_;
    SBButton* resume_;
    SBButton* returnHome_;
    SBButton* land_;
    SBButton* simulate_;
};

} // namespace velmora
