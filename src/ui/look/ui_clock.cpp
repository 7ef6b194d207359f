#include "ui/look/ui_clock.h"

#include "model/boot_clock.h"

#include <QInputEvent>

#include <utility>

namespace velmora {

namespace {

/// Shorter timers are precise; Qt fires coarse ones up to 5 % early or late.
constexpr std::chrono::milliseconds shortestCoarse{1000};

UiClock*& currentClock() {
    static UiClock system;
    static UiClock* clock = &system; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)
    return clock;
}

} // namespace

UiClock& UiClock::current() {
    return *currentClock();
}

UiClock& UiClock::install(UiClock& clock) {
    return *std::exchange(currentClock(), &clock);
}

std::chrono::milliseconds UiClock::now() const {
    return sinceBoot();
}

std::uint64_t UiClock::stampOf(const QInputEvent& event) const {
    return event.timestamp();
}

void UiClock::start(UiTimer& timer) {
    const auto type = timer.interval_ < shortestCoarse ? Qt::PreciseTimer : Qt::CoarseTimer;
    timer.timer_.start(static_cast<int>(timer.interval_.count()), type, &timer);
}

void UiClock::stop(UiTimer& timer) {
    timer.timer_.stop();
}

UiTimer::UiTimer(std::chrono::milliseconds interval, Mode mode) : interval_(interval), mode_(mode) {}

UiTimer::~UiTimer() {
    stop();
}

void UiTimer::start() {
    stop();
    active_ = true;
    UiClock::current().start(*this);
}

void UiTimer::stop() {
    if (std::exchange(active_, false))
        UiClock::current().stop(*this);
}

void UiTimer::setActive(bool active) {
    if (active == active_)
        return;
    active ? start() : stop();
}

void UiTimer::expire() {
    if (mode_ == Mode::singleShot)
        stop();
    emit timeout();
}

void UiTimer::timerEvent(QTimerEvent*) {
    expire();
}

} // namespace velmora
