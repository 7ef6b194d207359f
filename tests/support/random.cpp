#include "support/random.h"

namespace velmora {

double ScriptedRandom::uniform(double low, double high) {
    asked.emplace_back(low, high);
    const auto found = draws.find({low, high});
    return found == draws.end() ? (low + high) / 2 : found->second;
}

Uuid ScriptedRandom::uuid() {
    return Uuid::fromRandomBits(0, ++ids_);
}

double SeededRandom::uniform(double low, double high) {
    return low + (high - low) * (static_cast<double>(generator_() >> 11) * 0x1p-53);
}

Uuid SeededRandom::uuid() {
    return Uuid::fromRandomBits(0, generator_());
}

} // namespace velmora
