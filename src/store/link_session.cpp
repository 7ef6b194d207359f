#include "store/link_session.h"

#include <QPointer>

#include <algorithm>

namespace velmora {

namespace {

constexpr double pollInterval = 0.5;       // seconds
constexpr double earlyTick = 0.005;        // seconds; ten ticks may take slightly less than the interval
constexpr double longestDebt = 5;          // seconds by which setting the clock back can delay a poll
constexpr double failingUntilStale = 2;    // seconds since the last good answer
constexpr double silentUntilStale = 2.5;   // seconds since the last good answer
constexpr double longestCountedTick = 0.5; // seconds
constexpr double longestPending = 5; // seconds from a command to its effect; its exchange may take three

} // namespace

LinkSession::LinkSession(Link& link, std::function<Date()> clock, const Settings& settings, QObject* parent)
    : QObject(parent),
      link_(link),
      clock_(std::move(clock)),
      settings_(settings),
      status_(settings.linkMode ? LinkStatus::connecting() : LinkStatus::demo()),
      freshness_(settings.linkMode ? Freshness::unknown : Freshness::live) {}

bool LinkSession::setSettings(const Settings& settings) {
    const bool same = settings.linkMode == settings_.linkMode && settings.host == settings_.host &&
                      settings.port == settings_.port;
    settings_ = settings;
    if (same)
        return false;
    ++generation_;
    link_.disconnect();
    pollInFlight_ = false;
    setPending(std::nullopt);
    lastAnswerAt_.reset();
    resetStatus();
    updateFreshness(clock_());
    return true;
}

void LinkSession::resetStatus() {
    setStatus(settings_.linkMode ? LinkStatus::connecting() : LinkStatus::demo());
}

/// A poll that becomes due while another is outstanding is skipped, not postponed.
void LinkSession::advance(Date now, double elapsed) {
    if (!settings_.linkMode)
        return;
    if (lastAnswerAt_)
        lastAnswerAt_ = std::min(*lastAnswerAt_, now); // never in the future, even if the clock was set back
    pollClock_ = std::max(pollClock_ + elapsed, -longestDebt);
    if (pollClock_ + earlyTick >= pollInterval) {
        pollClock_ = 0;
        if (!pollInFlight_)
            poll();
    }
    updateFreshness(now);
    agePending(elapsed);
}

std::optional<Command> LinkSession::pendingCommand() const {
    return pending_ ? std::optional(pending_->command) : std::nullopt;
}

bool LinkSession::hasTakenEffect(const Pending& pending, const LiveState& state) {
    switch (pending.command) {
    case Command::approve:
    case Command::ignore:
        return !pending.alert || !alertId(state) || !isSameAlert(*pending.alert, *alertId(state));
    case Command::hold:
        return state.phase == Phase::holding || !airborne(state.phase);
    case Command::resume:
        return state.phase != Phase::holding;
    case Command::returnHome:
        return state.phase == Phase::returning || state.phase == Phase::landing || !airborne(state.phase);
    case Command::land:
        return state.phase == Phase::landing || !airborne(state.phase);
    }
    return true;
}

void LinkSession::setPending(const std::optional<Pending>& pending) {
    const auto before = pendingCommand();
    pending_ = pending;
    if (pendingCommand() != before)
        emit pendingCommandChanged();
}

/// Counts the time in which the program ran: it cannot hear of an effect while it is suspended.
void LinkSession::agePending(double elapsed) {
    if (!pending_)
        return;
    pending_->age += std::clamp(elapsed, 0.0, longestCountedTick);
    if (pending_->age < longestPending)
        return;
    const Command command = pending_->command;
    setPending(std::nullopt);
    emit commandFailed(command, {});
}

void LinkSession::poll() {
    pollInFlight_ = true;
    link_.fetchState(settings_,
                     [session = QPointer(this), generation = generation_](const FetchResult& result) {
                         if (session)
                             session->finishPoll(result, generation);
                     });
}

void LinkSession::finishPoll(const FetchResult& result, int generation) {
    if (generation != generation_)
        return;
    pollInFlight_ = false;
    const Date now = clock_();
    if (const auto* fetched = std::get_if<FetchedState>(&result)) {
        lastAnswerAt_ = now;
        emit received(fetched->state);
        if (pending_ && hasTakenEffect(*pending_, fetched->state))
            setPending(std::nullopt);
        setStatus(LinkStatus::connected(fetched->version));
    } else {
        setStatus(LinkStatus::failed(std::get<LinkError>(result).text));
    }
    updateFreshness(now);
}

void LinkSession::send(Command command, const std::optional<std::string>& mission, const LiveState& current,
                       std::function<void(const LinkError&)> failed) {
    const Pending pending{command, alertId(current), 0, ++sent_};
    if (!hasTakenEffect(pending, current))
        setPending(pending);
    link_.send(command, mission, settings_,
               [session = QPointer(this), command, number = sent_, generation = generation_,
                failed = std::move(failed)](const auto& failure) {
                   if (session && failure)
                       failed(*failure);
                   if (session && generation == session->generation_)
                       session->finishSend(command, number, failure);
               });
}

/// Does not report the failure of an answer whose effect was seen, or whose alert has been replaced.
void LinkSession::finishSend(Command command, int number, const std::optional<LinkError>& failure) {
    const bool isPending = pending_ && pending_->number == number;
    if (failure && isPending)
        setPending(std::nullopt);
    if (failure && (isPending || !answersAlert(command)))
        emit commandFailed(command, failure->text);
    if (!pollInFlight_)
        poll();
}

void LinkSession::setStatus(const LinkStatus& status) {
    if (status == status_)
        return;
    status_ = status;
    emit statusChanged();
}

/// After a failed poll the state becomes stale a little sooner than after silence.
void LinkSession::updateFreshness(Date now) {
    Freshness freshness = Freshness::live;
    if (settings_.linkMode && !lastAnswerAt_) {
        freshness = Freshness::unknown;
    } else if (settings_.linkMode) {
        const bool failing = status_.kind == LinkStatus::Case::failed;
        if ((now - *lastAnswerAt_).count() > (failing ? failingUntilStale : silentUntilStale))
            freshness = Freshness::stale;
    }
    if (freshness == freshness_)
        return;
    freshness_ = freshness;
    emit freshnessChanged();
}

} // namespace velmora
