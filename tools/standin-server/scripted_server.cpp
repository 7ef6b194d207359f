#include "standin-server/scripted_server.h"

#include <QRegularExpression>
#include <QTcpSocket>
#include <QTimer>

#include <memory>

namespace velmora::standin {

namespace {

/// Length in bytes of the first request, or 0 if it is not complete yet.
qsizetype requestLength(const QByteArray& bytes) {
    static const QRegularExpression length(QStringLiteral("\r\nContent-Length: *(\\d+)\r\n"),
                                           QRegularExpression::CaseInsensitiveOption);
    const qsizetype blankLine = bytes.indexOf("\r\n\r\n");
    if (blankLine < 0)
        return 0;
    const auto found = length.match(QString::fromLatin1(bytes.left(blankLine + 2)));
    const qsizetype total = blankLine + 4 + found.captured(1).toLongLong();
    return bytes.size() < total ? 0 : total;
}

} // namespace

ScriptedServer::ScriptedServer(Script script) : script_(std::move(script)) {
    QObject::connect(&listener_, &QTcpServer::newConnection, &listener_, [this] {
        while (QTcpSocket* socket = listener_.nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(socket); });
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

QByteArray ScriptedServer::wellFormed(int status, const QByteArray& body, const QByteArray& version) {
    QByteArray reply = "HTTP/1.1 " + QByteArray::number(status) +
                       " Scripted\r\nContent-Length: " + QByteArray::number(body.size()) +
                       "\r\nContent-Type: application/json\r\n";
    if (!version.isEmpty())
        reply += "X-Velmora-Version: " + version + "\r\n";
    return reply + "\r\n" + body;
}

void ScriptedServer::read(QTcpSocket* socket) {
    const qsizetype length = requestLength(socket->peek(socket->bytesAvailable()));
    if (length == 0)
        return;
    const Reply reply = script_(socket->read(length));
    QTimer::singleShot(reply.delay, socket, [socket, reply] { play(socket, reply); });
}

void ScriptedServer::play(QTcpSocket* socket, const Reply& reply) {
    const bool dripping = reply.bytePause.count() > 0;
    socket->write(dripping ? reply.bytes.left(1) : reply.bytes);
    if (dripping && reply.bytes.size() > 1) {
        const Reply rest{reply.bytes.mid(1), reply.thenClose, {}, reply.bytePause};
        QTimer::singleShot(reply.bytePause, socket, [socket, rest] { play(socket, rest); });
    } else if (reply.thenClose) {
        socket->disconnectFromHost();
    }
}

} // namespace velmora::standin
