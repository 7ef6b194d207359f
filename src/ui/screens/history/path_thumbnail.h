#pragma once

#include "model/mission_record.h"

#include <QRectF>

class QPainter;

namespace velmora {

/// Draws the record's two paths, scaled to fit the rectangle.
void paintPathThumbnail(QPainter& painter, const QRectF& rect, const MissionRecord& record);

} // namespace velmora
