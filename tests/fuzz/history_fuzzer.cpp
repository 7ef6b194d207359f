#include "round_trip.h"

#include "model/csv.h"
#include "model/mission_evidence.h"

using namespace velmora;

namespace {

/// Everything that the history screen computes from a record.
void inspect(const MissionRecord& record) {
    require(durationOf(record) >= 0, "no duration is negative");
    require(responseTimeline(record).back().step == ResponseStep::ended, "every timeline ends with the end");
    boundaryEvidence(record, LiveState::initial().site, 5);
    for (const TimeSpan& gap : gapsOf(record))
        require(gap.from <= gap.to, "no gap ends before it begins");
    for (const double seconds : {-1.0, 30.0, durationOf(record)})
        require(progressAt(record, seconds).dronePoints <= record.dronePath.size(),
                "no progress counts more points than the path has");
    pathsCsv(record);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto history = roundTrip<std::vector<MissionRecord>>(data, size, KeyStyle::fieldNames);
    if (!history)
        return 0;
    for (const MissionRecord& record : *history)
        inspect(record);
    recordsCsv(*history);
    return 0;
}
