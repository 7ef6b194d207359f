#pragma once

#include "sim/simulator.h"
#include "store/data_files.h"
#include "store/history.h"
#include "store/link_session.h"
#include "store/login_item.h"
#include "store/notifier.h"

#include <QObject>
#include <QTimer>

namespace velmora {

/// The one controller of the app: owns the live state, the settings and the history, ticks twenty times a
/// second, and carries out what the owner asks. Demo mode advances the simulator, link mode polls the server.
/// Screens read its values, call its operations and listen to its signals. Everything happens on the main
/// thread.
class AppStore : public QObject {
    Q_OBJECT

public:
    /// What the store needs from outside; all of it must outlive the store.
    struct Environment {
        std::function<Date()> clock;
        Random& random;
        QDir dataDirectory;
        Notifier& notifier;
        LoginItem& loginItem;
        Link& link;
    };

    /// Reads both files, or seeds an empty history with rehearsed missions.
    explicit AppStore(Environment environment, QObject* parent = nullptr);

    /// Starts the ticking. Called once.
    void start();
    /// Advances to the clock's present; the timer calls it every 0.05 s.
    void tick();

    /// The live picture; null in link mode until the server has answered.
    const LiveState* knownState() const;
    /// The phase of the live picture; docked while nothing is known.
    Phase phase() const { return knownState() ? state_.phase : Phase::docked; }
    const Settings& settings() const { return settings_; }
    /// Finished missions, newest first.
    const std::vector<HistoryEntry>& history() const { return history_.entries(); }
    /// Null if there is no such record (any more).
    const HistoryEntry* findRecord(RecordKey key) const { return history_.find(key); }
    Section section() const { return section_; }
    /// The record opened in the history.
    const std::optional<RecordKey>& selectedRecord() const { return selectedRecord_; }
    const LinkStatus& linkStatus() const { return session_.status(); }
    Freshness freshness() const { return session_.freshness(); }
    /// When the server last answered with a state; absent in demo mode and before its first answer.
    const std::optional<Date>& lastAnswerAt() const { return session_.lastAnswerAt(); }
    bool showWelcome() const { return showWelcome_; }
    /// Where settings.json and history.json are.
    const QDir& dataDirectory() const { return environment_.dataDirectory; }
    /// What the desktop's setting says now.
    bool startsAtLogin() const { return environment_.loginItem.isOn(); }
    /// The clock's present, for ages and countdowns.
    Date now() const { return environment_.clock(); }

    void setSection(Section section);
    void setSelectedRecord(const std::optional<RecordKey>& key);
    /// Selects the record and shows the history.
    void openRecord(RecordKey key);
    void setShowWelcome(bool show);
    /// Saves a change at once and hands it to the simulator and the link.
    void setSettings(const Settings& settings);
    /// Nothing changes if the desktop refuses.
    void setStartAtLogin(bool on);

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
    /// Switches between demo mode and link mode. Also restarts the link's status if the mode stays.
    void applyLinkMode(bool linked);
    /// Starts a demo visit; nothing in link mode.
    void simulate(Scenario scenario);
    /// Removes the rehearsed missions.
    void clearDemoHistory();
    /// Removes one record and returns it; absent if there is none.
    std::optional<HistoryEntry> removeRecord(RecordKey key);
    /// Puts a removed record back above the older ones.
    void restoreRecord(HistoryEntry entry);

    /// Exports write one file, complete or not at all. They return an empty text, or a sentence for the owner
    /// that says which file was not written and why. This one writes the record as JSON.
    QString exportRecord(const MissionRecord& record, const QString& path) const;
    /// The record's paths and notices as CSV.
    QString exportPaths(const MissionRecord& record, const QString& path) const;
    /// One line of CSV for each of these records.
    QString exportList(const std::vector<RecordKey>& keys, const QString& path) const;
    QString exportPicture(const QByteArray& png, const QString& path) const;

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
    /// No reply came to a command, for this reason in words for the owner. Comes within three seconds.
    void commandFailed(velmora::Command command, const QString& reason);

private:
    void setState(const LiveState& state);
    void advanceSimulator(Date now, double elapsed);
    void transmit(Command command, const std::optional<std::string>& mission);
    void followPhase();
    void phaseChanged(Phase from, Phase to);
    void alertReplaced();
    void notifyDetection();

    Environment environment_;
    DataFiles files_;
    Settings settings_;
    History history_;
    Simulator sim_;
    LinkSession session_;
    LiveState state_;
    Section section_ = Section::overview;
    std::optional<RecordKey> selectedRecord_;
    bool showWelcome_ = false;
    QTimer timer_;
    Date lastTick_;
    Phase lastPhase_ = Phase::docked;
    std::optional<AlertId> lastAlert_;
};

} // namespace velmora
