#include "desktop/quit_deadline.h"

#include <QtGlobal>

#include <csignal>
#include <ctime>
#include <unistd.h>

namespace velmora::QuitDeadline {

namespace {

constexpr long longestQuit = 700'000'000; // nanoseconds; with the rest of quitting less than a second

// Global, because a signal handler has no other data.
timer_t timer; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void onExpiry(int) {
    _exit(0);
}

void set(long nanoseconds) {
    itimerspec time{};
    time.it_value.tv_nsec = nanoseconds;
    timer_settime(timer, 0, &time, nullptr);
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

void start() {
    set(longestQuit);
}

void stop() {
    set(0);
}

} // namespace velmora::QuitDeadline
