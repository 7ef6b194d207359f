#pragma once

#include <QByteArray>
#include <QTcpServer>

#include <chrono>
#include <functional>

namespace velmora::standin {

/// Answers HTTP requests byte by byte as its script says, for replies that an HTTP server refuses to send.
class ScriptedServer {
public:
    struct Reply {
        QByteArray bytes; ///< head and body; none for silence
        bool thenClose = true;
        std::chrono::milliseconds delay{0};     ///< before the first byte
        std::chrono::milliseconds bytePause{0}; ///< between two bytes; 0 sends them all at once
    };
    /// Called with each whole request, head and body.
    using Script = std::function<Reply(const QByteArray& request)>;

    explicit ScriptedServer(Script script);

    QTcpServer& listener() { return listener_; }

    /// A well-formed reply; without a version the header X-Velmora-Version is left out.
    static QByteArray wellFormed(int status, const QByteArray& body, const QByteArray& version);

private:
    void read(QTcpSocket* socket);
    static void play(QTcpSocket* socket, const Reply& reply);

    Script script_;
    QTcpServer listener_;
};

} // namespace velmora::standin
