#include "desktop/quit_deadline.h"

#include <QtGlobal>

#include <csignal>
#include <ctime>
#include <unistd.h>

namespace velmora::QuitDeadline {

namespace {

constexpr itimerspec longestQuit{{}, {0, 700'000'000}}; // with the rest of quitting less than a second
constexpr itimerspec never{};

// Global, because a signal handler has no other data.
timer_t timer;                        // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
volatile std::sig_atomic_t isStarted; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
itimerspec left = longestQuit;        // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void onExpiry(int) {
    _exit(0);
}

} // namespace

void install() {
    std::signal(SIGALRM, onExpiry);
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGALRM;
    if (timer_create(CLOCK_MONOTONIC, &event, &timer) != 0)
        qFatal("No timer for quitting can be made.");
}

/// A second signal must not shorten the time for the files, nor extend the rest.
void start() {
    if (isStarted)
        return;
    isStarted = 1;
    timer_settime(timer, 0, &longestQuit, nullptr);
}

void pause() {
    start();
    timer_settime(timer, 0, &never, &left);
}

void resume() {
    timer_settime(timer, 0, &left, nullptr);
}

} // namespace velmora::QuitDeadline
