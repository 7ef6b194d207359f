#pragma once

#include "model/live_state.h"
#include "model/mission_evidence.h"
#include "model/settings.h"
#include "ui/map/map_measures.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <memory>
#include <optional>
#include <span>

namespace velmora {

/// A finished mission, as far as it had happened at one moment.
struct Replay {
    std::shared_ptr<const MissionRecord> record; ///< never null
    Progress progress;

    std::span<const P> visitorPath() const {
        return std::span(record->visitorPath).first(progress.visitorPoints);
    }
    std::span<const P> dronePath() const { return std::span(record->dronePath).first(progress.dronePoints); }

    bool operator==(const Replay&) const = default;
};

/// Where the visitor's label stands.
enum class LabelSide { right, left, above, below };

/// Everything that one painting of the map shows.
struct MapScene {
    LiveState state;
    Settings settings;
    std::optional<Replay> replay; ///< shown instead of the live visitor and drone
    MapMeasures measures;
    LabelSide labelSide = LabelSide::right;
};

/// Converts site metres to canvas pixels; the plan is fitted into the canvas and centred.
class MapTransform {
public:
    MapTransform(QSizeF canvas, P siteSize);

    /// Pixels per metre.
    double scale() const { return scale_; }
    QPointF map(P site) const { return {offset_.x() + site.x * scale_, offset_.y() + site.y * scale_}; }
    QRectF canvas() const { return {QPointF(), canvas_}; }
    /// The plan's rectangle in the canvas.
    QRectF plan() const { return plan_; }
    /// The boundary's bounding box in the canvas.
    QRectF map(const Bounds& bounds) const;

private:
    QSizeF canvas_;
    double scale_;
    QPointF offset_;
    QRectF plan_;
};

/// Radius of the pad's ring in pixels.
double padRadius(const MapScene& scene, const MapTransform& view);

} // namespace velmora
