#include "round_trip.h"

#include "model/validation.h"

using namespace velmora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (const auto settings = roundTrip<Settings>(data, size, KeyStyle::fieldNames))
        firstProblem(*settings);
    return 0;
}
