#include "ui/map/site_map.h"
#include "ui/window/main_window.h"
#include "world.h"

#include <QApplication>
#include <QTest>
#include <benchmark/benchmark.h>

namespace velmora {

namespace {

/// Counts all paint events and, separately, those of maps.
class PaintCounter : public QObject {
public:
    PaintCounter() { qApp->installEventFilter(this); }

    double all = 0;
    double ofMaps = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++all;
            ofMaps += qobject_cast<SiteMap*>(watched) != nullptr;
        }
        return false;
    }
};

/// Ten seconds of real-time ticks without a mission. The counters are the result, not the time.
void idle(benchmark::State& run, Section section) {
    BenchWorld world(200);
    MainWindow window(world.store());
    world.store().setSection(section);
    window.show();
    world.run();
    QTest::qWait(1500);
    for ([[maybe_unused]] auto iteration : run) {
        PaintCounter paints;
        QTest::qWait(10'000);
        run.counters["map paints"] = paints.ofMaps;
        run.counters["paints"] = paints.all;
    }
}
BENCHMARK_CAPTURE(idle, overview, Section::overview)->Name("10 s docked, Overview")->Iterations(1);
BENCHMARK_CAPTURE(idle, live, Section::live)->Name("10 s docked, Live flight")->Iterations(1);

/// A tick with a visible window, including the painting that it causes.
void shownTick(benchmark::State& run, Section section) {
    BenchWorld world(200);
    MainWindow window(world.store());
    window.show();
    world.follow();
    world.store().setSection(section);
    QTest::qWait(500);
    for ([[maybe_unused]] auto iteration : run) {
        world.tick();
        QApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(shownTick, overview, Section::overview)
    ->Name("tick and paint, following, Overview")
    ->Iterations(400)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(shownTick, live, Section::live)
    ->Name("tick and paint, following, Live flight")
    ->Iterations(400)
    ->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace velmora
