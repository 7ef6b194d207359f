#pragma once

#include "store/app_store.h"

#include <algorithm>

namespace velmora {

/// Keeps book of the missions in demo mode: each is to be recorded once, and no alert to outlast its
/// deadline.
class Ledger {
public:
    explicit Ledger(AppStore& store) : store_(store) {}

    /// Starts a visit if none is going on. One that is only logged is over when this returns.
    void simulate(Scenario scenario) {
        if (store_.settings().linkMode || store_.knownState()->phase != Phase::docked)
            return;
        const std::size_t before = store_.history().size();
        store_.simulate(scenario);
        ++begun_;
        open_ = store_.knownState()->missionId;
        deadline_ = store_.knownState()->approvalDeadline;
        if (!open_)
            recorded_ += static_cast<int>(store_.history().size() - before);
    }

    /// After every tick and every command.
    void look() {
        if (store_.settings().linkMode)
            deadline_.reset(); // the simulation stands still meanwhile
        else if (open_ && store_.knownState()->missionId != open_)
            close();
    }

    bool isOpen() const { return open_.has_value(); }
    int begun() const { return begun_; }
    int recorded() const { return recorded_; }
    /// Seconds by which the worst alert outlasted its deadline.
    double worstOverrun() const { return worstOverrun_; }

private:
    void close() {
        for (const auto& [key, record] : store_.history()) {
            if (record.id != open_)
                continue;
            ++recorded_;
            if (deadline_ && record.outcome == Outcome::expired)
                worstOverrun_ = std::max(worstOverrun_, (record.end - *deadline_).count());
        }
        open_.reset();
    }

    AppStore& store_;
    std::optional<std::string> open_; ///< id of the mission in progress
    std::optional<Date> deadline_;
    int begun_ = 0;
    int recorded_ = 0;
    double worstOverrun_ = 0;
};

} // namespace velmora
