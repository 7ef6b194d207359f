#pragma once

#include <QProcess>

namespace velmora {

/// A session bus of the tests' own, so that nothing of the desktop they run on is heard or disturbed.
class PrivateBus {
public:
    PrivateBus() {
        daemon_.start(QStringLiteral("dbus-daemon"), {"--session", "--nofork", "--print-address"});
        if (daemon_.waitForStarted() && daemon_.waitForReadyRead())
            qputenv("DBUS_SESSION_BUS_ADDRESS", daemon_.readLine().trimmed());
    }
    ~PrivateBus() {
        daemon_.kill();
        daemon_.waitForFinished();
    }

    bool isRunning() const { return daemon_.state() == QProcess::Running; }

private:
    QProcess daemon_;
};

} // namespace velmora
