#pragma once

#include "support/wait_until.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>

namespace velmora {

/// The reply to a call, invalid when there is none. A call that blocks in an event loop of its own would miss
/// a reply that comes before the loop begins.
inline QDBusMessage replyTo(const QDBusMessage& call, const QDBusConnection& bus) {
    const QDBusPendingCall pending = bus.asyncCall(call);
    waitUntil([&] { return pending.isFinished(); });
    return pending.reply();
}

} // namespace velmora
