#include "model/json.h"
#include "model/visit_patterns.h"
#include "model/walk_map.h"
#include "samples.h"

#include <algorithm>
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

/// Everything that the patterns show of these visits.
void patterns(benchmark::State& run) {
    const History history = samples::flownHistory(static_cast<std::size_t>(run.range(0)));
    const Site site = LiveState::initial().site;
    for ([[maybe_unused]] auto iteration : run) {
        VisitPatterns figures(site);
        WalkMap walked(site);
        for (const MissionRecord& record : history) {
            figures.add(record);
            walked.add(record);
        }
        benchmark::DoNotOptimize(figures.group());
        benchmark::DoNotOptimize(figures.toAnswer());
        benchmark::DoNotOptimize(figures.toStation());
        benchmark::DoNotOptimize(figures.byCamera());
        benchmark::DoNotOptimize(walked.heat());
    }
}
BENCHMARK(patterns)->Name("patterns, computed")->Arg(200)->Arg(5000)->Unit(benchmark::kMillisecond);

/// One visit more, with the map of where visitors walked.
void nextPattern(benchmark::State& run) {
    const History history = samples::flownHistory(40);
    const Site site = LiveState::initial().site;
    VisitPatterns figures(site);
    WalkMap walked(site);
    std::size_t next = 0;
    for ([[maybe_unused]] auto iteration : run) {
        const MissionRecord& record = history[next++ % history.size()];
        figures.add(record);
        walked.add(record);
        benchmark::DoNotOptimize(walked.heat());
    }
}
BENCHMARK(nextPattern)->Name("patterns, one visit more")->Unit(benchmark::kMillisecond);

void visitsAtPlace(benchmark::State& run) {
    const History history = samples::flownHistory(5000);
    for ([[maybe_unused]] auto iteration : run)
        benchmark::DoNotOptimize(std::ranges::count_if(history, [](const MissionRecord& record) {
            return passesWithin(record, {75, 95}, WalkMap::passed);
        }));
}
BENCHMARK(visitsAtPlace)->Name("visits that passed a place, 5000")->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velmora
