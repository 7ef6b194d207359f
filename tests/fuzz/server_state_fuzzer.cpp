#include "round_trip.h"

#include "model/validation.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto state = roundTrip<LiveState>(data, size, KeyStyle::snakeCase);
    if (!state || !firstProblem(*state).empty())
        return 0;
    const Bounds bounds = boundsOf(state->site);
    require(bounds.minX <= bounds.maxX && bounds.minY <= bounds.maxY, "a usable site has bounds");
    return 0;
}
