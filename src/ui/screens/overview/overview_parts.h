#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class SBButton;
class StatusDot;
class Text;

/// Shows whether the system is armed, with the buttons to arm and disarm it.
class ArmSwitch : public QWidget {
    Q_OBJECT

public:
    ArmSwitch(AppStore& store, QWidget* parent);

    void refresh();

protected:
    /// Drops the second press of a double click, which would undo the first.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void offer(bool armed);

    AppStore& store_;
    StatusDot* dot_;
    Text* word_;
    SBButton* disarm_;
    SBButton* arm_;
};

/// The buttons for demo visits; hidden in link mode and during a mission.
class VisitOffers : public QWidget {
    Q_OBJECT

public:
    VisitOffers(AppStore& store, QWidget* parent);

    void refresh();

private:
    AppStore& store_;
};

} // namespace velmora
