#pragma once

#include "store/app_store.h"

#include <QWidget>

#include <array>

namespace velmora {

class ArtImage;
class BoundaryChartView;
class Hairline;
class LogList;
class Metric;
class ResponseTimes;
class Text;

/// A record below its heading, in one column or in two: the replay, four metrics, the response times, the
/// distance kept from the boundary, the notices, and the visitor. Clicking a notice moves the replay to its
/// time.
class RecordFacts : public QWidget {
    Q_OBJECT

public:
    /// Takes ownership of the replay.
    RecordFacts(QWidget* replay, QWidget* parent);

    void setTwoColumns(bool two);
    void setRecord(const MissionRecord& record);
    /// nullopt if nobody answered the alert.
    void setAnswer(const MissionRecord& record, const std::optional<GivenAnswer>& answer);
    void setBoundary(const MissionRecord& record, const Site& site, const Settings& settings);
    /// Highlights the last notice up to this time after the start of the record, in seconds; nullopt for
    /// none.
    void setMoment(const MissionRecord& record, const std::optional<double>& seconds);

signals:
    /// The owner clicked a notice; `seconds` counts from the start of the record.
    void momentRequested(double seconds);

private:
    QWidget* boundarySection();
    void showChart();
    QWidget* section(const QString& heading, QWidget* content, int gap);
    QWidget* buildResponse();
    void layoutMetrics(int columns);
    void layoutOneColumn();
    void layoutTwoColumns();
    void layoutVisitor(bool wide);
    void showMetrics(const MissionRecord& record);
    void showVisitor(const MissionRecord& record);

    QWidget* replay_;
    QWidget* metrics_;
    Metric* duration_;
    Metric* furthest_;
    Metric* battery_;
    Metric* match_;
    ResponseTimes* response_;
    Text* answer_;
    QWidget* responseSection_;
    LogList* log_;
    QWidget* logSection_;
    Text* boundary_;
    BoundaryChartView* chart_;
    QWidget* boundarySection_;
    QWidget* visitor_;
    ArtImage* picture_;
    Text* identity_;
    Text* times_;
    std::array<Hairline*, 3> lines_{};
    bool hasChart_ = false; ///< the drone flew
    std::optional<bool> twoColumns_;
    Date start_;
};

} // namespace velmora
