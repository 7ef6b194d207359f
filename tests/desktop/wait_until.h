#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDeadlineTimer>
#include <QTimer>

namespace velmora {

/// Lets events happen until the condition holds; false when it has not after twenty seconds.
template <class Condition>
bool waitUntil(Condition condition) {
    QTimer wake;
    wake.start(20);
    QDeadlineTimer deadline(20'000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

/// The reply to a call, invalid when there is none. A call that blocks in an event loop of its own would miss
/// a reply that comes before the loop begins.
inline QDBusMessage replyTo(const QDBusMessage& call, const QDBusConnection& bus) {
    const QDBusPendingCall pending = bus.asyncCall(call);
    waitUntil([&] { return pending.isFinished(); });
    return pending.reply();
}

} // namespace velmora
