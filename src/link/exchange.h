#pragma once

#include <QNetworkReply>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

namespace velmora {

/// One HTTP request and its reply. It ends when the reply is complete, fails, takes too long or is too large,
/// and then deletes itself and the reply.
class Exchange : public QObject {
    Q_OBJECT

public:
    /// Result of an exchange. `failed` means any error that Qt reports, including HTTP statuses from 400.
    struct End {
        enum class Kind { complete, failed, timedOut, tooLarge };

        Kind kind = Kind::complete;
        QNetworkReply::NetworkError error = QNetworkReply::NoError;
        QString errorText; ///< Qt's text for the error
        int status = 0;    ///< HTTP status; 0 if no reply came
        QByteArray body;
        QString version; ///< header X-Velmora-Version: one line of at most 40 printable characters
    };

    /// Takes ownership of `reply`. Calls `ended` exactly once, from the event loop, unless `parent` is
    /// destroyed first. The exchange times out if the reply is not processed within `timeLimit`, even if a
    /// pause of the program is the cause. A body of more than `byteLimit` bytes is too large.
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
