#pragma once

#include "model/uuid.h"

#include <random>

namespace velmora {

/// Source of random numbers. Tests pass their own to control the wind.
class Random {
public:
    virtual ~Random() = default;

    /// A uniformly distributed number in [low, high].
    virtual double uniform(double low, double high) = 0;
    virtual Uuid uuid() = 0;
};

/// A generator seeded by the operating system, so that every run differs.
class SystemRandom final : public Random {
public:
    SystemRandom();

    double uniform(double low, double high) override;
    Uuid uuid() override;

private:
    std::mt19937_64 generator_;
};

} // namespace velmora
