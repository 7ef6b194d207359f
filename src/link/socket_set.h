#pragma once

#include <curl/curl.h>

#include <vector>

namespace velmora {

/// The sockets that libcurl waits for, behind one descriptor. libcurl changes what it waits for several times
/// in an exchange; here a change costs a system call, while it would wake the event loop if each socket had a
/// notifier of its own.
class SocketSet {
public:
    /// A socket that libcurl can go on with.
    struct Ready {
        curl_socket_t socket;
        int directions; ///< CURL_CSELECT_IN, _OUT and _ERR
    };

    SocketSet();
    SocketSet(const SocketSet&) = delete;
    SocketSet& operator=(const SocketSet&) = delete;
    ~SocketSet();

    /// Readable while a socket is ready.
    int descriptor() const { return epoll_; }
    /// Waits for these directions of the socket: CURL_POLL_IN, _OUT, _INOUT or _REMOVE. A socket that is
    /// closed leaves the set, unless another program holds it too.
    void watch(curl_socket_t socket, int directions);
    /// Some of the sockets that are ready, without waiting for one.
    std::vector<Ready> ready() const;

private:
    int epoll_;
};

} // namespace velmora
