#pragma once

#include "model/live_state.h"
#include "model/settings.h"

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
    /// The grounds without captions, for a map of this size in pixels at 96 dpi.
    const QImage& grounds(const Site& site, const Settings& settings, QSizeF size);

private:
    QHash<QString, QImage> cameras_;
    QImage grounds_;
};

} // namespace velmora
