#include "desktop/quit_signals.h"

#include "desktop/quit_deadline.h"

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace velmora {

namespace {

// Global, because a signal handler has no other data.
int pipeEnds[2] = {-1, -1}; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

int openPipe() {
    if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0)
        qFatal("No pipe for signals can be made.");
    return pipeEnds[0];
}

/// Starts the deadline here, because the event loop may hang, and writes one byte into the pipe.
void onSignal(int) {
    QuitDeadline::start();
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(pipeEnds[1], &byte, 1);
}

} // namespace

QuitSignals::QuitSignals() : notifier_(openPipe(), QSocketNotifier::Read) {
    QuitDeadline::install();
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        if (std::signal(signal, onSignal) == SIG_IGN)
            std::signal(signal, SIG_IGN); // stays ignored, as after nohup
    connect(&notifier_, &QSocketNotifier::activated, this, &QuitSignals::quitRequested);
}

} // namespace velmora
