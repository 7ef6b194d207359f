#pragma once

#include "model/mission_record.h"

#include <QRectF>

class QPainter;

namespace velmora {

/// The record's two paths, small, fitted into the rectangle by what they cover.
void paintPathThumbnail(QPainter& painter, const QRectF& rect, const MissionRecord& record);

} // namespace velmora
