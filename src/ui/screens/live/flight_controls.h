#pragma once

#include "store/app_store.h"

#include <QWidget>

class QVBoxLayout;

namespace velmora {

class SBButton;
class Text;

/// The commands available to the owner in the current phase. The button of a pending command takes no press.
class FlightControls : public QWidget {
    Q_OBJECT

public:
    FlightControls(AppStore& store, QWidget* parent);

    void refresh();
    /// Uses the smaller gap for low windows.
    void setLow(bool low);

signals:
    /// The owner clicked "Land now". Ask for confirmation before sending anything.
    void landRequested();

private:
    AppStore& store_;
    QVBoxLayout* outer_; ///< heading and controls
    Text* explanation_;
    QWidget* explanationBlock_; ///< the explanation and the space below it
    SBButton* hold_;
    SBButton* resume_;
    SBButton* returnHome_;
    SBButton* land_;
    SBButton* simulate_;
};

} // namespace velmora
