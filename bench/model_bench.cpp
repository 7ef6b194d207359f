#include "model/json.h"
#include "samples.h"

#include <benchmark/benchmark.h>
#include <simdjson.h>

namespace velmora {

namespace {

using History = std::vector<MissionRecord>;

const std::string& document(std::size_t records) {
    static std::map<std::size_t, std::string> documents;
    auto& text = documents[records];
    if (text.empty())
        text = *encode(samples::flownHistory(records));
    return text;
}

void readHistory(benchmark::State& run) {
    const std::string& text = document(static_cast<std::size_t>(run.range(0)));
    for ([[maybe_unused]] auto iteration : run)
        benchmark::DoNotOptimize(decode<History>(text));
    run.counters["MB"] = static_cast<double>(text.size()) / 1e6;
}
BENCHMARK(readHistory)->Name("history, bytes to records")->Arg(200)->Arg(5000)->Unit(benchmark::kMillisecond);

/// The JSON parser alone: the lower bound for reading.
void parseHistory(benchmark::State& run) {
    const std::string& text = document(200);
    for ([[maybe_unused]] auto iteration : run) {
        simdjson::dom::parser parser;
        benchmark::DoNotOptimize(parser.parse(text).error());
    }
}
BENCHMARK(parseHistory)->Name("history, parser alone")->Unit(benchmark::kMillisecond);

void writeHistory(benchmark::State& run) {
    const History history = samples::flownHistory(static_cast<std::size_t>(run.range(0)));
    for ([[maybe_unused]] auto iteration : run)
        benchmark::DoNotOptimize(encode(history));
}
BENCHMARK(writeHistory)
    ->Name("history, records to bytes")
    ->Arg(200)
    ->Arg(5000)
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velmora
