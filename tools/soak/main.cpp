#include "model/json.h"
#include "owner.h"
#include "ui/look/fonts.h"
#include "ui/look/style.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>
#include <malloc.h>
#include <unistd.h>

namespace velmora {

namespace {

constexpr int ticksPerSecond = 20;
constexpr int samples = 12;           // of memory, in a day
constexpr double growthAllowed = 8;   // megabytes from the third sample to the end
constexpr double longestHang = 1;     // seconds
constexpr double driftAllowed = 0.02; // of the timer's rate

int breaches = 0;

void check(bool holds, const char* limit) {
    if (holds)
        return;
    ++breaches;
    std::printf("  BREACH: %s\n", limit);
}

/// Of this process, after what is free has been given back.
double residentMegabytes() {
    malloc_trim(0);
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

double secondsOf(const QElapsedTimer& timer) {
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
}

std::vector<MissionRecord> historyOnFile(const World& world) {
    return DataFiles(world.directory).loadHistory().value_or(std::vector<MissionRecord>{});
}

/// Days of visits in ticks of 0.05 s, with the window open.
void playVisits(int hours, unsigned seed) {
    World world(seed);
    Settings settings;
    settings.onboarded = true;
    DataFiles(world.directory).saveSettings(settings);
    AppStore store(world.forStore());
    MainWindow window(store);
    window.show();
    Ledger ledger(store);
    Owner owner(world.random, store, ledger, window);
    const Date start = world.now;
    const int seconds = hours * 3600, between = seconds / samples;
    double settled = 0, worstTick = 0;
    for (int second = 0; second < seconds; ++second) {
        for (int tick = 1; tick <= ticksPerSecond; ++tick) {
            world.now = start + Seconds{second + static_cast<double>(tick) / ticksPerSecond};
            QElapsedTimer time;
            time.start();
            store.tick();
            worstTick = std::max(worstTick, secondsOf(time));
            ledger.look();
        }
        owner.act();
        if (second % 5 == 0)
            QApplication::processEvents();
        if (second % between != between - 1)
            continue;
        const double resident = residentMegabytes();
        settled = second / between < 3 ? resident : settled;
        std::printf("  hour %2d: %.0f MB, %d missions\n", (second + 1) / 3600, resident, ledger.begun());
        std::fflush(stdout);
    }
    store.applyLinkMode(false);
    const double growth = residentMegabytes() - settled;
    std::printf("  %d missions begun, %d recorded, %d going on; memory grew by %.1f MB; worst tick %.0f ms; "
                "worst overrun of a deadline %.3f s\n",
                ledger.begun(), ledger.recorded(), int(ledger.isOpen()), growth, worstTick * 1000,
                ledger.worstOverrun());
    check(ledger.begun() == ledger.recorded() + int(ledger.isOpen()), "every mission is recorded once");
    std::vector<const MissionRecord*> inMemory;
    for (const HistoryEntry& entry : store.history())
        inMemory.push_back(&entry.record);
    check(encode(historyOnFile(world)) == encode(inMemory), "the file holds the history");
    check(growth < growthAllowed, "memory is flat");
    check(ledger.worstOverrun() < 1.0 / ticksPerSecond + 0.001, "a deadline holds to the tick");
    check(worstTick < longestHang, "no tick hangs");
}

/// The store's own timer in real time.
void watchTimer(int seconds) {
    World world(1);
    AppStore store(world.forStore());
    int ticks = 0;
    QObject::connect(&store, &AppStore::stateChanged, [&] { ++ticks; }); // the wind changes with every tick
    const Date start = world.now;
    QElapsedTimer real;
    real.start();
    store.start();
    while (real.elapsed() < seconds * 1000) {
        world.now = start + Seconds{secondsOf(real)};
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    const double drift = ticks / static_cast<double>(seconds * ticksPerSecond) - 1;
    std::printf("  %d ticks in %d s\n", ticks, seconds);
    check(std::abs(drift) < driftAllowed, "the timer keeps time");
}

/// Far more missions than the program writes, as a foreign one may have put into the file.
void loadLargeHistory() {
    constexpr std::size_t fileSize = 300'000'000;
    World world(1);
    DataFiles::makeDirectory(world.directory);
    const std::string record =
        encode(*Simulator::rehearse(Scenario::driveway, 9, {}, world.now, Settings{}, world.random)).value();
    const std::size_t records = fileSize / record.size();
    {
        QFile file(world.directory.filePath(QStringLiteral("history.json")));
        check(file.open(QIODevice::WriteOnly), "the file can be made");
        for (std::size_t i = 0; i < records; ++i)
            file.write((i == 0 ? "[" : ",") + QByteArray::fromStdString(record));
        file.write("]");
    }
    QElapsedTimer time;
    time.start();
    AppStore store(world.forStore());
    const double loading = secondsOf(time);
    check(store.history().size() == records, "every record is read");
    store.simulate(Scenario::driveway);
    time.restart();
    store.answer(Command::ignore, *store.waitingAlert());
    const double saving = secondsOf(time);
    std::printf("  %zu records: read in %.1f s, %.0f MB resident, a mission's end takes %.2f s\n", records,
                loading, residentMegabytes(), saving);
    check(saving < longestHang, "a mission's end does not hang");
    check(historyOnFile(world).front().outcome == Outcome::ignored, "the mission is on file");
}

} // namespace

} // namespace velmora

/// Plays visits and holds loads up to their limits; 0 when none was overstepped.
int main(int argc, char* argv[]) {
    using namespace velmora;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setStyle(new Style);
    QApplication::setPalette(Style::lightPalette());
    QApplication::setQuitOnLastWindowClosed(false);
    SBFont::registerBundled();
    const int hours = argc > 1 ? std::atoi(argv[1]) : 24;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : std::random_device()();
    if (hours < 1) {
        std::fprintf(stderr, "Usage: velmora-soak [HOURS [SEED]]\n");
        return 2;
    }
    std::printf("%d simulated hours of visits, seed %u\n", hours, seed);
    playVisits(hours, seed);
    std::printf("The timer in real time\n");
    watchTimer(60);
    std::printf("A history of 300 MB\n");
    loadLargeHistory();
    std::printf(breaches == 0 ? "All limits held\n" : "%d limits overstepped\n", breaches);
    return breaches == 0 ? 0 : 1;
}
