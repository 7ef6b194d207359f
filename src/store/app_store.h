#pragma once

#include "sim/simulator.h"
#include "store/data_files.h"
#include "store/history.h"
#include "store/journal.h"
#include "store/link_session.h"
#include "store/login_item.h"
#include "store/notifications.h"

#include <QBasicTimer>
#include <QObject>

namespace velmora {

class ExportFile;

/// The only controller of the app: owns the live state, the settings and the history, ticks twenty times a
/// second and carries out the owner's commands. Demo mode advances the simulator, link mode polls the server.
/// Screens read its values, call its operations and listen to its signals. Main thread only.
class AppStore : public QObject {
    Q_OBJECT

public:
    /// The injected dependencies; the references must outlive the store.
    struct Environment {
        std::function<Date()> clock;
        Random& random;
        QDir dataDirectory;
        Notifier& notifier;
        LoginItem& loginItem;
        Link& link;
    };

    /// Reads the settings. The first use of the history reads it, and seeds an empty one with rehearsed
    /// missions.
    explicit AppStore(Environment environment, QObject* parent = nullptr);

    /// Saves without a pause what is not on file yet, and waits for it. Returns whether everything is on file
    /// within the limit. The destructor does the same with the limit of DataFiles.
    bool flush(std::chrono::milliseconds limit);

    /// Starts the timer. Call once.
    void start();
    /// Advances to the current time of the clock. The timer calls it every 0.05 s.
    void tick();

    /// The live state; null in link mode until the server has answered.
    const LiveState* knownState() const;
    /// The phase of the live state; docked if there is no state.
    Phase phase() const { return knownState() ? state_.phase : Phase::docked; }
    const Settings& settings() const { return settings_; }
    /// Finished missions, newest first.
    const std::vector<HistoryEntry>& history() const { return history_.entries(); }
    /// Whether history() returns without reading the file.
    bool historyIsLoaded() const { return history_.isLoaded(); }
    /// Reads the history, unless it is loaded, and emits historyChanged.
    void loadHistory();
    /// Emits historyChanged once the history is loaded. A thread reads it, unless it is loaded already.
    void readHistoryInThread();
    /// The record with this key; null if there is none.
    const HistoryEntry* findRecord(RecordKey key) const { return history_.find(key); }
    Section section() const { return section_; }
    /// The record selected in the history; nullopt if none is.
    const std::optional<RecordKey>& selectedRecord() const { return selectedRecord_; }
    const LinkStatus& linkStatus() const { return session_.status(); }
    Freshness freshness() const { return session_.freshness(); }
    /// When the server last answered with a state; nullopt in demo mode and before its first answer.
    const std::optional<Date>& lastAnswerAt() const { return session_.lastAnswerAt(); }
    /// When the server last showed this camera online; nullopt if it never has.
    std::optional<Date> cameraLastOnline(const std::string& id) const;
    /// What keeps the armed system from watching in link mode; nullopt while all is well.
    const std::optional<Outage>& outage() const { return outageWatch_.outage(); }
    bool showWelcome() const { return showWelcome_; }
    /// The directory of settings.json, history.json and journal.jsonl.
    const QDir& dataDirectory() const { return environment_.dataDirectory; }
    /// Whether the desktop starts Velmora at login.
    bool startsAtLogin() const { return environment_.loginItem.isOn(); }
    /// The current time of the store's clock.
    Date now() const { return environment_.clock(); }

    void setSection(Section section);
    void setSelectedRecord(const std::optional<RecordKey>& key);
    /// Selects the record and shows the history.
    void openRecord(RecordKey key);
    /// Shows the connection settings.
    void openConnection();
    /// Shows the patterns of the history.
    void openPatterns();
    void setShowWelcome(bool show);
    /// Saves changed settings and applies them to simulator and link. Does nothing if nothing changed.
    void setSettings(const Settings& settings);
    /// Has no effect if the desktop's setting cannot be changed.
    void setStartAtLogin(bool on);

