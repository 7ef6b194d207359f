#pragma once

#include "model/mission_record.h"
#include "model/settings.h"
#include "sim/random.h"

#include <random>

namespace velmora::samples {

/// The same draws in every run.
class SeededRandom final : public Random {
public:
    double uniform(double low, double high) override {
        return low + (high - low) * (static_cast<double>(generator_() >> 11) * 0x1p-53);
    }
    Uuid uuid() override {
        const std::uint64_t high = generator_();
        return Uuid::fromRandomBits(high, generator_());
    }

private:
    std::mt19937_64 generator_{1};
};

/// Missions of the past, newest first, flown by the simulator; 200 of them make a document of about 6.2 MB.
std::vector<MissionRecord> flownHistory(std::size_t records);

/// What a server sends while the drone follows a visitor: full trails and 40 notices.
LiveState followingState();

/// The same with longer trails, which wind over the whole site, or with a site of more parts.
LiveState withTrails(LiveState state, std::size_t points);
LiveState withCameras(LiveState state, std::size_t cameras);
LiveState withBoundary(LiveState state, std::size_t points);

/// Settings of an owner who has been through the welcome.
Settings onboarded();

} // namespace velmora::samples
