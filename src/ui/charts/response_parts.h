#pragma once

#include "model/mission_record.h"

#include <QColor>
#include <QPainter>
#include <QString>

#include <vector>

namespace velmora {

/// The time between two steps of the response to an alert.
struct ResponsePart {
    QString name;
    QColor color;
    Seconds length{};
};

/// The parts of a visit from the detection to the end; steps that did not happen are left out. Never empty.
std::vector<ResponsePart> responseParts(const MissionRecord& record);

/// "Seen → 8 s → answered → 5 s → airborne".
QString responseSentence(const MissionRecord& record);

/// Paints a bar that is cut in proportion to the parts. A short part is still two pixels wide.
void paintResponseBar(QPainter& painter, const QRectF& bar, const std::vector<ResponsePart>& parts);

} // namespace velmora
