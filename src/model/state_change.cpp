#include "model/state_change.h"

#include "model/flight_limits.h"

#include <cmath>

namespace velmora {

namespace {

bool sameVisitor(const std::optional<Visitor>& a, const std::optional<Visitor>& b) {
    return a.has_value() == b.has_value() && (!a || sameBut<&Visitor::pos, &Visitor::trail>(*a, *b));
}

bool sameSituation(const LiveState& a, const LiveState& b) {
    return sameBut<&LiveState::drone, &LiveState::visitor, &LiveState::windKmh, &LiveState::gustKmh>(a, b) &&
           sameVisitor(a.visitor, b.visitor);
}

/// The gust is not shown.
bool looksSame(const LiveState& a, const LiveState& b, const Settings& settings) {
    return sameBut<&DroneState::battery, &DroneState::signal>(a.drone, b.drone) &&
           std::round(a.drone.battery) == std::round(b.drone.battery) &&
           std::round(a.drone.signal * 100) == std::round(b.drone.signal * 100) &&
           std::round(a.windKmh) == std::round(b.windKmh) &&
           isBatteryLow(a.drone, settings) == isBatteryLow(b.drone, settings) &&
           isTooWindy(a, settings) == isTooWindy(b, settings);
}

} // namespace

StateChange changeBetween(const LiveState& before, const LiveState& after, const Settings& settings) {
    if (!sameSituation(before, after))
        return StateChange::situation;
    const bool isQuiet = after.phase == Phase::docked && !after.visitor;
    const bool same = isQuiet ? looksSame(before, after, settings) : before == after;
    return same ? StateChange::none : StateChange::motion;
}

} // namespace velmora
