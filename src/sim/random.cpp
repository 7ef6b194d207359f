#include "sim/random.h"

namespace velmora {

namespace {

std::mt19937_64 seededGenerator() {
    std::random_device source;
    std::seed_seq seed{source(), source(), source(), source(), source(), source(), source(), source()};
    return std::mt19937_64(seed);
}

} // namespace

SystemRandom::SystemRandom() : generator_(seededGenerator()) {}

double SystemRandom::uniform(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(generator_);
}

Uuid SystemRandom::uuid() {
    const std::uint64_t high = generator_();
    const std::uint64_t low = generator_();
    return Uuid::fromRandomBits(high, low);
}

} // namespace velmora
