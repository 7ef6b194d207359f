#pragma once

#include <QBasicTimer>
#include <QObject>

#include <chrono>
#include <cstdint>

class QInputEvent;

namespace velmora {

class UiTimer;

/// The time that the user interface lives by: timers, transitions, pulses, replays and the guard of the
/// answers. The program has one, as it has one style; a test puts its own in its place.
class UiClock {
public:
    UiClock() = default;
    virtual ~UiClock() = default;
    UiClock(const UiClock&) = delete;
    UiClock& operator=(const UiClock&) = delete;

    /// The machine's clock unless another one is installed.
    static UiClock& current();
    /// Makes this the current clock; null: the machine's.
    static void install(UiClock* clock);

    /// Time since the machine started, suspend included.
    virtual std::chrono::milliseconds now() const;
    /// When an event happened by the window system's own clock, milliseconds; 0 if it does not say.
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
    /// Starts, or starts over.
    void start();
    void stop();
    /// Starts or stops; a timer that runs already goes on undisturbed.
    void setActive(bool active);
    /// The clock calls this when the interval is over.
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
    QBasicTimer timer_; ///< of the machine's clock
};

} // namespace velmora
