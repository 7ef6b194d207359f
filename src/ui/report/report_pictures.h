#pragma once

#include "ui/map/map_scene.h"

#include <QHash>
#include <QImage>

#include <optional>

namespace velmora {

/// The pictures of one report. Each is loaded once and stays the same, so that the document holds it once.
class ReportPictures {
public:
    /// The whole camera picture in its own resolution, but at most 4096 pixels wide and high; null if there
    /// is none.
    const QImage& camera(const QString& name);
    /// The grounds of the first scene that it is called with, for a map of this size in pixels at 96 dpi.
    const QImage& grounds(const MapScene& scene, QSizeF size);

private:
    QHash<QString, QImage> cameras_;
    QImage grounds_;
};

} // namespace velmora
