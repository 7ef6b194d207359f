#pragma once

#include "samples.h"
#include "store/app_store.h"
#include "store/data_files.h"

#include <QTemporaryDir>

#include <memory>

namespace velmora {

/// A server that never answers.
class MuteLink final : public Link {
public:
    void fetchState(const Settings&, std::function<void(FetchResult)>) override {}
    void send(Command, const std::optional<std::string>&, const Settings&, CommandDone) override {}
};

/// A store over files of its own. Time is moved by `tick` only until `run` lets it run.
class World {
public:
    /// The store begins with this history.
    explicit World(const std::vector<MissionRecord>& history) {
        DataFiles files(directory());
        files.makeDirectory(directory());
        files.saveSettings(samples::onboarded());
        writeHistory(history);
    }

    AppStore& store() {
        if (!store_)
            store_ = std::make_unique<AppStore>(AppStore::Environment{
                [this] { return present(); }, random_, directory(), notifier_, loginItem_, link_});
        return *store_;
    }
    QDir directory() const { return QDir(home_.path() + "/Velmora"); }

    void tick() {
        now_ += Seconds{0.05};
        store().tick();
    }
    /// From now on the store ticks by itself, in real time.
    void run() {
        runningSince_ = realNow();
        store().start();
    }
    void approve() {
        if (const auto alert = store().waitingAlert())
            store().answer(Command::approve, *alert);
    }
    /// A visit that the drone follows, with trails of 160 points.
    void follow() {
        store().simulate(Scenario::driveway);
        approve();
        while (store().knownState()->drone.trail.size() < 160)
            tick();
    }
    bool docked() { return store().knownState()->phase == Phase::docked; }

private:
    static Date realNow() { return Date(std::chrono::system_clock::now()); }
    Date present() const { return runningSince_ ? now_ + (realNow() - *runningSince_) : now_; }
    void writeHistory(const std::vector<MissionRecord>& history) const;

    std::optional<Date> runningSince_;
    Date now_ = dateFromSeconds(1'750'100'000);
    QTemporaryDir home_;
    samples::SeededRandom random_;
    SilentNotifier notifier_;
    NoLoginItem loginItem_;
    MuteLink link_;
    std::unique_ptr<AppStore> store_;
};

} // namespace velmora
