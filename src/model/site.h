#pragma once

#include "model/point.h"

#include <algorithm>
#include <string>
#include <vector>

namespace velmora {

/// One fixed camera of the site, identified by its id.
struct CameraInfo {
    std::string id; ///< also the key of the per-camera alert switches in the settings
    std::string name;
    P pos;
    double heading = 0;   ///< degrees from the +x axis towards +y
    std::string snapshot; ///< name of the artwork shown as the camera's view
    bool online = false;
};

template <>
inline constexpr auto fieldsOf<CameraInfo> = std::tuple{Field{"id", &CameraInfo::id},
                                                        Field{"name", &CameraInfo::name},
                                                        Field{"pos", &CameraInfo::pos},
                                                        Field{"heading", &CameraInfo::heading},
                                                        Field{"snapshot", &CameraInfo::snapshot},
                                                        Field{"online", &CameraInfo::online}};

/// The protected grounds.
struct Site {
    std::string name;
    P size;                          ///< width (x) and depth (y) of the plan, metres
    std::vector<P> boundary;         ///< polygon in order, not closed
    P pad;                           ///< the landing pad
    std::vector<CameraInfo> cameras; ///< in display order
    std::string planImage;           ///< name of the artwork under the plan
};

template <>
inline constexpr auto fieldsOf<Site> =
    std::tuple{Field{"name", &Site::name},         Field{"size", &Site::size},
               Field{"boundary", &Site::boundary}, Field{"pad", &Site::pad},
               Field{"cameras", &Site::cameras},   Field{"planImage", &Site::planImage}};

/// The site's camera with this id, or null.
inline const CameraInfo* findCamera(const Site& site, std::string_view id) {
    for (const CameraInfo& camera : site.cameras)
        if (camera.id == id)
            return &camera;
    return nullptr;
}

/// The rectangle that bounds the boundary polygon, metres. All four are 0 for an empty boundary.
struct Bounds {
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;

    /// Edges included.
    bool contains(P p) const { return minX <= p.x && p.x <= maxX && minY <= p.y && p.y <= maxY; }
    /// Metres from the nearest edge; negative outside.
    double distanceInside(P p) const { return std::min({p.x - minX, maxX - p.x, p.y - minY, maxY - p.y}); }
};

inline Bounds boundsOf(const Site& site) {
    if (site.boundary.empty())
        return {};
    const P first = site.boundary.front();
    Bounds bounds{first.x, first.y, first.x, first.y};
    for (const P& p : site.boundary) {
        bounds.minX = p.x < bounds.minX ? p.x : bounds.minX;
        bounds.minY = p.y < bounds.minY ? p.y : bounds.minY;
        bounds.maxX = p.x > bounds.maxX ? p.x : bounds.maxX;
        bounds.maxY = p.y > bounds.maxY ? p.y : bounds.maxY;
    }
    return bounds;
}

} // namespace velmora
