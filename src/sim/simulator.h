#pragma once

#include "model/mission_record.h"
#include "model/notice_texts.h"
#include "model/settings.h"
#include "sim/random.h"
#include "sim/scenario.h"

#include <functional>

namespace velmora {

/// Simulates the drone server in demo mode: wind, the visitor's walk, the drone's flight and the missions.
/// Time advances only by the dates passed in. Positions are metres on the site plan, speeds m/s, wind km/h.
/// Nothing fails; commands that do not fit the phase are ignored.
class Simulator {
public:
    /// `random` must outlive the simulator.
    Simulator(LiveState initial, Settings initialSettings, Random& random);

    LiveState state;
    Settings settings;
    /// Called with the record of each finished mission.
    std::function<void(const MissionRecord&)> onFinish;

    /// Advances by `dt` seconds. `at` is the time at the end of the step.
    void step(double dt, Date at);
    /// Executes a command of the owner at the time `at`.
    void send(Command command, Date at);
    /// Starts a demo visit; ignored unless docked.
    void trigger(Scenario scenario, Date at);

    /// Simulates one mission from the initial live state, in steps of 0.1 s. `at` is the time of the
    /// detection. The owner approves and calls the drone home the given seconds after it; nullopt means
    /// never. Returns the record, marked as demo, or nullopt if the mission takes longer than 900 s.
    static std::optional<MissionRecord> rehearse(Scenario scenario, std::optional<double> approveAfter,
                                                 std::optional<double> returnAfter, Date at,
                                                 const Settings& settings, Random& random);

private:
    void stepWeather(double dt);
    void gust();
    void stepVisitor(double dt);
    void walk(Visitor& visitor, double dt);
    void watchOutside(double dt);
    void stepPhase(double dt);
    void stepTelemetry(double dt);
    void sample(double dt);

    void climb(double dt);
    void follow(double dt);
    void hold(double dt);
    void flyHome(double dt);
    void descend(double dt);
    void fly(P toward, double maxSpeed, double dt, std::optional<P> face);

    template <class... Inserted>
    void enter(Phase phase, NoticeKind kind, const Inserted&... inserted) {
        state.phase = phase;
        note(kind, inserted...);
    }
    template <class... Inserted>
    void note(NoticeKind kind, const Inserted&... inserted) {
        note(noticeText(kind, inserted...), noticeLevel(kind));
    }
    void note(std::string text, Notice::Level level);
    void finish(Outcome outcome);
    MissionRecord recordOf(Outcome outcome) const;

    Random& random_;
    std::span<const RoutePoint> route_; ///< the visitor's walk in the current scenario
    std::size_t leg_ = 0;               ///< the route point that the visitor last reached
    double lingerLeft_ = 0;             ///< seconds that the visitor still waits there
    P velocity_;                        ///< of the drone, m/s
    double outsideFor_ = 0;             ///< seconds that the visitor has been outside the boundary
    double sampleClock_ = 0;            ///< seconds since the last path sample
    double nextGust_ = 20;              ///< seconds of flight until the next gust
    double gustDecay_ = 0;              ///< seconds of flight left of a gust's effect
    std::vector<P> dronePath_;
    std::vector<P> visitorPath_;
    double batteryAtLaunch_ = 0; ///< percent
    double maxFromPad_ = 0;      ///< metres
    std::optional<Outcome> pendingOutcome_;
    std::vector<Notice> missionNotices_; ///< oldest first
    std::string snapshot_;
    std::string cameraName_;
    std::string cameraId_;
    Date now_;
};

} // namespace velmora
