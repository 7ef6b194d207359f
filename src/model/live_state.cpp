#include "model/live_state.h"

namespace velmora {

namespace {

Site demoSite() {
    Site site;
    site.name = "Home";
    site.size = {150, 100};
    site.boundary = {{7.4, 6.6}, {142.6, 6.6}, {142.6, 90.6}, {7.4, 90.6}};
    site.pad = {74, 70.7};
    site.cameras = {
        {"driveway", "Driveway", {40, 46}, 120, "snapshot-driveway", true},
        {"front", "Front lawn", {77, 47}, 70, "snapshot-front", true},
        {"garden", "East garden", {86, 24}, 10, "snapshot-garden", true},
    };
    site.planImage = "plan-base";
    return site;
}

} // namespace

LiveState LiveState::initial() {
    LiveState state;
    state.armed = true;
    state.site = demoSite();
    state.drone.pos = state.site.pad;
    state.drone.heading = -90;
    state.drone.battery = 92;
    state.drone.signal = 0.96;
    state.windKmh = 9;
    state.trackingMode = rawValue(TrackingMode::own);
    return state;
}

bool isOverPad(const LiveState& state) {
    constexpr double reach = 1; // metres
    return distance(state.drone.pos, state.site.pad) <= reach;
}

bool AlertId::operator==(const AlertId& other) const {
    if (missionId || other.missionId)
        return missionId == other.missionId;
    return start == other.start && deadline == other.deadline && cameraId == other.cameraId;
}

bool isSameAlert(const AlertId& seen, const AlertId& current) {
    AlertId withoutId = current;
    withoutId.missionId.reset();
    return seen == current || (seen == withoutId && seen.deadline);
}

std::optional<AlertId> alertId(const LiveState& state) {
    if (state.phase != Phase::awaitingApproval)
        return std::nullopt;
    return AlertId{state.missionId && !state.missionId->empty() ? state.missionId : std::nullopt,
                   state.missionStart, state.approvalDeadline,
                   state.visitor ? state.visitor->cameraId : std::string()};
}

void addNotice(LiveState& state, Notice notice) {
    constexpr std::size_t limit = 40;
    state.notices.insert(state.notices.begin(), std::move(notice));
    if (state.notices.size() > limit)
        state.notices.pop_back();
}

} // namespace velmora
