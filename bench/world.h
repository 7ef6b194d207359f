#pragma once

#include "samples.h"
#include "support/random.h"
#include "support/store_world.h"

namespace velmora {

/// The store of an owner who has been through the welcome, with a history of so many records.
class World : public StoreWorld<SeededRandom> {
public:
    explicit World(std::size_t records) {
        now = dateFromSeconds(1'750'100'000);
        DataFiles(directory()).saveSettings(samples::onboarded());
        putHistory(samples::flownHistory(records));
    }

    void tick() { tickAfter(0.05); }
    /// A visit that the drone follows, with trails of 160 points.
    void follow() {
        store().simulate(Scenario::driveway);
        respond(Command::approve);
        while (store().knownState()->drone.trail.size() < 160)
            tick();
    }
    bool docked() { return store().phase() == Phase::docked; }
};

} // namespace velmora
