#include "ui/screens/overview/overview_words.h"

#include "language/language.h"
#include "model/flight_limits.h"
#include "model/truncated.h"
#include "ui/look/words.h"
#include "ui/screens/time_left.h"

#include <cmath>

namespace velmora {

namespace {

bool headsForVisitor(const LiveState& state) {
    return state.visitor && (state.phase == Phase::enRoute || state.phase == Phase::following);
}

QString toVisitor(const LiveState& state) {
    return rounded(distance(state.drone.pos, state.visitor->pos));
}

QString fromPad(P where, const LiveState& state) {
    return Words::tr("%1 m from the pad").arg(rounded(distance(where, state.site.pad)));
}

/// Short, so that the lede of a flight is one line.
QString droneLocation(const LiveState& state) {
    if (headsForVisitor(state))
        return Words::tr("%1 m").arg(toVisitor(state));
    return isOverPad(state) ? Words::tr("over its pad")
                            : Words::tr("%1 m out").arg(rounded(distance(state.drone.pos, state.site.pad)));
}

QString watching(std::size_t cameras) {
    if (cameras == 0)
        return Words::tr("No camera is looking for people yet.");
    if (cameras == 1)
        return Words::tr("1 camera is looking for people it doesn't recognise.");
    return Words::tr("%1 cameras are looking for people they don't recognise.").arg(cameras);
}

} // namespace

Sentence overviewHeadline(const AppStore& store) {
    if (!store.knownState())
        return Sentence::marked(Words::tr("Waiting for *velmora*."));
    const LiveState& state = *store.knownState();
    if (airborne(state.phase))
        return Sentence::marked(Words::tr("Your drone is *on patrol*."));
    if (state.visitor)
        return Sentence::marked(Words::tr("Someone is *on your grounds*."));
    if (state.armed)
        return Sentence::marked(Words::tr("Your grounds are *watched*."));
    return Sentence::marked(Words::tr("Velmora is *disarmed*."));
}

QString overviewLede(const AppStore& store) {
    if (!store.knownState())
        return Words::tr("No picture received yet.");
    const LiveState& state = *store.knownState();
    if (airborne(state.phase)) {
        return Words::tr("%1, %2. It stays inside your boundary and comes home on its own.")
            .arg(phaseWord(state.phase), droneLocation(state));
    }
    if (!state.armed)
        return Words::tr(
            "Cameras still log people they don't recognise, but the drone won't offer to launch.");
    return watching(state.site.cameras.size()) + ' ' +
           Words::tr("The drone is on its pad and only flies when you say so.");
}

std::vector<MissionFact> missionFacts(const AppStore& store) {
    if (store.phase() == Phase::docked)
        return {};
    const LiveState& state = *store.knownState();
    std::vector<MissionFact> facts;
    if (state.phase == Phase::awaitingApproval) {
        if (state.visitor)
            facts.push_back({fromPad(state.visitor->pos, state)});
        if (const auto left = timeLeft(state, store.settings(), store.now()))
            facts.push_back({Words::tr("%1 s to answer").arg(truncated(std::ceil(left->seconds)))});
        return facts;
    }
    facts.push_back({headsForVisitor(state) ? Words::tr("%1 m from the visitor").arg(toVisitor(state))
                                            : fromPad(state.drone.pos, state)});
    facts.push_back({Words::tr("%1% battery").arg(rounded(state.drone.battery)),
                     isBatteryLow(state.drone, store.settings())});
    if (state.missionStart)
        facts.push_back({clockTime(store.now() - *state.missionStart)});
    return facts;
}

} // namespace velmora
