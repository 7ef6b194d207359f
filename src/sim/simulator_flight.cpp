#include "sim/simulator.h"

#include "model/follow_point.h"

#include <algorithm>
#include <numbers>

namespace velmora {

namespace {

constexpr double chargePerSecond = 0.04; // percent, on the pad
constexpr double climbSpeed = 3;         // m/s
constexpr double descentSpeed = 1.6;     // m/s
constexpr double cruiseSpeed = 9;        // m/s, on the way to the visitor and home
constexpr double followSpeed = 7;        // m/s
constexpr double steeringGain = 0.9;     // 1/s
constexpr double maxAcceleration = 4;    // m/s²

double headingOf(P direction) {
    return std::atan2(direction.y, direction.x) * 180 / std::numbers::pi;
}

} // namespace

void Simulator::stepPhase(double dt) {
    switch (state.phase) {
    case Phase::docked:
        state.drone.speed = 0;
        state.drone.battery = std::min(state.drone.battery + chargePerSecond * dt, 100.0);
        break;
    case Phase::awaitingApproval:
        if (state.approvalDeadline && now_ >= *state.approvalDeadline)
            finish(Outcome::expired);
        break;
    case Phase::launching:
        climb(dt);
        break;
    case Phase::enRoute:
    case Phase::following:
        if (state.visitor)
            follow(dt);
        else
            state.phase = Phase::returning;
        break;
    case Phase::holding:
        hold(dt);
        break;
    case Phase::returning:
        flyHome(dt);
        break;
    case Phase::landing:
        descend(dt);
        break;
    }
}

void Simulator::climb(double dt) {
    state.drone.altitude = std::min(state.drone.altitude + climbSpeed * dt, settings.flightHeight);
    if (state.drone.altitude >= settings.flightHeight - 0.05)
        enter(Phase::enRoute, NoticeKind::airborne, settings.flightHeight);
}

void Simulator::follow(double dt) {
    const P visitor = state.visitor->pos;
    const auto [target, held] = followPoint(state.drone.pos, visitor, state.site, settings);
    if (held != state.atBoundary) {
        state.atBoundary = held;
        if (held)
            note(NoticeKind::atBoundary, settings.boundaryBuffer);
    }

    const bool enRoute = state.phase == Phase::enRoute;
    fly(target, enRoute ? cruiseSpeed : followSpeed, dt, visitor);
    if (!enRoute || distance(state.drone.pos, target) >= 3)
        return;
    if (settings.tracking == TrackingMode::native)
        enter(Phase::following, NoticeKind::handedOver);
    else
        enter(Phase::following, NoticeKind::following, settings.followDistance);
}

void Simulator::hold(double dt) {
    const auto face = state.visitor ? std::optional(state.visitor->pos) : std::nullopt;
    fly(state.drone.pos, 0, dt, face);
}

void Simulator::flyHome(double dt) {
    state.atBoundary = false;
    fly(state.site.pad, cruiseSpeed, dt, std::nullopt);
    if (distance(state.drone.pos, state.site.pad) < 0.6)
        enter(Phase::landing, NoticeKind::overPad);
}

void Simulator::descend(double dt) {
    fly(state.drone.pos, 0, dt, std::nullopt);
    state.drone.altitude = std::max(state.drone.altitude - descentSpeed * dt, 0.0);
    if (state.drone.altitude > 0)
        return;
    if (distance(state.drone.pos, state.site.pad) > 2)
        note(NoticeKind::landedAway);
    else
        note(NoticeKind::landed);
    finish(pendingOutcome_.value_or(Outcome::visitorLeft));
}

/// Steers with limited speed and acceleration. The position is clamped to the buffered bounds; the velocity
/// is not.
void Simulator::fly(P toward, double maxSpeed, double dt, std::optional<P> face) {
    DroneState& drone = state.drone;
    P desired = (toward - drone.pos) * steeringGain;
    if (length(desired) > maxSpeed)
        desired = unit(desired) * maxSpeed;
    P change = desired - velocity_;
    if (length(change) > maxAcceleration * dt)
        change = unit(change) * maxAcceleration * dt;
    velocity_ = velocity_ + change;
    if (gustDecay_ > 0)
        gustDecay_ = std::max(gustDecay_ - dt, 0.0);
    drone.pos = insideBuffer(drone.pos + velocity_ * dt, state.site, settings.boundaryBuffer);
    drone.speed = length(velocity_);
    if (face && distance(*face, drone.pos) > 0.5)
        drone.heading = headingOf(*face - drone.pos);
    else if (drone.speed > 0.5)
        drone.heading = headingOf(velocity_);
}

} // namespace velmora
