#pragma once

#include <QProcess>
#include <QTemporaryFile>

namespace velmora {

/// A session bus of the tests, separate from the desktop's. It starts no services.
class PrivateBus {
public:
    PrivateBus() {
        if (!rules_.open())
            return;
        rules_.write(R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen><auth>EXTERNAL</auth>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy></busconfig>)");
        rules_.close();
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {"--config-file=" + rules_.fileName(), "--nofork", "--print-address"});
        if (daemon_.waitForStarted() && daemon_.waitForReadyRead())
            qputenv("DBUS_SESSION_BUS_ADDRESS", daemon_.readLine().trimmed());
    }
    ~PrivateBus() {
        daemon_.kill();
        daemon_.waitForFinished();
    }

    bool isRunning() const { return daemon_.state() == QProcess::Running; }

private:
    QTemporaryFile rules_;
    QProcess daemon_;
};

} // namespace velmora
