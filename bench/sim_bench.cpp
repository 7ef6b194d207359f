#include "allocations.h"
#include "samples.h"
#include "sim/simulator.h"
#include "store/demo_history.h"
#include "support/random.h"

#include <benchmark/benchmark.h>

namespace velmora {

namespace {

constexpr double step = 0.05; // seconds

/// Follows a visitor who does not move, so that the mission lasts as long as the benchmark.
void simulatorStep(benchmark::State& run) {
    SeededRandom random;
    Simulator simulator(samples::followingState(), Settings{}, random);
    simulator.settings.returnBattery = -1;
    Date now = dateFromSeconds(1'750'000'000);
    const auto before = allocations();
    for ([[maybe_unused]] auto iteration : run)
        simulator.step(step, now += Seconds{step});
    run.counters["allocations"] =
        static_cast<double>(allocations() - before) / static_cast<double>(run.iterations());
}
BENCHMARK(simulatorStep)->Name("simulator step, following")->Unit(benchmark::kMicrosecond);

void seeding(benchmark::State& run) {
    SeededRandom random;
    for ([[maybe_unused]] auto iteration : run)
        benchmark::DoNotOptimize(rehearsedHistory(Settings{}, dateFromSeconds(1'750'000'000), random));
}
BENCHMARK(seeding)->Name("seeding")->Unit(benchmark::kMillisecond);

/// Measures a step with larger sites.
void stepWithCameras(benchmark::State& run) {
    SeededRandom random;
    const auto cameras = static_cast<std::size_t>(run.range(0));
    Simulator simulator(
        samples::withBoundary(samples::withCameras(samples::followingState(), cameras), cameras), Settings{},
        random);
    simulator.settings.returnBattery = -1;
    Date now = dateFromSeconds(1'750'000'000);
    for ([[maybe_unused]] auto iteration : run)
        simulator.step(step, now += Seconds{step});
}
BENCHMARK(stepWithCameras)
    ->Name("simulator step, cameras and boundary points")
    ->Arg(4)
    ->Arg(40)
    ->Arg(400)
    ->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace velmora
