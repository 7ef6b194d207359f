#include "store/app_store.h"

#include "store/demo_history.h"

#include <QPointer>

#include <algorithm>
#include <chrono>

namespace velmora {

namespace {

using namespace std::chrono_literals;

constexpr auto tickInterval = 50ms;
constexpr double longestTick = 5;         // seconds; a longer gap, as after sleep, counts as this
constexpr double longestStep = 0.05;      // seconds
constexpr double negligibleStep = 0.0001; // seconds
constexpr double pollInterval = 0.5;      // seconds
constexpr double earlyTick = 0.005;       // seconds by which ten ticks may fall short of half a second
constexpr double failingUntilStale = 2;   // seconds since the last good answer
constexpr double silentUntilStale = 2.5;  // seconds since the last good answer

DetectionNotification detectionNotification(const LiveState& state) {
    const CameraInfo* camera = findCamera(state.site, state.visitor->cameraId);
    const QString name = camera ? QString::fromStdString(camera->name) : QStringLiteral("a camera");
    return {QString::fromStdString(state.missionId.value_or("det")),
            QStringLiteral("Someone you don't know is at the ") + name.toLower(),
            QStringLiteral("Launch the drone to keep an eye on them?"),
            camera ? QString::fromStdString(camera->snapshot) : QString(),
            alertId(state).value_or(AlertId{})};
}

} // namespace

AppStore::AppStore(World world, QObject* parent)
    : QObject(parent),
      world_(std::move(world)),
      files_(world_.dataDirectory),
      settings_(files_.loadSettings().value_or(Settings{})),
      history_(files_.loadHistory().value_or(std::vector<MissionRecord>{})),
      showWelcome_(!settings_.onboarded),
      sim_(LiveState::initial(), settings_, world_.random),
      lastTick_(world_.clock()) {
    if (history_.empty()) {
        history_ = rehearsedHistory(settings_, world_.clock(), world_.random);
        files_.saveHistory(history_);
    }
    sim_.onFinish = [this](const MissionRecord& finished) { record(finished); };
    state_ = sim_.state;
    if (settings_.linkMode)
        linkStatus_ = LinkStatus::connecting();
    updateFreshness();
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(tickInterval);
    connect(&timer_, &QTimer::timeout, this, &AppStore::tick);
}

void AppStore::start() {
    timer_.start();
}

void AppStore::tick() {
    const Date now = world_.clock();
    const double elapsed = std::min((now - lastTick_).count(), longestTick);
    lastTick_ = now;
    if (heardAt_)
        heardAt_ = std::min(*heardAt_, now); // or a clock that is set back would put it into the future
    if (settings_.linkMode)
        advancePolling(elapsed);
    else
        advanceSimulator(now, elapsed);
    updateFreshness();
    const Phase before = lastPhase_;
    const bool anotherAlert = alertId(state_) != lastAlert_;
    lastPhase_ = state_.phase;
    lastAlert_ = alertId(state_);
    if (state_.phase != before)
        phaseChanged(before, state_.phase);
    else if (anotherAlert && state_.phase == Phase::awaitingApproval)
        alertReplaced();
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

/// A poll that falls due while one is outstanding is dropped, not postponed. A clock that is set far back
/// does not keep the server unasked for as long.
void AppStore::advancePolling(double elapsed) {
    pollClock_ = std::max(pollClock_ + elapsed, -longestTick);
    if (pollClock_ + earlyTick < pollInterval)
        return;
    pollClock_ = 0;
    if (!pollInFlight_)
        poll();
}

void AppStore::poll() {
    pollInFlight_ = true;
    world_.link.fetchState(settings_, [store = QPointer(this), server = server_](const FetchResult& result) {
        if (store)
            store->received(result, server);
    });
}

void AppStore::received(const FetchResult& result, int server) {
    pollInFlight_ = false;
    if (const auto* fetched = std::get_if<FetchedState>(&result)) {
        if (settings_.linkMode && server == server_)
            heardAt_ = world_.clock();
        setState(fetched->state);
        setLinkStatus(LinkStatus::connected(fetched->version));
    } else {
        setLinkStatus(LinkStatus::failed(std::get<LinkError>(result).text));
    }
    updateFreshness();
}

/// A server may go from one waiting alert to the next between two polls.
void AppStore::alertReplaced() {
    world_.notifier.withdrawAll();
    notifyDetection();
    emit attentionRequested();
}

void AppStore::phaseChanged(Phase from, Phase to) {
    if (to == Phase::awaitingApproval) {
        notifyDetection();
        emit attentionRequested();
    }
    if (from == Phase::awaitingApproval)
        world_.notifier.withdrawAll();
    if (to == Phase::launching)
        setSection(Section::live);
}

void AppStore::notifyDetection() {
    if (!settings_.notifyMac || !state_.visitor)
        return;
    world_.notifier.post(detectionNotification(state_));
}

std::optional<AlertId> AppStore::waitingAlert() const {
    return freshness_ == Freshness::live ? alertId(state_) : std::nullopt;
}

/// After a pause of the program an answer can arrive before the tick, when the state is as old as the pause.
bool AppStore::answer(Command command, const AlertId& seen) {
    tick();
    if (!answersAlert(command) || waitingAlert() != seen)
        return false;
    transmit(command, seen.missionId);
    return true;
}

void AppStore::send(Command command) {
    if (!answersAlert(command))
        transmit(command, state_.missionId);
}

void AppStore::transmit(Command command, const std::optional<std::string>& mission) {
    if (!settings_.linkMode) {
        sim_.send(command, world_.clock());
        setState(sim_.state);
        return;
    }
    world_.link.send(command, mission, settings_,
                     [store = QPointer(this), command](const std::optional<LinkError>& failure) {
                         if (!store)
                             return;
                         if (failure)
                             emit store->commandFailed(command, failure->text);
                         if (store && !store->pollInFlight_)
                             store->poll();
                     });
}

void AppStore::setArmed(bool armed) {
    if (settings_.linkMode)
        return;
    sim_.state.armed = armed;
    const Notice notice{world_.random.uuid(), world_.clock(),
                        armed ? "System armed" : "System disarmed — detections will be logged only",
                        armed ? Notice::Level::good : Notice::Level::caution};
    addNotice(sim_.state, notice);
    setState(sim_.state);
}

void AppStore::applyLinkMode(bool linked) {
    Settings changed = settings_;
    changed.linkMode = linked;
    setSettings(changed);
    setLinkStatus(linked ? LinkStatus::connecting() : LinkStatus::demo());
    if (!linked)
        setState(sim_.state);
}

void AppStore::forgetServer() {
    ++server_;
    heardAt_.reset();
    world_.notifier.withdrawAll();
    if (settings_.linkMode)
        setLinkStatus(LinkStatus::connecting());
    updateFreshness();
}

/// A server that says it cannot be reached is believed a little sooner than one that says nothing.
void AppStore::updateFreshness() {
    Freshness freshness = Freshness::live;
    if (settings_.linkMode && !heardAt_) {
        freshness = Freshness::waiting;
    } else if (settings_.linkMode) {
        const bool failing = linkStatus_.kind == LinkStatus::Case::failed;
        if ((world_.clock() - *heardAt_).count() > (failing ? failingUntilStale : silentUntilStale))
            freshness = Freshness::stale;
    }
    if (freshness == freshness_)
        return;
    freshness_ = freshness;
    emit freshnessChanged();
}

void AppStore::simulate(Scenario scenario) {
    if (settings_.linkMode)
        return;
    sim_.trigger(scenario, world_.clock());
    setState(sim_.state);
}

void AppStore::record(const MissionRecord& record) {
    history_.insert(history_.begin(), record);
    historyEdited();
}

void AppStore::clearDemoHistory() {
    std::erase_if(history_, [](const MissionRecord& record) { return record.demo; });
    historyEdited();
}

void AppStore::removeRecord(std::size_t place) {
    if (place >= history_.size())
        return;
    history_.erase(history_.begin() + static_cast<std::ptrdiff_t>(place));
    historyEdited();
}

std::size_t AppStore::restoreRecord(const MissionRecord& record) {
    const auto older = std::ranges::find_if(
        history_, [&](const MissionRecord& other) { return other.start < record.start; });
    const auto place = history_.insert(older, record) - history_.begin();
    historyEdited();
    return static_cast<std::size_t>(place);
}

void AppStore::historyEdited() {
    files_.saveHistory(history_);
    emit historyChanged();
}

void AppStore::setState(const LiveState& state) {
    if (state == state_)
        return;
    state_ = state;
    emit stateChanged();
}

void AppStore::setSettings(const Settings& settings) {
    if (settings == settings_)
        return;
    const bool otherServer = settings.linkMode != settings_.linkMode || settings.host != settings_.host ||
                             settings.port != settings_.port;
    const bool leavesLink = settings_.linkMode && !settings.linkMode;
    settings_ = settings;
    files_.saveSettings(settings_);
    sim_.settings = settings_;
    emit settingsChanged();
    if (leavesLink)
        setState(sim_.state); // before the screens may believe what they show
    if (otherServer)
        forgetServer();
}

void AppStore::setLinkStatus(const LinkStatus& status) {
    if (status == linkStatus_)
        return;
    linkStatus_ = status;
    emit linkStatusChanged();
}

void AppStore::setSection(Section section) {
    if (section == section_)
        return;
    section_ = section;
    emit sectionChanged();
}

void AppStore::setSelectedRecord(const std::optional<std::string>& id) {
    selectedPlace_.reset();
    if (id == selectedRecord_)
        return;
    selectedRecord_ = id;
    emit selectedRecordChanged();
}

void AppStore::openRecord(std::size_t place) {
    if (place >= history_.size())
        return;
    selectedRecord_ = history_[place].id;
    selectedPlace_ = place;
    emit selectedRecordChanged();
    setSection(Section::history);
}

void AppStore::setShowWelcome(bool show) {
    if (show == showWelcome_)
        return;
    showWelcome_ = show;
    emit showWelcomeChanged();
}

} // namespace velmora
