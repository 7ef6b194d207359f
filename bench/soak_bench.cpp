#include "ui/window/main_window.h"
#include "world.h"

#include <QApplication>
#include <QFile>
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>

namespace velmora {

namespace {

constexpr double megabyte = 1e6;

/// Resident memory of the program, MB.
double resident() {
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const double pages = file.readAll().split(' ').value(1).toDouble();
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / megabyte;
}

double heap() {
    const auto info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / megabyte;
}

double sizeOf(const std::vector<HistoryEntry>& history) {
    std::size_t bytes = history.capacity() * sizeof(HistoryEntry);
    for (const auto& [key, record] : history) {
        bytes += (record.dronePath.capacity() + record.visitorPath.capacity()) * sizeof(P);
        for (const Notice& notice : record.notices)
            bytes += sizeof notice + notice.text.capacity();
    }
    return static_cast<double>(bytes) / megabyte;
}

/// One mission after another; every second one is answered.
void fly(World& world, double hours) {
    constexpr double ticksInHour = 3600 / 0.05;
    for (double ticks = hours * ticksInHour; ticks > 0; --ticks) {
        if (world.docked()) {
            const bool even = world.store().history().size() % 2 == 0;
            world.store().simulate(even ? Scenario::driveway : Scenario::garden);
            world.approve();
            QApplication::processEvents();
        }
        world.tick();
    }
}

/// Memory in MB that eight hours of missions add, and how much of it the longer history is.
void eightHours(benchmark::State& run) {
    World world(samples::flownHistory(200));
    const MainWindow window(world.store());
    fly(world, 0.5);
    for ([[maybe_unused]] auto iteration : run) {
        const double residentBefore = resident(), heapBefore = heap(),
                     history = sizeOf(world.store().history());
        fly(world, 8);
        run.counters["resident"] = resident() - residentBefore;
        run.counters["heap"] = heap() - heapBefore;
        run.counters["history"] = sizeOf(world.store().history()) - history;
    }
}
BENCHMARK(eightHours)->Name("8 hours of missions, memory")->Iterations(1)->Unit(benchmark::kSecond);

} // namespace

} // namespace velmora
