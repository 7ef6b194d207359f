#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class FlightControls;
class LogList;
class PhaseTimeline;
class Text;
class VisitorCard;

/// The column to the right of the live card: mission steps, controls, visitor and flight log.
class LiveRail : public QWidget {
    Q_OBJECT

public:
    LiveRail(AppStore& store, QWidget* parent);

    void refresh();

signals:
    void landRequested();

private:
    QWidget* buildVisitor();
    QWidget* buildLog();

    AppStore& store_;
    PhaseTimeline* timeline_;
    FlightControls* controls_;
    VisitorCard* visitor_;
    QWidget* visitorBlock_;
    Text* nothingLogged_;
    LogList* log_;
};

} // namespace velmora
