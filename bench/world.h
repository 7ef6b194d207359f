#pragma once

#include "samples.h"
#include "support/random.h"
#include "support/store_world.h"

namespace velmora {

/// A store with the welcome completed and a history of `records` missions.
class BenchWorld : public StoreWorld<SeededRandom> {
public:
    explicit BenchWorld(std::size_t records) {
        now = dateFromSeconds(1'750'100'000);
        DataFiles(QDir(directory())).saveSettings(samples::onboarded());
        putHistory(samples::flownHistory(records));
    }

    void tick() { tickAfter(0.05); }
    /// Starts a visit that the drone follows, until its trail has 160 points.
    void follow() {
        store().simulate(Scenario::driveway);
        respond(Command::approve);
        while (store().knownState()->drone.trail.size() < 160)
            tick();
    }
    bool docked() { return store().phase() == Phase::docked; }
};

} // namespace velmora
