#pragma once

#include "ui/look/ui_clock.h"

#include <QApplication>

#include <algorithm>
#include <map>

namespace velmora {

/// Replaces the user interface's clock during its lifetime. Only the test advances it; input events carry its
/// time.
class ManualClock final : public UiClock {
public:
    ManualClock() : before_(install(*this)) {}
    ~ManualClock() override { install(before_); }

    std::chrono::milliseconds now() const override { return now_; }
    std::uint64_t stampOf(const QInputEvent&) const override {
        return static_cast<std::uint64_t>(now_.count());
    }

    /// Advances the clock by `time`, fires the timers that become due in order, and processes events.
    void advance(std::chrono::milliseconds time) {
        const auto end = now_ + time;
        for (UiTimer* timer = nextBefore(end); timer; timer = nextBefore(end)) {
            now_ = due_[timer];
            due_[timer] += timer->interval();
            timer->expire();
            QApplication::processEvents();
        }
        now_ = end;
        QApplication::processEvents();
    }

protected:
    void start(UiTimer& timer) override { due_[&timer] = now_ + timer.interval(); }
    void stop(UiTimer& timer) override { due_.erase(&timer); }

private:
    UiTimer* nextBefore(std::chrono::milliseconds end) const {
        const auto next =
            std::ranges::min_element(due_, {}, &std::pair<UiTimer* const, milliseconds>::second);
        return next != due_.end() && next->second <= end ? next->first : nullptr;
    }

    using milliseconds = std::chrono::milliseconds;
    UiClock& before_;
    milliseconds now_ = std::chrono::hours(24);
    std::map<UiTimer*, milliseconds> due_; ///< due time of each running timer
};

} // namespace velmora
