#pragma once

#include "model/mission_record.h"

#include <QWidget>

namespace velmora {

class Text;

/// How long each step of the response took, as a sentence, or as a bar with a row for each step.
class ResponseTimes : public QWidget {
    Q_OBJECT

public:
    explicit ResponseTimes(QWidget* parent);

    void setRecord(const MissionRecord& record);
    void setChartShown(bool shown);

private:
    class Chart;

    Text* total_;
    Text* sentence_;
    Chart* chart_;
};

} // namespace velmora
