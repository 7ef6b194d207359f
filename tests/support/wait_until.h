#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace velmora {

/// Processes events until the condition holds. Returns false if it does not hold after twenty seconds.
template <class Condition>
bool waitUntil(Condition condition) {
    QTimer wake; // unlike QTest::qWaitFor, which sleeps 10 ms between checks
    wake.start(20);
    QDeadlineTimer deadline(20'000);
    while (!condition() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // as QCoreApplication::exec does
    }
    return condition();
}

} // namespace velmora
