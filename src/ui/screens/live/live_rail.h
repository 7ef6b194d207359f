#pragma once

#include "store/app_store.h"

#include <QWidget>

class QVBoxLayout;

namespace velmora {

class FlightControls;
class LogList;
class PhaseTimeline;
class Text;
class VisitorCard;

/// The column to the right of the live card: controls, mission steps, visitor and flight log.
class LiveRail : public QWidget {
    Q_OBJECT

public:
    LiveRail(AppStore& store, QWidget* parent);

    void refresh();
    /// Uses smaller gaps and the timeline in one line, for low windows.
    void setLow(bool low);

signals:
    void landRequested();

private:
    QWidget* buildVisitor();
    QWidget* buildLog();

    AppStore& store_;
    QVBoxLayout* column_;
    PhaseTimeline* timeline_;
    FlightControls* controls_;
    VisitorCard* visitor_;
    QWidget* visitorBlock_;
    Text* nothingLogged_;
    LogList* log_;
};

} // namespace velmora
