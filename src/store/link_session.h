#pragma once

#include "link/link.h"
#include "model/freshness.h"
#include "store/link_status.h"

#include <QObject>

#include <functional>

namespace velmora {

/// The conversation with the server: polls its state twice a second, one request at a time, judges how fresh
/// the last answer is, and sends commands. It is off in demo mode; then nothing is polled and everything is
/// live.
class LinkSession : public QObject {
    Q_OBJECT

public:
    /// `link` must outlive the session.
    LinkSession(Link& link, std::function<Date()> clock, const Settings& settings, QObject* parent);

    const LinkStatus& status() const { return status_; }
    Freshness freshness() const { return freshness_; }
    /// When the server last answered with a state; absent in demo mode and before its first answer.
    const std::optional<Date>& lastAnswerAt() const { return lastAnswerAt_; }

    /// Follows changed settings. Another server, or another mode, starts a new conversation: replies to the
    /// old one are dropped. Returns whether it is a new one.
    bool setSettings(const Settings& settings);
    /// Shows the status of a conversation that has only begun.
    void resetStatus();
    /// Lets `elapsed` seconds pass; `now` is the clock's present.
    void advance(Date now, double elapsed);
    /// Posts a command once, and polls as soon as the exchange has ended.
    void send(Command command, const std::optional<std::string>& mission);

signals:
    void received(const velmora::LiveState& state);
    void statusChanged();
    void freshnessChanged();
    /// No reply came to a command, for this reason in words for the owner.
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
    double pollClock_ = 0; ///< seconds gathered towards the next poll
    int generation_ = 0;   ///< counts the conversations
};

} // namespace velmora
