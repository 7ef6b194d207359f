#pragma once

#include "support/wait_until.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>

namespace velmora {

/// Sends the call and returns the reply; an invalid message if there is none. It polls for the reply, because
/// a blocking call would miss one that comes before its event loop starts.
inline QDBusMessage replyTo(const QDBusMessage& call, const QDBusConnection& bus) {
    const QDBusPendingCall pending = bus.asyncCall(call);
    waitUntil([&] { return pending.isFinished(); });
    return pending.reply();
}

} // namespace velmora
