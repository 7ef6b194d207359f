#pragma once

#include <QCoreApplication>
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

} // namespace velmora
