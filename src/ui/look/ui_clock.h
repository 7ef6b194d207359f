#pragma once

#include <QBasicTimer>
#include <QObject>

#include <chrono>
#include <cstdint>

class QInputEvent;

namespace velmora {

class UiTimer;

/// The clock of the user interface. Timers, transitions, pulses, replays and the answer guard use it. The
/// program has one; a test installs its own.
class UiClock {
public:
    UiClock() = default;
    virtual ~UiClock() = default;
    UiClock(const UiClock&) = delete;
    UiClock& operator=(const UiClock&) = delete;

    /// The system's clock, unless another one is installed.
    static UiClock& current();
    /// Makes this the current clock. Returns the previous one.
    static UiClock& install(UiClock& clock);

    /// Time since boot, including suspend.
    virtual std::chrono::milliseconds now() const;
    /// The window system's time stamp of the event, milliseconds; 0 if it has none.
    virtual std::uint64_t stampOf(const QInputEvent& event) const;

protected:
    friend UiTimer;
    virtual void start(UiTimer& timer);
    virtual void stop(UiTimer& timer);
};

/// A timer that runs by the current clock.
class UiTimer : public QObject {
    Q_OBJECT

public:
    enum class Mode { repeating, singleShot };

    explicit UiTimer(std::chrono::milliseconds interval, Mode mode = Mode::repeating);
    ~UiTimer() override;

    std::chrono::milliseconds interval() const { return interval_; }
    bool isActive() const { return active_; }
    /// Starts or restarts.
    void start();
    void stop();
    /// Starts or stops; does not restart a running timer.
    void setActive(bool active);
    /// Called by the clock when the interval is over.
    void expire();

signals:
    void timeout();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    friend UiClock;

    std::chrono::milliseconds interval_;
    Mode mode_;
    bool active_ = false;
    QBasicTimer timer_; ///< of the system's clock
};

} // namespace velmora
