#include "model/json.h"
#include "model/validation.h"
#include "samples.h"

#include <benchmark/benchmark.h>

namespace velmora {

namespace {

/// Decodes the bytes of a reply into a validated state.
void readState(benchmark::State& run, const LiveState& state) {
    const std::string body = *encode(state, KeyStyle::snakeCase);
    for ([[maybe_unused]] auto iteration : run) {
        const auto read = decode<LiveState>(body, KeyStyle::snakeCase);
        benchmark::DoNotOptimize(firstProblem(*read.value));
    }
    run.counters["kB"] = static_cast<double>(body.size()) / 1e3;
}

void following(benchmark::State& run) {
    readState(run, samples::followingState());
}
BENCHMARK(following)->Name("server state, bytes to LiveState")->Unit(benchmark::kMicrosecond);

void trails(benchmark::State& run) {
    readState(run, samples::withTrails(samples::followingState(), static_cast<std::size_t>(run.range(0))));
}
BENCHMARK(trails)->Name("server state, trail points")->Arg(1000)->Arg(10'000)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace velmora
