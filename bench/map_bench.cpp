#include "samples.h"
#include "ui/manual_clock.h"
#include "ui/map/site_map.h"

#include <QApplication>
#include <algorithm>
#include <benchmark/benchmark.h>

namespace velmora {

namespace {

constexpr QSize mapSize(900, 600);

/// A visible map that shows the state.
class ShownMap {
public:
    explicit ShownMap(const LiveState& state) : map_(nullptr), state_(state) {
        map_.resize(mapSize);
        map_.setState(&state_, Settings{}, Freshness::live);
        map_.show();
        QApplication::processEvents();
        map_.repaint();
    }

    /// Advances to the next frame and paints it.
    void frame() { clock_.advance(Motion::mapFrame); }
    void repaintAll() { map_.repaint(); }
    /// Moves the drone, so that the paths are redrawn.
    void paths() {
        std::ranges::rotate(state_.drone.trail, state_.drone.trail.begin() + 1);
        map_.setState(&state_, Settings{}, Freshness::live);
        map_.repaint();
    }
    /// Lets another camera see the visitor, so that the grounds are redrawn.
    void grounds() {
        auto& seen = state_.visitor->cameraId;
        seen = seen == "front" ? "driveway" : "front";
        map_.setState(&state_, Settings{}, Freshness::live);
        map_.repaint();
    }

private:
    ManualClock clock_;
    SiteMap map_;
    LiveState state_;
};

void mapFrame(benchmark::State& run) {
    ShownMap map(samples::followingState());
    for ([[maybe_unused]] auto iteration : run)
        map.frame();
}
BENCHMARK(mapFrame)->Name("map frame")->Unit(benchmark::kMicrosecond);

void repaintedMap(benchmark::State& run) {
    ShownMap map(samples::followingState());
    for ([[maybe_unused]] auto iteration : run)
        map.repaintAll();
}
BENCHMARK(repaintedMap)->Name("map frame, every pixel")->Unit(benchmark::kMicrosecond);

void grounds(benchmark::State& run) {
    ShownMap map(samples::followingState());
    for ([[maybe_unused]] auto iteration : run)
        map.grounds();
}
BENCHMARK(grounds)->Name("map, grounds redrawn")->Unit(benchmark::kMillisecond);

void longTrails(benchmark::State& run) {
    ShownMap map(samples::withTrails(samples::followingState(), static_cast<std::size_t>(run.range(0))));
    for ([[maybe_unused]] auto iteration : run)
        map.paths();
}
BENCHMARK(longTrails)
    ->Name("map, paths redrawn, trail points")
    ->Arg(160)
    ->Arg(1000)
    ->Arg(10'000)
    ->Unit(benchmark::kMicrosecond);

void manyCameras(benchmark::State& run) {
    const auto count = static_cast<std::size_t>(run.range(0));
    ShownMap map(samples::withBoundary(samples::withCameras(samples::followingState(), count), count));
    for ([[maybe_unused]] auto iteration : run)
        map.frame();
}
BENCHMARK(manyCameras)
    ->Name("map frame, cameras and boundary points")
    ->Arg(4)
    ->Arg(40)
    ->Arg(400)
    ->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace velmora
