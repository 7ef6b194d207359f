#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>

namespace velmora {

namespace {

/// The same work on every machine: arithmetic, and a table that fits into the cache of the processor's first
/// level. Other times are given as multiples of this one, so that machines can be compared.
void fixedLoop(benchmark::State& run) {
    constexpr int rounds = 1000;
    std::array<std::uint32_t, 1024> table{};
    std::uint32_t x = 1;
    for ([[maybe_unused]] auto iteration : run) {
        for (int i = 0; i < rounds; ++i) {
            x ^= x << 13;
            x ^= x >> 17;
            x ^= x << 5;
            table[x % table.size()] += x;
        }
        benchmark::DoNotOptimize(table);
    }
}
BENCHMARK(fixedLoop)->Name("fixed loop")->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace velmora
