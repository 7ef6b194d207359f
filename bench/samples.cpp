#include "samples.h"

#include "sim/simulator.h"
#include "support/random.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmora::samples {

namespace {

constexpr double dayBetween = 24.0 * 3600; // seconds
constexpr std::size_t differentMissions = 40;

/// A long mission: the longest visitor path and a flight height with a long descent.
MissionRecord flown(std::size_t number, Random& random) {
    Settings settings;
    settings.flightHeight = 120;
    const Date at = dateFromSeconds(1'750'000'000 - static_cast<double>(number) * dayBetween);
    return *Simulator::rehearse(Scenario::driveway, 3, std::nullopt, at, settings, random);
}

} // namespace

Settings onboarded() {
    Settings settings;
    settings.onboarded = true;
    return settings;
}

std::vector<MissionRecord> flownHistory(std::size_t records) {
    SeededRandom random;
    std::vector<MissionRecord> history;
    history.reserve(records);
    for (std::size_t i = 0; i < std::min(records, differentMissions); ++i)
        history.push_back(flown(i, random));
    for (std::size_t i = history.size(); i < records; ++i) {
        MissionRecord record = history[i % differentMissions];
        const Seconds earlier{static_cast<double>(i - i % differentMissions) * dayBetween};
        record.id += '-' + std::to_string(i);
        record.start -= earlier;
        record.end -= earlier;
        history.push_back(std::move(record));
    }
    return history;
}

LiveState followingState() {
    constexpr double step = 0.05; // seconds
    constexpr int notices = 40;
    SeededRandom random;
    Simulator simulator(LiveState::initial(), Settings{}, random);
    Date now = dateFromSeconds(1'750'000'000);
    simulator.trigger(Scenario::driveway, now);
    simulator.send(Command::approve, now);
    while (simulator.state.drone.trail.size() < 160 || simulator.state.visitor->trail.size() < 160)
        simulator.step(step, now += Seconds{step});
    for (int i = 0; i < notices; ++i)
        addNotice(simulator.state, {random.uuid(), now, "Gust of 31 km/h — recovered and back on station",
                                    Notice::Level::info});
    return simulator.state;
}

LiveState withTrails(LiveState state, std::size_t points) {
    const Bounds bounds = boundsOf(state.site);
    const P middle{(bounds.minX + bounds.maxX) / 2, (bounds.minY + bounds.maxY) / 2};
    const auto winding = [&](std::size_t i, double phase) {
        const double angle = static_cast<double>(i) * 0.02;
        const double reach = 30 + 8 * std::sin(angle * 0.173 + phase);
        return middle + P{1.4 * reach * std::cos(angle), reach * std::sin(angle)};
    };
    state.drone.trail.clear();
    state.visitor->trail.clear();
    for (std::size_t i = 0; i < points; ++i) {
        state.drone.trail.push_back(winding(i, 0));
        state.visitor->trail.push_back(winding(i, 1));
    }
    return state;
}

LiveState withCameras(LiveState state, std::size_t cameras) {
    const CameraInfo first = state.site.cameras.front();
    state.site.cameras.clear();
    for (std::size_t i = 0; i < cameras; ++i) {
        CameraInfo camera = first;
        camera.id = "camera-" + std::to_string(i);
        camera.pos = {10 + 2.3 * static_cast<double>(i % 57), 10 + 7.9 * static_cast<double>(i % 10)};
        camera.heading = static_cast<double>(i * 37 % 360);
        state.site.cameras.push_back(std::move(camera));
    }
    return state;
}

LiveState withBoundary(LiveState state, std::size_t points) {
    state.site.boundary.clear();
    for (std::size_t i = 0; i < points; ++i) {
        const double angle = 2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(points);
        state.site.boundary.push_back({75 + 67 * std::cos(angle), 49 + 42 * std::sin(angle)});
    }
    return state;
}

} // namespace velmora::samples
