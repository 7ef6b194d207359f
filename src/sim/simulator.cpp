#include "sim/simulator.h"

#include <algorithm>
#include <numbers>

namespace velmora {

namespace {

constexpr double walkingSpeed = 1.45;     // m/s
constexpr double leaveTimeout = 6;        // seconds outside the boundary after which the visitor has left
constexpr double batteryPerSecond = 0.09; // percent used in flight
constexpr std::size_t trailLength = 160;  // samples

void appendToTrail(std::vector<P>& trail, P p) {
    if (trail.size() >= trailLength)
        trail.erase(trail.begin());
    trail.push_back(p);
}

} // namespace

Simulator::Simulator(LiveState initial, Settings initialSettings, Random& random)
    : state(std::move(initial)),
      settings(std::move(initialSettings)),
      random_(random),
      now_(std::chrono::system_clock::now()) {}

void Simulator::step(double dt, Date at) {
    now_ = at;
    stepWeather(dt);
    if (state.visitor)
        stepVisitor(dt);
    stepPhase(dt);
    if (airborne(state.phase))
        stepTelemetry(dt);
    sample(dt);
}

void Simulator::stepWeather(double dt) {
    const double change = random_.uniform(-0.4, 0.4);
    state.windKmh = std::clamp(state.windKmh + change * dt, 3.0, 26.0);
    state.gustKmh = std::max(state.gustKmh - 6 * dt, 0.0);
    if (!airborne(state.phase))
        return;
    nextGust_ -= dt;
    if (nextGust_ <= 0)
        gust();
}

/// Adds a random velocity to the drone's; the steering corrects it.
void Simulator::gust() {
    nextGust_ = random_.uniform(18, 35);
    const double strength = random_.uniform(24, 36);
    state.gustKmh = strength;
    const double direction = random_.uniform(0, 2 * std::numbers::pi);
    velocity_ = velocity_ + P{std::cos(direction) * strength / 10, std::sin(direction) * strength / 10};
    gustDecay_ = 2;
    note(NoticeKind::gust, strength);
}

void Simulator::stepVisitor(double dt) {
    Visitor& visitor = *state.visitor;
    const bool wasInside = visitor.inside;
    walk(visitor, dt);
    visitor.inside = boundsOf(state.site).contains(visitor.pos);
    const auto nearest = std::ranges::min_element(
        state.site.cameras, {}, [&](const CameraInfo& camera) { return distance(camera.pos, visitor.pos); });
    if (nearest != state.site.cameras.end())
        visitor.cameraId = nearest->id;
    if (wasInside && !visitor.inside)
        note(NoticeKind::crossedBoundary);
    if (visitor.inside)
        outsideFor_ = 0;
    else
        watchOutside(dt);
}

void Simulator::walk(Visitor& visitor, double dt) {
    if (lingerLeft_ > 0) {
        lingerLeft_ -= dt;
        return;
    }
    if (leg_ + 1 >= route_.size())
        return;
    const RoutePoint& next = route_[leg_ + 1];
    const double stride = walkingSpeed * dt;
    if (distance(next.pos, visitor.pos) > stride) {
        visitor.pos = visitor.pos + unit(next.pos - visitor.pos) * stride;
        return;
    }
    visitor.pos = next.pos;
    ++leg_;
    lingerLeft_ = next.linger;
}

void Simulator::watchOutside(double dt) {
    outsideFor_ += dt;
    if (!(outsideFor_ > leaveTimeout))
        return;
    note(NoticeKind::leftGrounds);
    state.visitor.reset();
    switch (state.phase) {
    case Phase::launching:
    case Phase::enRoute:
    case Phase::following:
    case Phase::holding:
        enter(Phase::returning, NoticeKind::comingHome);
        break;
    case Phase::awaitingApproval:
        finish(Outcome::expired);
        break;
    case Phase::docked:
    case Phase::returning:
    case Phase::landing:
        break;
    }
}

void Simulator::stepTelemetry(double dt) {
    DroneState& drone = state.drone;
    drone.battery = std::max(drone.battery - batteryPerSecond * dt, 0.0);
    const double fromPad = distance(drone.pos, state.site.pad);
    const double jitter = random_.uniform(-0.01, 0.01);
    drone.signal = std::max(0.97 - fromPad / 400 + jitter, 0.55);
    maxFromPad_ = std::max(maxFromPad_, fromPad);
    const bool onDuty =
        state.phase == Phase::enRoute || state.phase == Phase::following || state.phase == Phase::holding;
    if (onDuty && drone.battery < settings.returnBattery) {
        pendingOutcome_ = Outcome::lowBattery;
        enter(Phase::returning, NoticeKind::batteryLow, settings.returnBattery);
    }
}

void Simulator::sample(double dt) {
    sampleClock_ += dt;
    if (sampleClock_ < pathInterval)
        return;
    sampleClock_ = 0;
    if (airborne(state.phase)) {
        appendToTrail(state.drone.trail, state.drone.pos);
        dronePath_.push_back(state.drone.pos);
    }
    if (state.visitor) {
        appendToTrail(state.visitor->trail, state.visitor->pos);
        if (state.missionId)
            visitorPath_.push_back(state.visitor->pos);
    }
}

void Simulator::note(std::string text, Notice::Level level) {
    const Notice notice{random_.uuid(), now_, std::move(text), level};
    addNotice(state, notice);
    if (state.missionId)
        missionNotices_.push_back(notice);
}

} // namespace velmora
