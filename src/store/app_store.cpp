#include "store/app_store.h"

#include "model/csv.h"
#include "model/json.h"
#include "model/mission_evidence.h"
#include "model/state_change.h"
#include "store/demo_history.h"
#include "store/export_file.h"

#include <algorithm>
#include <chrono>

namespace velmora {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::duration<int, std::milli> tickInterval = 50ms;
constexpr double longestTick = 5;         // seconds; a longer gap, for example a suspend, counts as this
constexpr double longestStep = 0.05;      // seconds
constexpr double negligibleStep = 0.0001; // seconds

QString writeExport(const QString& path, std::string_view bytes) {
    ExportFile file(path);
    if (file.device().isWritable())
        file.device().write(bytes.data(), static_cast<qint64>(bytes.size()));
    return file.finish();
}

} // namespace

AppStore::AppStore(Environment environment, QObject* parent)
    : QObject(parent),
      environment_(std::move(environment)),
      files_(environment_.dataDirectory),
      journal_(environment_.dataDirectory),
      settings_(files_.loadSettings().value_or(Settings{})),
      history_(files_,
               [this] { return rehearsedHistory(settings_, environment_.clock(), environment_.random); }),
      sim_(LiveState::initial(), settings_, environment_.random),
      session_(environment_.link, environment_.clock, settings_, this),
      notifications_(environment_.notifier),
      state_(sim_.state),
      showWelcome_(!settings_.onboarded),
      lastTick_(environment_.clock()) {
    outageWatch_.restart(lastTick_);
    sim_.onFinish = [this](const MissionRecord& finished) {
        history_.add({finished});
        emit historyChanged();
    };
    connect(&session_, &LinkSession::received, this, &AppStore::receive);
    connect(&session_, &LinkSession::statusChanged, this, &AppStore::linkStatusChanged);
    connect(&session_, &LinkSession::freshnessChanged, this, &AppStore::freshnessChanged);
    connect(&session_, &LinkSession::pendingCommandChanged, this, &AppStore::pendingCommandChanged);
    connect(&session_, &LinkSession::commandFailed, this, &AppStore::commandFailed);
}

void AppStore::start() {
    timer_.start(tickInterval.count(), Qt::PreciseTimer, this);
}

void AppStore::timerEvent(QTimerEvent*) {
    tick();
}

bool AppStore::flush(std::chrono::milliseconds limit) {
    const auto start = std::chrono::steady_clock::now();
    const bool kept = journal_.flush(std::min<std::chrono::milliseconds>(limit, 1s));
    const auto used = std::chrono::ceil<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
    return files_.flush(limit - used) && kept;
}

const LiveState* AppStore::knownState() const {
    return freshness() == Freshness::unknown ? nullptr : &state_;
}

void AppStore::tick() {
    const Date now = environment_.clock();
    const double elapsed = std::min((now - lastTick_).count(), longestTick);
    lastTick_ = now;
    if (settings_.linkMode)
        session_.advance(now, elapsed);
    else
        advanceSimulator(now, elapsed);
    followPhase();
    if (settings_.linkMode)
        followOutage(now);
}

void AppStore::followOutage(Date now) {
    if (!outageWatch_.observe({knownState(), freshness(), lastAnswerAt()}, now))
        return;
    notifications_.showOutage(outage(), settings_, now);
    emit outageChanged();
}

void AppStore::advanceSimulator(Date now, double elapsed) {
    double remaining = elapsed;
    while (remaining > negligibleStep) {
        const double step = std::min(remaining, longestStep);
        remaining -= step;
        sim_.step(step, now - Seconds{remaining});
    }
    setState(sim_.state);
}

/// Also compares the alerts, because a server can replace a waiting alert with another one between two polls.
void AppStore::followPhase() {
    const Phase before = std::exchange(lastPhase_, phase());
    if (state_.approvalDeadline && *state_.approvalDeadline > now())
        alertWithTime_ = alertId(state_);
    const auto alert = shownAlert();
    const auto previous = std::exchange(lastAlert_, alert);
    const bool anotherAlert = previous && alert ? !isSameAlert(*previous, *alert) : previous != alert;
    if (phase() != before)
        phaseChanged(before, phase());
    else if (anotherAlert && alert)
        alertReplaced();
    else if (anotherAlert)
        notifications_.withdrawAlert();
}

