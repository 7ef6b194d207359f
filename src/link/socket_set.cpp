#include "link/socket_set.h"

#include <QtGlobal>

#include <array>
#include <cerrno>
#include <sys/epoll.h>
#include <unistd.h>

namespace velmora {

SocketSet::SocketSet() : epoll_(epoll_create1(EPOLL_CLOEXEC)) {
    if (epoll_ < 0)
        qFatal("The system has no descriptor left for the connection.");
}

SocketSet::~SocketSet() {
    close(epoll_);
}

void SocketSet::watch(curl_socket_t socket, int directions) {
    epoll_event wanted{};
    wanted.data.fd = socket;
    if (directions == CURL_POLL_REMOVE) {
        epoll_ctl(epoll_, EPOLL_CTL_DEL, socket, &wanted);
        return;
    }
    if (directions & CURL_POLL_IN)
        wanted.events |= EPOLLIN;
    if (directions & CURL_POLL_OUT)
        wanted.events |= EPOLLOUT;
    if (epoll_ctl(epoll_, EPOLL_CTL_ADD, socket, &wanted) != 0 && errno == EEXIST)
        epoll_ctl(epoll_, EPOLL_CTL_MOD, socket, &wanted);
}

std::vector<SocketSet::Ready> SocketSet::ready() const {
    std::array<epoll_event, 8> events{};
    const int count = epoll_wait(epoll_, events.data(), static_cast<int>(events.size()), 0);
    std::vector<Ready> found;
    for (int i = 0; i < count; ++i) {
        const auto& event = events[static_cast<std::size_t>(i)];
        found.push_back({event.data.fd, (event.events & (EPOLLIN | EPOLLHUP) ? CURL_CSELECT_IN : 0) |
                                            (event.events & EPOLLOUT ? CURL_CSELECT_OUT : 0) |
                                            (event.events & EPOLLERR ? CURL_CSELECT_ERR : 0)});
    }
    return found;
}

} // namespace velmora
