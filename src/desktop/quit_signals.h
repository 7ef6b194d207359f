#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace velmora {

/// Turns SIGTERM, SIGINT and SIGHUP into an ordinary quit, which starts the QuitDeadline.
class QuitSignals : public QObject {
    Q_OBJECT

public:
    QuitSignals();

signals:
    void quitRequested();

private:
    QSocketNotifier notifier_;
};

} // namespace velmora
