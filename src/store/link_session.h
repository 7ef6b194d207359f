#pragma once

#include "link/link.h"
#include "model/freshness.h"
#include "store/link_status.h"

#include <QObject>

#include <functional>

namespace velmora {

/// Talks to the server in link mode: polls its state twice a second, one request at a time, judges the
/// freshness of the last answer, and sends commands. In demo mode it polls nothing and the state is always
/// live.
class LinkSession : public QObject {
    Q_OBJECT

public:
    /// `link` must outlive the session.
    LinkSession(Link& link, std::function<Date()> clock, const Settings& settings, QObject* parent);

    const LinkStatus& status() const { return status_; }
    Freshness freshness() const { return freshness_; }
    /// When the server last answered with a state; nullopt in demo mode and before its first answer.
    const std::optional<Date>& lastAnswerAt() const { return lastAnswerAt_; }

    /// Applies changed settings. Another server or another mode resets status and freshness, and replies to
    /// earlier requests are ignored. Returns whether server or mode changed.
    bool setSettings(const Settings& settings);
    /// Sets the status to that of a session without an answer yet.
    void resetStatus();
    /// Advances by `elapsed` seconds to `now` and polls if a poll is due.
    void advance(Date now, double elapsed);
    /// Posts a command once, and polls as soon as its exchange ends.
    void send(Command command, const std::optional<std::string>& mission);

signals:
    void received(const velmora::LiveState& state);
    void statusChanged();
    void freshnessChanged();
    /// A command got no reply; `reason` is in words for the owner.
    void commandFailed(velmora::Command command, const QString& reason);

private:
    void poll();
    void finishPoll(const FetchResult& result, int generation);
    void setStatus(const LinkStatus& status);
    void updateFreshness();

    Link& link_;
    std::function<Date()> clock_;
    Settings settings_;
    LinkStatus status_;
    Freshness freshness_;
    std::optional<Date> lastAnswerAt_;
    bool pollInFlight_ = false;
    double pollClock_ = 0; ///< seconds since the last poll; negative after the clock was set back
    int generation_ = 0;   ///< incremented when server or mode changes
};

} // namespace velmora
