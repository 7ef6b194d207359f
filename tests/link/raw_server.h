#pragma once

#include <QByteArray>

#include <arpa/inet.h>
#include <functional>
#include <list>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace velmora {

/// A server on loopback, in threads of its own, whose script writes whatever it likes to each connection.
class RawServer {
public:
    /// A connection whose request head has been read.
    class Connection {
    public:
        explicit Connection(int socket) : socket_(socket) {}
        /// Returns false when the client has closed the connection.
        bool write(const QByteArray& bytes) const {
            const auto size = static_cast<std::size_t>(bytes.size());
            return ::send(socket_, bytes.constData(), size, MSG_NOSIGNAL) == static_cast<ssize_t>(size);
        }

        /// Waits until the client sends another request or closes the connection.
        void awaitRequest() const {
            char byte = 0;
            ::recv(socket_, &byte, 1, MSG_PEEK);
        }

    private:
        int socket_;
    };
    using Script = std::function<void(const Connection&)>;

    explicit RawServer(Script script) : script_(std::move(script)), listener_(listeningSocket(16)) {
        thread_ = std::thread([this] { accept(); });
    }
    ~RawServer() {
        ::shutdown(listener_, SHUT_RDWR);
        thread_.join();
        for (std::thread& connection : connections_)
            connection.join();
        ::close(listener_);
    }
    RawServer(const RawServer&) = delete;
    RawServer& operator=(const RawServer&) = delete;

    int port() const { return portOf(listener_); }

    /// A socket that listens on loopback, but accepts nothing.
    static int listeningSocket(int backlog) {
        const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address = loopback();
        ::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address);
        ::listen(socket, backlog);
        return socket;
    }
    static int portOf(int socket) {
        sockaddr_in address{};
        socklen_t size = sizeof address;
        ::getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size);
        return ntohs(address.sin_port);
    }
    static sockaddr_in loopback(int port = 0) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        return address;
    }

private:
    void accept() {
        for (int socket = ::accept(listener_, nullptr, nullptr); socket >= 0;
             socket = ::accept(listener_, nullptr, nullptr))
            connections_.emplace_back([this, socket] { serve(socket); });
    }
    void serve(int socket) const {
        QByteArray head;
        char byte = 0;
        while (!head.endsWith("\r\n\r\n") && ::recv(socket, &byte, 1, 0) == 1)
            head += byte;
        if (head.endsWith("\r\n\r\n"))
            script_(Connection(socket));
        ::close(socket);
    }

    Script script_;
    int listener_;
    std::list<std::thread> connections_;
    std::thread thread_;
};

} // namespace velmora
