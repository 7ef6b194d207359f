#include "round_trip.h"

#include "model/csv.h"
#include "model/mission_evidence.h"

using namespace velmora;

namespace {

/// All that the history screen works out of a record.
void inspect(const MissionRecord& record) {
    require(lengthOf(record) >= 0, "no mission is shorter than nothing");
    require(responseTimeline(record).back().step == ResponseStep::ended, "every response ends");
    boundaryEvidence(record, LiveState::initial().site, 5);
    for (const Stretch& gap : gapsOf(record))
        require(gap.from <= gap.to, "a gap runs forwards");
    for (const double seconds : {-1.0, 30.0, lengthOf(record)})
        require(cutAt(record, seconds).dronePath.size() <= record.dronePath.size(), "a cut only shortens");
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
