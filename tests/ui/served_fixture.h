#pragma once

#include "ui/linked_ui_fixture.h"

#include <QWindow>

namespace velmora {

/// The window with a server that is in any phase of a mission.
class ServedTest : public LinkedUiTest {
protected:
    void serve(const LiveState& state) {
        linked();
        LinkedUiTest::serve(state);
        tickAfter(0.05);
        settle();
    }

    /// A state with the drone 5 m from the visitor and 13 m from its pad.
    LiveState mission(Phase phase) const {
        LiveState state = LiveState::initial();
        state.phase = phase;
        if (phase == Phase::docked)
            return state;
        state.missionId = "M-1";
        state.missionStart = now;
        state.visitor = Visitor{{82, 86.7}, "Unknown person", 0.87, "front", true, {}};
        state.drone.pos = {79, 82.7};
        if (phase == Phase::awaitingApproval)
            state.approvalDeadline = now + Seconds{30};
        return state;
    }

    std::optional<Command> lastPosted() const {
        return link.posts.empty() ? std::nullopt : std::optional(link.posts.back().command);
    }
};

} // namespace velmora
