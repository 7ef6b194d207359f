#pragma once

#include <QNetworkReply>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

namespace velmora {

/// One request and its reply, from the first byte to the last or to whatever goes wrong before. Deletes
/// itself, and the reply with it, when it has ended.
class Exchange : public QObject {
    Q_OBJECT

public:
    /// How an exchange ended. Failed means what Qt calls an error, HTTP statuses from 400 included.
    struct End {
        enum class Kind { complete, failed, timedOut, tooLarge };

        Kind kind = Kind::complete;
        QNetworkReply::NetworkError error = QNetworkReply::NoError;
        QString errorText; ///< Qt's own
        int status = 0;    ///< HTTP status; 0 when none came
        QByteArray body;
        QString version; ///< header X-Velmora-Version, on one line: at most 40 printable characters
    };

    /// Calls `ended` exactly once, from the event loop, unless the parent goes first. A reply that is handled
    /// after the time limit, as after a pause of the program, has timed out.
    Exchange(QNetworkReply* reply, std::chrono::milliseconds timeLimit, qint64 byteLimit,
             std::function<void(const End&)> ended, QObject* parent);

private:
    void read();
    void finished();
    void end(End::Kind kind);

    QNetworkReply* reply_;
    std::chrono::milliseconds deadline_; ///< on the boot clock
    QTimer timer_;
    qint64 byteLimit_;
    QByteArray body_;
    std::function<void(const End&)> ended_;
};

} // namespace velmora
