#include "fickle_server.h"
#include "memory.h"
#include "model/json.h"
#include "owner.h"
#include "support/application.h"

#include <QElapsedTimer>

#include <cstdio>

namespace velmora {

namespace {

constexpr int ticksPerSecond = 20;
constexpr double tickSeconds = 1.0 / ticksPerSecond;
constexpr int samples = 12;           // of memory, per run
constexpr double growthAllowed = 8;   // megabytes from the first third of the samples to the last
constexpr double heapAllowed = 1;     // megabytes added in eight hours, without the history
constexpr double longestHang = 1;     // seconds
constexpr double driftAllowed = 0.02; // of the timer's rate

constexpr std::chrono::minutes patience{2}; // for a save

int breaches = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void check(bool holds, const char* limit) {
    if (holds)
        return;
    ++breaches;
    std::printf("  BREACH: %s\n", limit);
}

double secondsOf(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
}

std::vector<MissionRecord> historyOnFile(const SoakWorld& world) {
    return DataFiles(QDir(world.directory())).loadHistory().value_or(std::vector<MissionRecord>{});
}

/// Runs the ticks of one second. Returns the duration of the slowest in seconds.
double tickForASecond(SoakWorld& world, Ledger& ledger) {
    double slowest = 0;
    for (int tick = 0; tick < ticksPerSecond; ++tick) {
        QElapsedTimer time;
        time.start();
        world.tickAfter(tickSeconds);
        slowest = std::max(slowest, secondsOf(time));
        ledger.update();
    }
    return slowest;
}

/// Difference of the least samples of the last and the first third; a sample depends on what the window
/// shows.
double growthOf(const std::vector<double>& resident) {
    const auto third = std::ssize(resident) / 3;
    return *std::min_element(resident.end() - third, resident.end()) -
           *std::min_element(resident.begin(), resident.begin() + third);
}

/// Plays random visits in ticks of 0.05 s, with the window open.
void playVisits(int hours, unsigned seed) {
    SoakWorld world{SeededRandom(seed), FickleServer(seed)};
    Settings settings;
    settings.onboarded = true;
    DataFiles(QDir(world.directory())).saveSettings(settings);
    AppStore& store = world.store();
    MainWindow window(store);
    window.show();
    Ledger ledger(store);
    Owner owner(world.random, store, ledger, window);
    const int seconds = hours * 3600, between = seconds / samples;
    double worstTick = 0;
    std::vector<double> resident; // megabytes
    for (int second = 0; second < seconds; ++second) {
        worstTick = std::max(worstTick, tickForASecond(world, ledger));
        owner.act();
        if (second % 5 == 0)
            QApplication::processEvents();
        if (second % between != between - 1)
            continue;
        resident.push_back(residentMegabytes());
        std::printf("  hour %2d: %.0f MB, %d missions\n", (second + 1) / 3600, resident.back(),
                    ledger.begun());
        std::fflush(stdout);
    }
    store.applyLinkMode(false);
    const double growth = growthOf(resident);
    std::printf("  %d missions begun, %d recorded, %d going on; memory grew by %.1f MB; worst tick %.0f ms; "
                "worst overrun of a deadline %.3f s\n",
                ledger.begun(), ledger.recorded(), int(ledger.isOpen()), growth, worstTick * 1000,
                ledger.worstOverrun());
    check(ledger.begun() == ledger.recorded() + int(ledger.isOpen()), "every mission is recorded once");
    DataFiles::Records inMemory;
    for (const HistoryEntry& entry : store.history())
        inMemory.push_back(entry.record);
    check(store.flush(patience), "everything is saved");
    check(encode(historyOnFile(world)) == encode(inMemory), "the file holds the history");
    check(growth < growthAllowed, "memory is flat");
    check(ledger.worstOverrun() < tickSeconds + 0.001, "a deadline holds to the tick");
    check(worstTick < longestHang, "no tick hangs");
}

/// Flies one approved mission after another.
void fly(SoakWorld& world, double hours) {
    for (double ticks = hours * 3600 * ticksPerSecond; ticks > 0; --ticks) {
        if (world.store().phase() == Phase::docked) {
            const bool even = world.store().history().size() % 2 == 0;
            world.store().simulate(even ? Scenario::driveway : Scenario::garden);
            world.respond(Command::approve);
            QApplication::processEvents();
        }
        world.tickAfter(tickSeconds);
    }
}

/// Eight hours of missions with a hidden window: the heap may grow only with the history.
void watchHeap() {
    SoakWorld world{SeededRandom(1), FickleServer(1)};
    const MainWindow window(world.store());
    fly(world, 1);
    const double before = heapMegabytes(world.store().history());
    fly(world, 8);
    const double growth = heapMegabytes(world.store().history()) - before;
    std::printf("  %zu missions; the heap grew by %.2f MB beyond them\n", world.store().history().size(),
                growth);
    check(growth < heapAllowed, "the heap is flat");
}

/// Checks the rate of the store's timer in real time.
void watchTimer(int seconds) {
    SoakWorld world{SeededRandom(1), FickleServer(1)};
    int ticks = 0;
    world.store().simulate(Scenario::driveway);
    // while an alert waits, every tick changes the wind, so every tick emits moved
    QObject::connect(&world.store(), &AppStore::moved, [&] { ++ticks; });
    QElapsedTimer real;
    real.start();
    world.run();
    while (real.elapsed() < 1000LL * seconds)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double drift = ticks / static_cast<double>(seconds * ticksPerSecond) - 1;
    std::printf("  %d ticks in %d s\n", ticks, seconds);
    check(std::abs(drift) < driftAllowed, "the timer keeps time");
}

/// A rehearsed mission whose paths repeat until its document has at least `bytes`.
std::string encodedMission(SoakWorld& world, std::size_t bytes) {
    MissionRecord record =
        *Simulator::rehearse(Scenario::driveway, 9, {}, world.now, Settings{}, world.random);
    const auto drone = record.dronePath, visitor = record.visitorPath;
    std::string document = encode(record).value();
    while (document.size() < bytes) {
        record.dronePath.insert(record.dronePath.end(), drone.begin(), drone.end());
        record.visitorPath.insert(record.visitorPath.end(), visitor.begin(), visitor.end());
        document = encode(record).value();
    }
    return document;
}

/// Writes a history file of 300 MB that repeats this record. Returns the number of records.
std::size_t putLargeHistory(const SoakWorld& world, const std::string& record) {
    constexpr std::size_t fileSize = 300'000'000;
    const std::size_t records = fileSize / record.size();
    QByteArray document;
    document.reserve(fileSize + 1);
    for (std::size_t i = 0; i < records; ++i)
        document.append(i == 0 ? '[' : ',').append(record.data(), static_cast<qsizetype>(record.size()));
    world.put(QStringLiteral("history.json"), document.append(']'));
    return records;
}

/// Ends a mission with the history open. `bytes` is the least size of a record.
void endMissionInLargeHistory(std::size_t bytes) {
    SoakWorld world{SeededRandom(1), FickleServer(1)};
    const std::size_t records = putLargeHistory(world, encodedMission(world, bytes));
    QElapsedTimer time;
    time.start();
    AppStore& store = world.store();
    const double loading = secondsOf(time);
    check(store.history().size() == records, "every record is read");
    MainWindow window(store);
    store.setShowWelcome(false);
    store.setSection(Section::history);
    window.show();
    QApplication::processEvents();
    store.simulate(Scenario::driveway);
    QApplication::processEvents();
    time.restart();
    store.answer(Command::ignore, *store.waitingAlert(), CommandSource::card);
    const double end = secondsOf(time);
    time.restart();
    QApplication::processEvents();
    const double repaint = secondsOf(time);
    time.restart();
    check(store.flush(patience), "the mission is saved");
    const double saving = secondsOf(time);
    std::printf(
        "  %zu records: read in %.1f s, %.0f MB resident; a mission's end takes %.0f ms, events %.0f ms; "
        "on file after %.1f s\n",
        records, loading, residentMegabytes(), end * 1000, repaint * 1000, saving);
    check(end + repaint < longestHang, "a mission's end does not hang");
    check(historyOnFile(world).front().outcome == Outcome::ignored, "the mission is on file");
}

} // namespace

} // namespace velmora

/// Runs all checks. Exit code 0 if every limit held.
int main(int argc, char* argv[]) {
    using namespace velmora;
    const auto application = makeApplication(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const int hours = argc > 1 ? std::atoi(argv[1]) : 24;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : std::random_device()();
    if (hours < 1) {
        std::fprintf(stderr, "Usage: velmora-soak [HOURS [SEED]]\n");
        return 2;
    }
    std::printf("%d simulated hours of visits, seed %u\n", hours, seed);
    playVisits(hours, seed);
    std::printf("Eight hours of missions, the window hidden\n");
    watchHeap();
    std::printf("The timer in real time\n");
    watchTimer(60);
    std::printf("A history of 300 MB\n");
    endMissionInLargeHistory(0);
    endMissionInLargeHistory(1'500'000);
    std::printf(breaches == 0 ? "All limits held\n" : "%d limits overstepped\n", breaches);
    return breaches == 0 ? 0 : 1;
}
