#include "store/demo_history.h"

#include "sim/simulator.h"
#include "store/local_time.h"

namespace velmora {

namespace {

struct Visit {
    int daysAgo;
    int hour; ///< local time of the detection
    int minute;
    Scenario scenario;
    std::optional<double> approveAfter; ///< seconds after the detection; nullopt: never
    std::optional<double> returnAfter;  ///< likewise
};

const Visit nightOnTheDriveway{1, 22, 47, Scenario::driveway, 9, {}};
const Visit morningInTheGarden{2, 6, 12, Scenario::garden, 6, 70};
const Visit eveningOnTheLawn{4, 19, 31, Scenario::front, {}, {}};

std::optional<MissionRecord> rehearse(const Visit& visit, const Settings& settings, Date now,
                                      Random& random) {
    const auto at = localTimeDaysAgo(now, visit.daysAgo, visit.hour, visit.minute);
    if (!at)
        return std::nullopt;
    return Simulator::rehearse(visit.scenario, visit.approveAfter, visit.returnAfter, *at, settings, random);
}

/// Turns an expired alert into one that the owner ignored after 14 seconds, so that the demo history contains
/// this outcome.
void makeIgnored(MissionRecord& record) {
    if (record.outcome != Outcome::expired)
        return;
    record.outcome = Outcome::ignored;
    record.end = record.start + Seconds{14};
}

} // namespace

std::vector<MissionRecord> rehearsedHistory(const Settings& settings, Date now, Random& random) {
    std::vector<MissionRecord> history;
    for (const Visit* visit : {&nightOnTheDriveway, &morningInTheGarden, &eveningOnTheLawn})
        if (auto record = rehearse(*visit, settings, now, random)) {
            if (visit == &eveningOnTheLawn)
                makeIgnored(*record);
            history.push_back(std::move(*record));
        }
    return history;
}

} // namespace velmora