    /// The alert of the known state, also while it cannot be answered; nullopt if none waits. If the server
    /// is silent, the alert is over at its deadline.
    std::optional<AlertId> shownAlert() const;
    /// How long the deadline of the alert is over; nullopt before it, and if it was never ahead by the clock
    /// of this computer, because a clock is wrong then.
    std::optional<Seconds> overdue() const;
    /// The alert that can be answered now: the one shown, if the state is live and no answer to it is
    /// pending.
    std::optional<AlertId> waitingAlert() const;
    /// The newest command in link mode whose effect the server's state does not show yet, for at most five
    /// seconds.
    std::optional<Command> pendingCommand() const { return session_.pendingCommand(); }
    /// The only way to approve or ignore an alert. `seen` is the alert that the owner was shown. Sends the
    /// command once if exactly this alert can still be answered, otherwise drops it. Returns whether it sent
    /// the command. The journal has an approval or ignoring either way.
    bool answer(Command command, const AlertId& seen, CommandSource source);
    /// Sends a flight command to the simulator or the server, at once and only once, even if the server is
    /// silent. Does nothing for an answer to an alert.
    void send(Command command, CommandSource source);
    /// How the owner answered the alert of this mission; nullopt if nobody did.
    std::optional<GivenAnswer> answerTo(const MissionRecord& record) const;
    /// Demo mode only; in link mode the server decides whether it is armed.
    void setArmed(bool armed);
    /// Switches between demo mode and link mode. Unlike setSettings() it resets the link status even if the
    /// mode is the same.
    void applyLinkMode(bool linked);
    /// Starts a demo visit; does nothing in link mode.
    void simulate(Scenario scenario);
    /// Removes the rehearsed missions.
    void clearDemoHistory();
    /// Removes one record and returns it; nullopt if there is none with this key.
    std::optional<RemovedEntry> removeRecord(RecordKey key);
    /// Inserts a removed record again where it was.
    void restoreRecord(RemovedEntry removed);

    /// Each export writes a complete file, or changes nothing on failure. It returns an empty text, or names
    /// the file and the reason of the failure in words for the owner.
    /// Writes the record as JSON.
    QString exportRecord(const MissionRecord& record, const QString& path) const;
    /// Writes the record's paths and notices as CSV.
    QString exportPaths(const MissionRecord& record, const QString& path) const;
    /// Writes one line of CSV for each of these records. Keys without a record are skipped.
    QString exportList(const std::vector<RecordKey>& keys, const QString& path) const;
    /// Writes a PNG.
    QString exportPicture(const QByteArray& png, const QString& path) const;
    /// Opens a file for an export that is written piece by piece; never null.
    std::unique_ptr<ExportFile> openExport(const QString& path) const;

signals:
    /// Anything of the state but motion: see StateChange.
    void stateChanged();
    /// Drone, wind or visitor moved by as much as can be seen; up to twenty times a second.
    void moved();
    void settingsChanged();
    void historyChanged();
    void sectionChanged();
    void selectedRecordChanged();
    /// The settings are to show the connection.
    void connectionRequested();
    /// The history is to show its patterns.
    void patternsRequested();
    /// The history is to show this record, whatever it filters.
    void recordRequested(velmora::RecordKey key);
    void linkStatusChanged();
    void freshnessChanged();
    void showWelcomeChanged();
    /// A new alert waits for the owner's answer.
    void attentionRequested();
    void outageChanged();
    void pendingCommandChanged();
    /// A command got no reply within three seconds; `reason` is in words for the owner. It is empty if the
    /// server replied but no state showed the effect of the command within five seconds.
    void commandFailed(velmora::Command command, const QString& reason);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void receive(const LiveState& state);
    void setState(const LiveState& state);
    void advanceSimulator(Date now, double elapsed);
    bool canAnswer(const AlertId& seen) const;
    void transmit(const JournalEntry& entry);
    void appendResult(JournalEntry entry, CommandResult result, const std::string& reason);
    std::string whyDropped(const AlertId& seen) const;
    JournalEntry journalEntry(Command command, const std::optional<std::string>& mission,
                              CommandSource source) const;
    void followPhase();
    void phaseChanged(Phase from, Phase to);
    void alertReplaced();
    void followOutage(Date now);

    Environment environment_;
    DataFiles files_;
    Journal journal_;
    Settings settings_;
    History history_;
    Simulator sim_;
    LinkSession session_;
    Notifications notifications_;
    OutageWatch outageWatch_;
    LiveState state_;
    std::map<std::string, Date> camerasLastOnline_; ///< by id; only cameras of the server's site
    Section section_ = Section::overview;
    std::optional<RecordKey> selectedRecord_;
    bool showWelcome_ = false;
    QBasicTimer timer_;
    Date lastTick_;
    Phase lastPhase_ = Phase::docked;
    std::optional<AlertId> lastAlert_;
    std::optional<AlertId> alertWithTime_; ///< the last alert whose deadline was ahead
};

} // namespace velmora
