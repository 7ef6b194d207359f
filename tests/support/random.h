#pragma once

#include "model/enums.h"
#include "sim/random.h"

#include <map>
#include <random>
#include <vector>

namespace velmora {

/// Returns the value that the test has set for a range, by default its middle, so that the wind stays
/// constant.
class ScriptedRandom final : public Random {
public:
    using Range = std::pair<double, double>;

    double uniform(double low, double high) override;
    Uuid uuid() override;

    std::map<Range, double> draws; ///< result for each range
    std::vector<Range> asked;      ///< the ranges requested, in order

private:
    std::uint64_t ids_ = 0;
};

/// A pseudo-random generator that gives the same values for the same seed on every machine.
class SeededRandom final : public Random {
public:
    explicit SeededRandom(std::uint64_t seed = 1) : generator_(seed) {}

    double uniform(double low, double high) override;
    Uuid uuid() override;

    bool chance(double probability) { return uniform(0, 1) < probability; }
    /// A random index from 0 to `limit` - 1.
    std::size_t below(std::size_t limit) { return generator_() % limit; }
    template <RawValued Enum>
    Enum anyOf() {
        return rawValuesOf<Enum>[below(rawValuesOf<Enum>.size())].first;
    }

private:
    std::mt19937_64 generator_;
};

} // namespace velmora
