#include "ui/screens/history/history_view.h"
#include "world.h"

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>
#include <QTest>
#include <benchmark/benchmark.h>

namespace velmora {

namespace {

/// A visible history screen with this number of records.
class ShownHistory {
public:
    explicit ShownHistory(std::size_t records) : world_(records), view_(world_.store(), nullptr) {
        view_.resize(1100, 780);
        view_.show();
        QApplication::processEvents();
    }

    void scroll() {
        auto* bar = view_.findChild<QListView*>()->verticalScrollBar();
        constexpr int stride = 60; // pixels, half a notch of a wheel
        bar->setValue(bar->value() + stride > bar->maximum() ? 0 : bar->value() + stride);
        QApplication::processEvents();
    }
    /// Types the next letter of a word that every record contains, or clears the complete word.
    void type() {
        auto* search = view_.findChild<QLineEdit*>();
        constexpr char word[] = "approved";
        if (search->text().size() == sizeof word - 1)
            search->clear();
        else
            QTest::keyClick(search, word[search->text().size()]);
        QApplication::processEvents();
    }

private:
    BenchWorld world_;
    HistoryView view_;
};

void scroll(benchmark::State& run) {
    ShownHistory history(static_cast<std::size_t>(run.range(0)));
    for ([[maybe_unused]] auto iteration : run)
        history.scroll();
}
BENCHMARK(scroll)
    ->Name("history, scroll and paint")
    ->Arg(200)
    ->Arg(5000)
    ->Iterations(50)
    ->Unit(benchmark::kMillisecond);

void keystroke(benchmark::State& run) {
    ShownHistory history(static_cast<std::size_t>(run.range(0)));
    for ([[maybe_unused]] auto iteration : run)
        history.type();
}
BENCHMARK(keystroke)
    ->Name("history, key in the search")
    ->Arg(200)
    ->Arg(5000)
    ->Iterations(27)
    ->Unit(benchmark::kMillisecond);

void open(benchmark::State& run) {
    BenchWorld world(static_cast<std::size_t>(run.range(0)));
    AppStore& store = world.store();
    for ([[maybe_unused]] auto iteration : run) {
        HistoryView view(store, nullptr);
        view.resize(1100, 780);
        view.show();
        QApplication::processEvents();
    }
}
BENCHMARK(open)->Name("history, opened")->Arg(200)->Arg(5000)->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velmora
