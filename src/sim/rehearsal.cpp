#include "sim/simulator.h"

#include "model/truncated.h"

namespace velmora {

namespace {

constexpr double tickLength = 0.1;       // seconds
constexpr std::int64_t tickLimit = 9000; // 900 s

std::optional<std::int64_t> tickAt(std::optional<double> seconds) {
    return seconds ? std::optional(truncated(*seconds * 10)) : std::nullopt;
}

} // namespace

std::optional<MissionRecord> Simulator::rehearse(Scenario scenario, std::optional<double> approveAfter,
                                                 std::optional<double> returnAfter, Date at,
                                                 const Settings& settings, Random& random) {
    Simulator simulator(LiveState::initial(), settings, random);
    std::optional<MissionRecord> finished;
    simulator.onFinish = [&](const MissionRecord& record) { finished = record; };
    simulator.trigger(scenario, at);

    const auto approveTick = tickAt(approveAfter);
    const auto returnTick = tickAt(returnAfter);
    for (std::int64_t tick = 0; !finished && tick < tickLimit; ++tick) {
        const Date now = at + Seconds{static_cast<double>(tick) * tickLength};
        if (tick == approveTick)
            simulator.send(Command::approve, now);
        if (tick == returnTick)
            simulator.send(Command::returnHome, now);
        simulator.step(tickLength, now);
    }
    if (finished)
        finished->demo = true;
    return finished;
}

} // namespace velmora
