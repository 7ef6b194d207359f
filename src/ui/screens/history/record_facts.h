#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class ArtImage;
class LogList;
class Metric;
class Text;

/// What a record says in figures and words: its four facts, the response step by step, how the drone kept to
/// the boundary, and the notices. A click on a notice asks for its moment of the replay.
class RecordFacts : public QWidget {
    Q_OBJECT

public:
    explicit RecordFacts(QWidget* parent);

    void setRecord(const MissionRecord& record, const Site& site, const Settings& settings);

signals:
    /// Seconds after the record's start.
    void momentRequested(double seconds);

private:
    QWidget* buildMetrics();
    QWidget* buildAside();
    void showMetrics(const MissionRecord& record);
    void showBoundary(const MissionRecord& record, const Site& site, const Settings& settings);
    void showAside(const MissionRecord& record);

    Metric* duration_;
    Metric* furthest_;
    Metric* battery_;
    Metric* match_;
    LogList* log_;
    Text* response_;
    Text* boundary_;
    ArtImage* picture_;
    Text* identity_;
    Text* times_;
    Date start_;
};

} // namespace velmora
