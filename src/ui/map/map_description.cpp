#include "ui/map/map_description.h"

#include "language/language.h"
#include "ui/look/words.h"

#include <algorithm>

namespace velmora {

namespace {

QString describeReplay(const Replay& replay) {
    if (replay.visitorPath().empty())
        return Words::tr("Replay: nobody was tracked.");
    return replay.dronePath().size() < 2
               ? Words::tr("Replay of the visitor's path; the drone stayed on its pad.")
               : Words::tr("Replay of the visitor's path and of the drone's, at most %1 m from its pad.")
                     .arg(rounded(replay.record->maxDistanceFromPad));
}

QString describeDrone(const LiveState& state) {
    if (!airborne(state.phase))
        return Words::tr("The drone is on its pad.");
    const DroneState& drone = state.drone;
    return Words::tr("The drone is at %1 m height, %2 m from its pad and %3 m from the boundary.")
        .arg(rounded(drone.altitude), rounded(distance(drone.pos, state.site.pad)),
             rounded(std::max(boundsOf(state.site).distanceInside(drone.pos), 0.0)));
}

QString describeVisitor(const Visitor& visitor, const LiveState& state) {
    const Bounds bounds = boundsOf(state.site);
    const QString name = personName(visitor.label);
    const QString toDrone = rounded(distance(visitor.pos, state.drone.pos));
    return bounds.contains(visitor.pos)
               ? Words::tr("%1 is %2 m from the drone, %3 m inside the boundary.")
                     .arg(name, toDrone, rounded(bounds.distanceInside(visitor.pos)))
               : Words::tr("%1 is %2 m from the drone, outside the boundary.").arg(name, toDrone);
}

} // namespace

QString mapDescription(const MapScene& scene) {
    if (scene.replay)
        return describeReplay(*scene.replay);
    const QString drone = Words::tr("Map of your grounds.") + ' ' + describeDrone(scene.state);
    if (!scene.state.visitor)
        return drone + ' ' + Words::tr("Nobody is being watched.");
    return drone + ' ' + describeVisitor(*scene.state.visitor, scene.state);
}

} // namespace velmora
