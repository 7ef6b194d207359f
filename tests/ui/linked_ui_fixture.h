#pragma once

#include "model/json.h"
#include "ui/ui_fixture.h"

namespace velmora {

/// The window with a server that answers on request and a history that the test writes.
class LinkedUiTest : public UiTest {
protected:
    /// Waits for the next state request and answers it.
    void answer(const FetchResult& result) {
        while (link.fetches.size() == answered_)
            tickAfter(0.05);
        link.fetches[answered_++](result);
        settle();
    }
    void serve(const LiveState& state) { answer(FetchedState{state, "2.1"}); }
    void refuse() { answer(LinkError{"The connection was refused"}); }

    /// Restarts the store with these records, newest first. Call before window().
    void records(const std::vector<MissionRecord>& history) {
        restart();
        putHistory(history);
    }
    /// A visit of ten seconds.
    MissionRecord record(const std::string& id, Outcome outcome, double secondsAgo) const {
        MissionRecord made;
        made.id = id;
        made.start = now - Seconds{secondsAgo};
        made.end = made.start + Seconds{10};
        made.outcome = outcome;
        return made;
    }

private:
    std::size_t answered_ = 0;
};

} // namespace velmora
