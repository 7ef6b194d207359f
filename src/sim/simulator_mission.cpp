#include "sim/simulator.h"

#include "model/flight_limits.h"
#include "model/truncated.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr const char* unknownPerson = "Unknown person";

std::string missionIdAt(Date at) {
    return "M-" + std::to_string(truncated(secondsSince1970(at)) % 1'000'000);
}

} // namespace

void Simulator::trigger(Scenario scenario, Date at) {
    now_ = at;
    if (state.phase != Phase::docked)
        return;
    cameraId_ = rawValue(scenario);
    const CameraInfo* camera = findCamera(state.site, cameraId_);
    snapshot_ = camera ? camera->snapshot : "";
    cameraName_ = camera ? camera->name : "Camera";

    route_ = routeOf(scenario);
    leg_ = 0;
    lingerLeft_ = 0;
    const double confidence = random_.uniform(0.82, 0.94);
    state.visitor = Visitor{route_.front().pos, unknownPerson, confidence, cameraId_, true, {}};
    state.drone.trail.clear();
    state.drone.pos = state.site.pad;

    state.missionId = missionIdAt(at);
    state.missionStart = at;
    dronePath_.clear();
    visitorPath_.clear();
    missionNotices_.clear();
    maxFromPad_ = 0;
    pendingOutcome_.reset();
    outsideFor_ = 0;
    note(NoticeKind::detection, cameraName_);

    if (!state.armed)
        return finish(Outcome::disarmed);
    if (isTooWindy(state, settings))
        return finish(Outcome::windTooHigh);
    state.phase = Phase::awaitingApproval;
    state.approvalDeadline = at + Seconds{settings.approvalSeconds};
}

void Simulator::send(Command command, Date at) {
    now_ = at;
    const Phase phase = state.phase;
    const bool awaiting = phase == Phase::awaitingApproval;
    switch (command) {
    case Command::approve:
        if (!awaiting)
            return;
        state.approvalDeadline.reset();
        batteryAtLaunch_ = state.drone.battery;
        return enter(Phase::launching, NoticeKind::approved);
    case Command::ignore:
        if (awaiting)
            finish(Outcome::ignored);
        return;
    case Command::hold:
        if (phase == Phase::enRoute || phase == Phase::following)
            enter(Phase::holding, NoticeKind::holding, state.drone.altitude);
        return;
    case Command::resume:
        if (phase == Phase::holding)
            enter(state.visitor ? Phase::enRoute : Phase::returning, NoticeKind::followingAgain);
        return;
    case Command::returnHome:
        if (!airborne(phase) || phase == Phase::returning || phase == Phase::landing)
            return;
        pendingOutcome_ = Outcome::returnedByYou;
        return enter(Phase::returning, NoticeKind::comingHomeAsked);
    case Command::land:
        if (!airborne(phase))
            return;
        pendingOutcome_ = Outcome::landedByYou;
        return enter(Phase::landing, NoticeKind::landingAsked);
    }
}

void Simulator::finish(Outcome outcome) {
    if (!state.missionId || !state.missionStart)
        return;
    const MissionRecord record = recordOf(outcome);
    if (!flew(outcome))
        note(std::string(rawValue(outcome)), Notice::Level::info);

    state.phase = Phase::docked;
    state.missionId.reset();
    state.missionStart.reset();
    state.approvalDeadline.reset();
    state.atBoundary = false;
    state.drone.speed = 0;
    velocity_ = {};
    state.visitor.reset();
    if (onFinish)
        onFinish(record);
}

/// If the visitor has left, the state has no visitor any more; the record then gets a default label and
/// confidence.
MissionRecord Simulator::recordOf(Outcome outcome) const {
    MissionRecord record;
    record.id = *state.missionId;
    record.start = *state.missionStart;
    record.end = now_;
    record.cameraId = cameraId_;
    record.cameraName = cameraName_;
    record.label = state.visitor ? state.visitor->label : unknownPerson;
    record.confidence = state.visitor ? state.visitor->confidence : 0.9;
    record.outcome = outcome;
    record.dronePath = dronePath_;
    record.visitorPath = visitorPath_;
    record.maxDistanceFromPad = maxFromPad_;
    record.batteryUsed = flew(outcome) ? std::max(batteryAtLaunch_ - state.drone.battery, 0.0) : 0;
    record.notices = missionNotices_;
    record.snapshot = snapshot_;
    return record;
}

} // namespace velmora
