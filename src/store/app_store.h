#pragma once

#include "link/link.h"
#include "sim/simulator.h"
#include "store/data_files.h"
#include "store/link_status.h"
#include "store/notifier.h"

#include <QObject>
#include <QTimer>

namespace velmora {

/// The one controller of the app: owns the live state, the settings and the history, advances the simulator
/// or polls the server twenty times a second, and carries out what the owner asks. Screens read its values,
/// call its operations and listen to its signals. Everything happens on the main thread.
class AppStore : public QObject {
    Q_OBJECT

public:
    /// What the store needs of the world; all of it must outlive the store.
    struct World {
        std::function<Date()> clock;
        Random& random;
        QDir dataDirectory;
        Notifier& notifier;
        Link& link;
    };

    /// Reads both files, or seeds an empty history with rehearsed missions.
    explicit AppStore(World world, QObject* parent = nullptr);

    /// Starts the ticking. Called once.
    void start();
    /// Advances to the clock's present; the timer calls it every 0.05 s.
    void tick();

    const LiveState& state() const { return state_; }
    const Settings& settings() const { return settings_; }
    /// Finished missions, newest first.
    const std::vector<MissionRecord>& history() const { return history_; }
    Section section() const { return section_; }
    /// Id of the record opened in the history.
    const std::optional<std::string>& selectedRecord() const { return selectedRecord_; }
    /// Its place in the history when it was opened by place: ids are not unique.
    const std::optional<std::size_t>& selectedPlace() const { return selectedPlace_; }
    const LinkStatus& linkStatus() const { return linkStatus_; }
    Freshness freshness() const { return freshness_; }
    /// When the server last answered well; absent in demo mode and before its first good answer.
    const std::optional<Date>& heardAt() const { return heardAt_; }
    bool showWelcome() const { return showWelcome_; }
    /// Where settings.json and history.json are.
    const QDir& dataDirectory() const { return world_.dataDirectory; }
    /// The world's present, for ages and countdowns.
    Date now() const { return world_.clock(); }

    void setSection(Section section);
    void setSelectedRecord(const std::optional<std::string>& id);
    /// Opens the record in this place of the history.
    void openRecord(std::size_t place);
    void setShowWelcome(bool show);
    /// A change is saved and reaches the simulator at once.
    void setSettings(const Settings& settings);

    /// The alert that can be answered now: it waits, and the link to the server is live.
    std::optional<AlertId> waitingAlert() const;
    /// The only way to approve or ignore an alert. `seen` is the alert that the owner was shown: the answer
    /// goes out, once, if that very alert can still be answered at this moment; otherwise nothing happens.
    /// Returns whether it went out.
    bool answer(Command command, const AlertId& seen);
    /// Carries out a flight command in the simulator or at the server, at once and once, also while the
    /// server is silent. Does nothing for an answer to an alert.
    void send(Command command);
    /// Demo mode only: a server decides for itself whether it is armed.
    void setArmed(bool armed);
    void applyLinkMode(bool linked);
    /// Starts a demo visit; nothing in link mode.
    void simulate(Scenario scenario);
    /// Removes the rehearsed missions.
    void clearDemoHistory();
    /// Removes one record by its place in the history.
    void removeRecord(std::size_t place);
    /// Puts a removed record back above the older ones; returns its place.
    std::size_t restoreRecord(const MissionRecord& record);

signals:
    void stateChanged();
    void settingsChanged();
    void historyChanged();
    void sectionChanged();
    void selectedRecordChanged();
    void linkStatusChanged();
    void freshnessChanged();
    void showWelcomeChanged();
    /// Someone waits for the owner's decision.
    void attentionRequested();
    /// The server did not take a command, for this reason in words for the owner. Comes within three seconds.
    void commandFailed(velmora::Command command, const QString& reason);

private:
    void setState(const LiveState& state);
    void setLinkStatus(const LinkStatus& status);
    void forgetServer();
    void updateFreshness();
    void advanceSimulator(Date now, double elapsed);
    void advancePolling(double elapsed);
    void poll();
    void received(const FetchResult& result, int server);
    void transmit(Command command, const std::optional<std::string>& mission);
    void phaseChanged(Phase from, Phase to);
    void alertReplaced();
    void notifyDetection();
    void record(const MissionRecord& record);
    void historyEdited();

    World world_;
    DataFiles files_;
    LiveState state_;
    Settings settings_;
    std::vector<MissionRecord> history_;
    Section section_ = Section::overview;
    std::optional<std::string> selectedRecord_;
    std::optional<std::size_t> selectedPlace_;
    LinkStatus linkStatus_;
    Freshness freshness_ = Freshness::live;
    std::optional<Date> heardAt_;
    bool showWelcome_ = false;
    Simulator sim_;
    QTimer timer_;
    Date lastTick_;
    bool pollInFlight_ = false;
    int server_ = 0;       ///< counts the servers asked, so that a late answer of another one is told apart
    double pollClock_ = 0; ///< seconds gathered towards the next poll
    Phase lastPhase_ = Phase::docked;
    std::optional<AlertId> lastAlert_;
};

} // namespace velmora
