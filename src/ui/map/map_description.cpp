#include "ui/map/map_description.h"

#include "ui/look/words.h"

#include <QCoreApplication>

#include <algorithm>

namespace velmora {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("SiteMap", text);
}

QString describeReplay(const Replay& replay) {
    if (replay.visitorPath().empty())
        return tr("Replay: nobody was tracked.");
    const QString walked = tr("Replay of the visitor's path");
    return replay.dronePath().size() < 2 ? walked + tr("; the drone stayed on its pad.")
                                         : walked + tr(" and of the drone's, at most %1 m from its pad.")
                                                        .arg(rounded(replay.record->maxDistanceFromPad));
}

QString describeDrone(const LiveState& state) {
    if (!airborne(state.phase))
        return tr("The drone is on its pad.");
    const DroneState& drone = state.drone;
    return tr("The drone is at %1 m height, %2 m from its pad and %3 m from the boundary.")
        .arg(rounded(drone.altitude), rounded(distance(drone.pos, state.site.pad)),
             rounded(std::max(boundsOf(state.site).distanceInside(drone.pos), 0.0)));
}

QString describeVisitor(const Visitor& visitor, const LiveState& state) {
    const Bounds bounds = boundsOf(state.site);
    const QString where =
        bounds.contains(visitor.pos)
            ? tr("%1 m inside the boundary").arg(rounded(bounds.distanceInside(visitor.pos)))
            : tr("outside the boundary");
    const QString label = visitor.label.empty() ? tr("Unknown person") : toQString(visitor.label);
    return tr("%1 is %2 m from the drone, %3.")
        .arg(label, rounded(distance(visitor.pos, state.drone.pos)), where);
}

} // namespace

QString mapDescription(const MapScene& scene) {
    if (scene.replay)
        return describeReplay(*scene.replay);
    const QString drone = tr("Map of your grounds. ") + describeDrone(scene.state);
    if (!scene.state.visitor)
        return drone + ' ' + tr("Nobody is being watched.");
    return drone + ' ' + describeVisitor(*scene.state.visitor, scene.state);
}

} // namespace velmora
