#pragma once

#include <QByteArray>
#include <QTcpServer>

#include <chrono>
#include <functional>

namespace velmora::standin {

/// Answers HTTP requests with the exact bytes of a script, for replies that a normal HTTP server cannot send.
class ScriptedServer {
public:
    struct Reply {
        QByteArray bytes; ///< head and body; empty for no reply
        bool thenClose = true;
        std::chrono::milliseconds delay{0};     ///< before the first byte
        std::chrono::milliseconds bytePause{0}; ///< between two bytes; 0 sends them all at once
    };
    /// Called with each complete request, head and body.
    using Script = std::function<Reply(const QByteArray& request)>;

    explicit ScriptedServer(Script script);

    QTcpServer& listener() { return listener_; }

    /// Builds a well-formed reply. With an empty version it has no header X-Velmora-Version.
    static QByteArray wellFormed(int status, const QByteArray& body, const QByteArray& version);

private:
    void read(QTcpSocket* socket);
    static void play(QTcpSocket* socket, const Reply& reply);

    Script script_;
    QTcpServer listener_;
};

} // namespace velmora::standin
