#include "allocations.h"
#include "ui/window/main_window.h"
#include "world.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <benchmark/benchmark.h>

namespace velmora {

namespace {

void loadHistory(benchmark::State& run) {
    const BenchWorld world(200);
    for ([[maybe_unused]] auto iteration : run)
        benchmark::DoNotOptimize(DataFiles(QDir(world.directory())).loadHistory());
}
BENCHMARK(loadHistory)->Name("history, file to records")->Unit(benchmark::kMillisecond);

/// Ticks with a hidden window, docked or while the drone follows a visitor.
void hiddenTick(benchmark::State& run, bool follows) {
    BenchWorld world(200);
    const MainWindow window(world.store());
    if (follows)
        world.follow();
    const auto before = allocations();
    for ([[maybe_unused]] auto iteration : run)
        world.tick();
    run.counters["allocations"] =
        static_cast<double>(allocations() - before) / static_cast<double>(run.iterations());
}
BENCHMARK_CAPTURE(hiddenTick, docked, false)
    ->Name("tick, docked, window hidden")
    ->Iterations(400)
    ->Repetitions(9)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(hiddenTick, following, true)
    ->Name("tick, following, window hidden")
    ->Iterations(400)
    ->Repetitions(9)
    ->Unit(benchmark::kMicrosecond);

/// Measures the longest time between two timeouts of the store's timer.
class TickWatch : public QObject {
public:
    explicit TickWatch(AppStore& store) { store.installEventFilter(this); }

    qint64 longest = 0; // nanoseconds

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Timer) {
            longest = std::max(longest, sinceTick_.isValid() ? sinceTick_.nsecsElapsed() : 0);
            sinceTick_.start();
        }
        return false;
    }

private:
    QElapsedTimer sinceTick_;
};

/// Measures the longest time between two ticks while a mission is added to a full history in a visible
/// window.
void recording(benchmark::State& run) {
    BenchWorld world(200);
    AppStore& store = world.store();
    MainWindow window(store);
    window.show();
    world.follow();
    store.setSection(Section::history);
    QTest::qWait(500);
    store.send(Command::land, CommandSource::live);
    while (store.knownState()->drone.altitude > 1)
        world.tick();
    const TickWatch watch(store);
    for ([[maybe_unused]] auto iteration : run) {
        world.run();
        while (!world.docked())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QTest::qWait(300);
        if (watch.longest == 0)
            run.SkipWithError("the store has no ticks");
        run.SetIterationTime(static_cast<double>(watch.longest) / 1e9);
    }
}
BENCHMARK(recording)
    ->Name("recording at the cap, longest gap")
    ->Iterations(1)
    ->Repetitions(9)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velmora
