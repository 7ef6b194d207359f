#pragma once

#include "ui/look/measures.h"

namespace velmora {

/// The sizes of one kind of map in pixels. Whatever the site gives in metres is scaled with the map. The
/// defaults are those of a screen's map.
struct MapMeasures {
    bool captions = true;
    double cornerRadius = Measure::cardRadius;
    bool squareBottom = false; ///< the bottom corners are not rounded
    double boundaryDash = 6, boundaryGap = 5;
    double bufferBand = 0.16, bufferLine = 0.35; ///< opacities
    double cameraRadius = 4.5, cameraLine = 1.5;
    double padMinimum = 0; ///< smallest radius of the pad's ring
    double visitorRadius = 5, visitorLine = 1.5;
    double pulseFrom = 6, pulseTo = 20; ///< radii of the ring around the visitor
    double droneScale = 1;
    double followRing = 0.18; ///< opacity
    double pathWidth = 1.8;
    double holdRadius = 0; ///< of the point where the drone would hold; 0: not shown

    bool operator==(const MapMeasures&) const = default;
};

/// The small map inside a picture, at the top of a rounded frame.
inline constexpr MapMeasures insetMap{.captions = false,
                                      .cornerRadius = 7, // inside a frame with a radius of 8
                                      .squareBottom = true,
                                      .boundaryDash = 3.5,
                                      .boundaryGap = 2.5,
                                      .cameraRadius = 2.2,
                                      .cameraLine = 1,
                                      .padMinimum = 4,
                                      .visitorRadius = 3.6,
                                      .visitorLine = 1.2,
                                      .pulseFrom = 4,
                                      .pulseTo = 7.5,
                                      .droneScale = 0.46,
                                      .pathWidth = 1.35,
                                      .holdRadius = 5};

} // namespace velmora
