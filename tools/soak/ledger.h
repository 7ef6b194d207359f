#pragma once

#include "store/app_store.h"

#include <algorithm>

namespace velmora {

/// Checks the missions in demo mode: each must be recorded once, and no alert may outlast its deadline.
class Ledger {
public:
    explicit Ledger(AppStore& store) : store_(store) {}

    /// Starts a visit if the drone is docked. A visit without a mission is recorded before this returns.
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

    /// Updates the counts. Call after every tick and every command.
    void update() {
        if (store_.settings().linkMode)
            deadline_.reset(); // link mode pauses the simulation
        else if (open_ && store_.knownState()->missionId != open_)
            close();
    }

    bool isOpen() const { return open_.has_value(); }
    int begun() const { return begun_; }
    int recorded() const { return recorded_; }
    /// The longest time in seconds by which an alert outlasted its deadline.
    double worstOverrun() const { return worstOverrun_; }

private:
    void close() {
        for (const auto& [key, record] : store_.history()) {
            if (record->id != open_)
                continue;
            ++recorded_;
            if (deadline_ && record->outcome == Outcome::expired)
                worstOverrun_ = std::max(worstOverrun_, (record->end - *deadline_).count());
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
