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
    /// The newest command, until a state shows its effect, it fails, or five seconds have passed.
    std::optional<Command> pendingCommand() const;

    /// Applies changed settings. Another server or another mode resets status and freshness, and replies to
    /// earlier requests are ignored. Returns whether server or mode changed.
    bool setSettings(const Settings& settings);
    /// Sets the status to that of a session without an answer yet.
    void resetStatus();
    /// Advances by `elapsed` seconds to `now` and polls if a poll is due.
    void advance(Date now, double elapsed);
    /// Posts a command once, and polls as soon as its exchange ends. `current` is the state that the owner
    /// saw. `failed` is called if the exchange fails while the session exists.
    void send(Command command, const std::optional<std::string>& mission, const LiveState& current,
              std::function<void(const LinkError&)> failed);

signals:
    void received(const velmora::LiveState& state);
    void statusChanged();
    void freshnessChanged();
    void pendingCommandChanged();
    /// A command got no reply; `reason` is in words for the owner. It is empty if the server replied but no
    /// state showed the effect of the command within five seconds.
    void commandFailed(velmora::Command command, const QString& reason);

private:
    /// A command that was sent and had no effect yet.
    struct Pending {
        Command command;
        std::optional<AlertId> alert; ///< the alert that it answers
        double age = 0;               ///< seconds
        int number = 0;               ///< distinguishes it from an earlier command
    };

    void poll();
    void finishPoll(const FetchResult& result, int generation);
    static bool hasTakenEffect(const Pending& pending, const LiveState& state);
    void setPending(const std::optional<Pending>& pending);
    void finishSend(Command command, int number, const std::optional<LinkError>& failure);
    void agePending(double elapsed);
    void setStatus(const LinkStatus& status);
    void updateFreshness(Date now);

    Link& link_;
    std::function<Date()> clock_;
    Settings settings_;
    LinkStatus status_;
    Freshness freshness_;
    std::optional<Date> lastAnswerAt_;
    std::optional<Pending> pending_;
    int sent_ = 0; ///< commands
    bool pollInFlight_ = false;
    double pollClock_ = 0; ///< seconds since the last poll; negative after the clock was set back
    int generation_ = 0;   ///< incremented when server or mode changes
};

} // namespace velmora
