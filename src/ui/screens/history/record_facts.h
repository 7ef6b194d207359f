#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class ArtImage;
class LogList;
class Metric;
class Text;

/// The facts of a record: four metrics, the response times, the distance kept from the boundary, the notices,
/// and the visitor. Clicking a notice moves the replay to its time.
class RecordFacts : public QWidget {
    Q_OBJECT

public:
    explicit RecordFacts(QWidget* parent);

    void setRecord(const MissionRecord& record, const Site& site, const Settings& settings);

signals:
    /// The owner clicked a notice; `seconds` counts from the start of the record.
    void momentRequested(double seconds);

private:
    QWidget* buildMetrics();
    QWidget* buildVisitor();
    void showMetrics(const MissionRecord& record);
    void showBoundary(const MissionRecord& record, const Site& site, const Settings& settings);
    void showVisitor(const MissionRecord& record);

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