void AppStore::alertReplaced() {
    notifications_.postAlert(state_, settings_);
    emit attentionRequested();
}

void AppStore::phaseChanged(Phase from, Phase to) {
    if (to == Phase::awaitingApproval) {
        notifications_.postAlert(state_, settings_);
        emit attentionRequested();
    }
    if (from == Phase::awaitingApproval)
        notifications_.withdrawAlert();
    if (to == Phase::launching)
        setSection(Section::live);
}

/// Over a live link the server decides when an alert is over.
std::optional<AlertId> AppStore::shownAlert() const {
    const bool isOver = freshness() == Freshness::stale && overdue();
    return knownState() && !isOver ? alertId(state_) : std::nullopt;
}

std::optional<Seconds> AppStore::overdue() const {
    const bool wasAhead = alertWithTime_ && alertWithTime_ == alertId(state_);
    if (!wasAhead || !state_.approvalDeadline || now() < *state_.approvalDeadline)
        return std::nullopt;
    return now() - *state_.approvalDeadline;
}

std::optional<AlertId> AppStore::waitingAlert() const {
    const bool answered = pendingCommand() && answersAlert(*pendingCommand());
    return freshness() == Freshness::live && !answered ? shownAlert() : std::nullopt;
}

/// Ticks first: after a pause of the program an answer can arrive before the next tick, while the state is
/// still old. Ticks again after the journal, which may have taken a tenth of a second.
bool AppStore::answer(Command command, const AlertId& seen, CommandSource source) {
    tick();
    if (!answersAlert(command))
        return false;
    if (canAnswer(seen)) {
        const JournalEntry entry = journalEntry(command, waitingAlert()->missionId, source);
        journal_.append(entry);
        journal_.sync();
        tick();
        const bool sends = canAnswer(seen);
        if (sends)
            transmit(entry);
        else
            appendResult(entry, CommandResult::failed, whyDropped(seen));
        return sends;
    }
    appendResult(journalEntry(command, seen.missionId, source), CommandResult::dropped, whyDropped(seen));
    return false;
}

bool AppStore::canAnswer(const AlertId& seen) const {
    const auto waiting = waitingAlert();
    return waiting && isSameAlert(seen, *waiting);
}

std::string AppStore::whyDropped(const AlertId& seen) const {
    if (freshness() != Freshness::live)
        return "the server is silent";
    const auto shown = shownAlert();
    if (!shown)
        return "no alert waits";
    return isSameAlert(seen, *shown) ? "an answer is on its way" : "another alert waits";
}

void AppStore::send(Command command, CommandSource source) {
    if (answersAlert(command))
        return;
    const JournalEntry entry =
        journalEntry(command, knownState() ? knownState()->missionId : std::nullopt, source);
    journal_.append(entry);
    journal_.sync();
    transmit(entry);
}

JournalEntry AppStore::journalEntry(Command command, const std::optional<std::string>& mission,
                                    CommandSource source) const {
    return {now(), command, mission, source, CommandResult::sent, std::nullopt, !settings_.linkMode};
}

void AppStore::transmit(const JournalEntry& entry) {
    if (!settings_.linkMode) {
        sim_.send(entry.command, now());
        setState(sim_.state);
        return;
    }
    session_.send(entry.command, entry.mission, state_, [this, entry](const LinkError& error) {
        appendResult(entry, CommandResult::failed,
                     error.failure == Failure::other ? error.text.toStdString()
                                                     : std::string(rawValue(error.failure)));
    });
}

void AppStore::appendResult(JournalEntry entry, CommandResult result, const std::string& reason) {
    entry.time = now();
    entry.result = result;
    entry.reason = reason;
    journal_.append(entry);
}

std::optional<GivenAnswer> AppStore::answerTo(const MissionRecord& record) const {
    if (const auto entry = journal_.answerTo(record))
        return GivenAnswer{entry->command, entry->time, entry->source};
    return answerOnRecord(record);
}

void AppStore::setArmed(bool armed) {
    if (settings_.linkMode)
        return;
    sim_.state.armed = armed;
    const NoticeKind kind = armed ? NoticeKind::armed : NoticeKind::disarmed;
    addNotice(sim_.state,
              {environment_.random.uuid(), environment_.clock(), noticeText(kind), noticeLevel(kind)});
    setState(sim_.state);
}

