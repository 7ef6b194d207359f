#pragma once

#include "support/random.h"
#include "support/store_world.h"

#include <gmock/gmock.h>

namespace velmora {

/// Records the requests; the test calls their callbacks.
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
        onSend();
        posts.push_back({command, mission, done});
    }
    void disconnect() override {}

    std::vector<std::function<void(FetchResult)>> fetches;
    std::vector<Posted> posts;
    std::function<void()> onSend = [] {};
};

class FakeNotifier final : public Notifier {
public:
    void post(const Notification& notification) override { posted.push_back(notification); }
    void withdraw(const QString& identifier) override { withdrawn.append(identifier); }
    bool isShown(const QString&) const override { return shown; }

    std::vector<Notification> posted;
    QStringList withdrawn; ///< identifiers
    bool shown = true;     ///< false: the owner closes every notification
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

/// A store in a temporary data directory, with a clock that the test controls.
class StoreTest : public testing::Test,
                  protected StoreWorld<ScriptedRandom, FakeLink, FakeNotifier, FakeLoginItem> {
protected:
    /// The live state, which must be known.
    const LiveState& live() { return *store().knownState(); }
    /// Copies of the finished missions, newest first.
    std::vector<MissionRecord> recorded() {
        std::vector<MissionRecord> records;
        for (const HistoryEntry& entry : store().history())
            records.push_back(*entry.record);
        return records;
    }

    /// Advances the clock in ticks of 0.05 s.
    void pass(double seconds) {
        for (int i = 0; i < std::lround(seconds / 0.05); ++i)
            tickAfter(0.05);
    }
    void linked() {
        Settings settings = store().settings();
        settings.linkMode = true;
        store().setSettings(settings);
    }
    Phase phase() { return store().phase(); }
};

} // namespace velmora
