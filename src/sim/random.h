#pragma once

#include "model/uuid.h"

#include <random>

namespace velmora {

/// Where chance comes from. A test gives its own to script the wind.
class Random {
public:
    virtual ~Random() = default;

    /// A uniformly distributed number in [low, high].
    virtual double uniform(double low, double high) = 0;
    virtual Uuid uuid() = 0;
};

/// A generator that starts from the operating system's random source, so that no two runs are alike.
class SystemRandom final : public Random {
public:
    SystemRandom();

    double uniform(double low, double high) override;
    Uuid uuid() override;

private:
    std::mt19937_64 generator_;
};

} // namespace velmora
