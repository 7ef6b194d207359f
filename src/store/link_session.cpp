#include "store/link_session.h"

#include <QPointer>

#include <algorithm>

namespace velmora {

namespace {

constexpr double pollInterval = 0.5;     // seconds
constexpr double earlyTick = 0.005;      // seconds; ten ticks may take slightly less than the interval
constexpr double longestDebt = 5;        // seconds by which setting the clock back can delay a poll
constexpr double failingUntilStale = 2;  // seconds since the last good answer
constexpr double silentUntilStale = 2.5; // seconds since the last good answer

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
    lastAnswerAt_.reset();
    resetStatus();
    updateFreshness();
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
    updateFreshness();
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
    pollInFlight_ = false;
    if (generation != generation_)
        return;
    if (const auto* fetched = std::get_if<FetchedState>(&result)) {
        lastAnswerAt_ = clock_();
        emit received(fetched->state);
        setStatus(LinkStatus::connected(fetched->version));
    } else {
        setStatus(LinkStatus::failed(std::get<LinkError>(result).text));
    }
    updateFreshness();
}

void LinkSession::send(Command command, const std::optional<std::string>& mission) {
    link_.send(command, mission, settings_,
               [session = QPointer(this), command, generation = generation_](const auto& failure) {
                   if (session && failure)
                       emit session->commandFailed(command, failure->text);
                   if (session && generation == session->generation_ && !session->pollInFlight_)
                       session->poll();
               });
}

void LinkSession::setStatus(const LinkStatus& status) {
    if (status == status_)
        return;
    status_ = status;
    emit statusChanged();
}

/// After a failed poll the state becomes stale a little sooner than after silence.
void LinkSession::updateFreshness() {
    Freshness freshness = Freshness::live;
    if (settings_.linkMode && !lastAnswerAt_) {
        freshness = Freshness::unknown;
    } else if (settings_.linkMode) {
        const bool failing = status_.kind == LinkStatus::Case::failed;
        if ((clock_() - *lastAnswerAt_).count() > (failing ? failingUntilStale : silentUntilStale))
            freshness = Freshness::stale;
    }
    if (freshness == freshness_)
        return;
    freshness_ = freshness;
    emit freshnessChanged();
}

} // namespace velmora
