#pragma once

#include "store/app_store.h"

#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <memory>

namespace velmora {

/// Draws the middle of every range, so that the wind keeps still.
class CalmRandom final : public Random {
public:
    double uniform(double low, double high) override { return (low + high) / 2; }
    Uuid uuid() override { return Uuid::fromRandomBits(0, ++count_); }

private:
    std::uint64_t count_ = 0;
};

/// Keeps what was asked; answers when the test says so.
class FakeLink final : public Link {
public:
    struct Posted {
        Command command;
        std::optional<std::string> mission;
        CommandDone done;
    };

    void fetchState(const Settings&, std::function<void(FetchResult)> done) override {
        fetches.push_back(done);
    }
    void send(Command command, const std::optional<std::string>& mission, const Settings&,
              CommandDone done) override {
        posts.push_back({command, mission, done});
    }

    std::vector<std::function<void(FetchResult)>> fetches;
    std::vector<Posted> posts;
};

class FakeNotifier final : public Notifier {
public:
    void post(const DetectionNotification& notification) override { posted.push_back(notification); }
    void withdrawAll() override { ++withdrawals; }

    std::vector<DetectionNotification> posted;
    int withdrawals = 0;
};

class FakeLoginItem final : public LoginItem {
public:
    bool isOn() const override { return on; }
    bool setOn(bool wanted) override {
        on = refuses ? on : wanted;
        return on == wanted;
    }

    bool on = false;
    bool refuses = false;
};

/// A store with a clock that only the test moves, in a data directory of its own.
class StoreTest : public testing::Test {
protected:
    AppStore& store() {
        if (!store_)
            store_ = std::make_unique<AppStore>(AppStore::Environment{
                [this] { return now; }, random, QDir(directory()), notifier, loginItem, link});
        return *store_;
    }
    void restart() { store_.reset(); }
    /// The live picture, which must be known.
    const LiveState& live() { return *store().knownState(); }
    /// Copies of the finished missions, newest first.
    std::vector<MissionRecord> recorded() {
        std::vector<MissionRecord> records;
        for (const HistoryEntry& entry : store().history())
            records.push_back(entry.record);
        return records;
    }

    QString directory() const { return home.path() + "/data/Velmora"; }
    QString path(const QString& name) const { return directory() + '/' + name; }
    QByteArray content(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void put(const QString& name, const QByteArray& bytes) const {
        QDir().mkpath(directory());
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// Lets the time pass in ticks of 0.05 s.
    void pass(double seconds) {
        for (int i = 0; i < std::lround(seconds / 0.05); ++i)
            tickAfter(0.05);
    }
    void tickAfter(double seconds) {
        now += Seconds{seconds};
        store().tick();
    }
    /// Answers the alert that waits, if one does.
    void respond(Command command) {
        if (const auto alert = store().waitingAlert())
            store().answer(command, *alert);
    }
    void linked() {
        Settings settings = store().settings();
        settings.linkMode = true;
        store().setSettings(settings);
    }
    Phase phase() { return store().phase(); }

    QTemporaryDir home;
    Date now = dateFromSeconds(1'700'000'042);
    CalmRandom random;
    FakeNotifier notifier;
    FakeLoginItem loginItem;
    FakeLink link;

private:
    std::unique_ptr<AppStore> store_;
};

} // namespace velmora