void AppStore::applyLinkMode(bool linked) {
    Settings changed = settings_;
    changed.linkMode = linked;
    setSettings(changed);
    session_.resetStatus();
}

void AppStore::simulate(Scenario scenario) {
    if (settings_.linkMode)
        return;
    sim_.trigger(scenario, environment_.clock());
    setState(sim_.state);
}

void AppStore::loadHistory() {
    history_.entries();
    emit historyChanged();
}

void AppStore::readHistoryInThread() {
    if (historyIsLoaded())
        return loadHistory();
    files_.readHistoryInThread(
        [this] { QMetaObject::invokeMethod(this, &AppStore::loadHistory, Qt::QueuedConnection); });
}

void AppStore::clearDemoHistory() {
    history_.clearDemo();
    emit historyChanged();
}

std::optional<RemovedEntry> AppStore::removeRecord(RecordKey key) {
    auto removed = history_.remove(key);
    if (removed)
        emit historyChanged();
    return removed;
}

void AppStore::restoreRecord(RemovedEntry removed) {
    history_.restore(std::move(removed));
    emit historyChanged();
}

QString AppStore::exportRecord(const MissionRecord& record, const QString& path) const {
    return writeExport(path, encode(record).value_or(""));
}

QString AppStore::exportPaths(const MissionRecord& record, const QString& path) const {
    return writeExport(path, pathsCsv(record));
}

QString AppStore::exportList(const std::vector<RecordKey>& keys, const QString& path) const {
    std::vector<MissionRecord> records;
    for (const RecordKey key : keys)
        if (const HistoryEntry* entry = findRecord(key))
            records.push_back(*entry->record);
    return writeExport(path, recordsCsv(records));
}

QString AppStore::exportPicture(const QByteArray& png, const QString& path) const {
    return writeExport(path, {png.constData(), static_cast<std::size_t>(png.size())});
}

std::unique_ptr<ExportFile> AppStore::openExport(const QString& path) const {
    return std::make_unique<ExportFile>(path);
}

void AppStore::setStartAtLogin(bool on) {
    environment_.loginItem.setOn(on);
}

void AppStore::receive(const LiveState& state) {
    std::erase_if(camerasLastOnline_,
                  [&](const auto& camera) { return !findCamera(state.site, camera.first); });
    const Date now = environment_.clock();
    for (const CameraInfo& camera : state.site.cameras)
        if (camera.online)
            camerasLastOnline_[camera.id] = now;
    setState(state);
}

std::optional<Date> AppStore::cameraLastOnline(const std::string& id) const {
    const auto camera = camerasLastOnline_.find(id);
    return camera == camerasLastOnline_.end() ? std::nullopt : std::optional(camera->second);
}

void AppStore::setState(const LiveState& state) {
    const StateChange change = changeBetween(state_, state, settings_);
    state_ = state;
    if (change == StateChange::situation)
        emit stateChanged();
    else if (change == StateChange::motion)
        emit moved();
}

void AppStore::setSettings(const Settings& settings) {
    if (settings == settings_)
        return;
    const bool leavesLink = settings_.linkMode && !settings.linkMode;
    settings_ = settings;
    files_.saveSettings(settings_);
    sim_.settings = settings_;
    emit settingsChanged();
    if (leavesLink)
        setState(sim_.state); // before the session reports the state as live
    if (session_.setSettings(settings_)) {
        camerasLastOnline_.clear();
        notifications_.withdrawAlert();
        if (outageWatch_.restart(now()))
            emit outageChanged();
    }
    notifications_.showOutage(outage(), settings_, now());
}

void AppStore::setSection(Section section) {
    if (section == section_)
        return;
    section_ = section;
    emit sectionChanged();
}

void AppStore::setSelectedRecord(const std::optional<RecordKey>& key) {
    if (key == selectedRecord_)
        return;
    selectedRecord_ = key;
    emit selectedRecordChanged();
}

void AppStore::openRecord(RecordKey key) {
    setSelectedRecord(key);
    emit recordRequested(key);
    setSection(Section::history);
}

void AppStore::openConnection() {
    setSection(Section::settings);
    emit connectionRequested();
}

void AppStore::openPatterns() {
    setSection(Section::history);
    emit patternsRequested();
}

void AppStore::setShowWelcome(bool show) {
    if (show == showWelcome_)
        return;
    showWelcome_ = show;
    emit showWelcomeChanged();
}

} // namespace velmora
