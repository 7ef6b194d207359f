#include "ui/map/map_scene.h"

#include <algorithm>

namespace velmora {

MapTransform::MapTransform(QSizeF canvas, P siteSize)
    : canvas_(canvas), scale_(std::min(canvas.width() / siteSize.x, canvas.height() / siteSize.y)) {
    const QSizeF size(siteSize.x * scale_, siteSize.y * scale_);
    offset_ = {(canvas.width() - size.width()) * 0.5, (canvas.height() - size.height()) * 0.5};
    plan_ = {offset_, size};
}

QRectF MapTransform::map(const Bounds& bounds) const {
    return {map(P{bounds.minX, bounds.minY}), map(P{bounds.maxX, bounds.maxY})};
}

double padRadius(const MapScene& scene, const MapTransform& view) {
    constexpr double metres = 2.6;
    return std::max(metres * view.scale(), scene.measures.padMinimum);
}

} // namespace velmora
