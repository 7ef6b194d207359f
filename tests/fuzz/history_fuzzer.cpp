#include "round_trip.h"

#include "model/csv.h"
#include "model/mission_evidence.h"

using namespace velmora;

namespace {

/// All that the history screen works out of a record.
void inspect(const MissionRecord& record) {
    require(durationOf(record) >= 0, "no mission is shorter than nothing");
    require(responseTimeline(record).back().step == ResponseStep::ended, "every response ends");
    boundaryEvidence(record, LiveState::initial().site, 5);
    for (const TimeSpan& gap : gapsOf(record))
        require(gap.from <= gap.to, "a gap runs forwards");
    for (const double seconds : {-1.0, 30.0, durationOf(record)})
        require(progressAt(record, seconds).dronePoints <= record.dronePath.size(), "no point is made up");
    pathsCsv(record);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto history = readAndReturn<std::vector<MissionRecord>>(data, size, KeyStyle::fieldNames);
    if (!history)
        return 0;
    for (const MissionRecord& record : *history)
        inspect(record);
    recordsCsv(*history);
    return 0;
}
