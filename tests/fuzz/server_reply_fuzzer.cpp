#include "link/http_link.h"
#include "model/json.h"
#include "model/validation.h"
#include "round_trip.h"

#include <QCoreApplication>

#include <dlfcn.h>
#include <span>
#include <sys/socket.h>
#include <unistd.h>

using namespace velmora;

namespace {

std::span<const std::uint8_t> reply; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

} // namespace

/// Replaces the system's function: a TCP socket is one end of a pair whose other end has sent the
/// reply and hung up.
extern "C" int socket(int domain, int type, int protocol) {
    using Function = int (*)(int, int, int);
    static const auto original = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "socket"));
    int ends[2];
    if (domain != AF_INET || socketpair(AF_UNIX, type, 0, ends) != 0)
        return original(domain, type, protocol);
    constexpr int room = 1 << 20; // bytes, more than the longest input
    setsockopt(ends[1], SOL_SOCKET, SO_SNDBUF, &room, sizeof room);
    require(send(ends[1], reply.data(), reply.size(), MSG_DONTWAIT) == static_cast<ssize_t>(reply.size()),
            "the reply fits into the socket");
    shutdown(ends[1], SHUT_WR);
    static int previous = -1;
    close(std::exchange(previous, ends[1]));
    return ends[0];
}

/// The end of a pair is connected already.
extern "C" int connect(int, const sockaddr*, socklen_t) {
    return 0;
}

namespace {

void check(const FetchResult& result) {
    if (const auto* error = std::get_if<LinkError>(&result)) {
        require(!error->text.isEmpty(), "an error has a text");
        return;
    }
    const auto& [state, version] = std::get<FetchedState>(result);
    require(firstProblem(state).empty(), "an accepted state is valid");
    require(version.size() <= 40, "a version is short");
    for (const QChar letter : version)
        require(letter.isPrint(), "a version can be shown");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static int argc = 1;
    static char name[] = "fuzz", *argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
    reply = {data, size};
    Settings settings;
    settings.host = "127.0.0.1";
    HttpLink link;
    int ends = 0;
    link.fetchState(settings, [&](const FetchResult& result) {
        ++ends;
        check(result);
    });
    while (ends == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents();
    require(ends == 1, "a fetch ends once");
    return 0;
}
