#pragma once

#include "model/fields.h"

#include <cmath>

namespace velmora {

/// A point of the site plan, or a vector on it: metres from the plan's left edge (x) and top edge (y).
struct P {
    double x = 0;
    double y = 0;
};

template <>
inline constexpr auto fieldsOf<P> = std::tuple{Field{"x", &P::x}, Field{"y", &P::y}};

constexpr P operator+(P a, P b) {
    return {a.x + b.x, a.y + b.y};
}
constexpr P operator-(P a, P b) {
    return {a.x - b.x, a.y - b.y};
}
constexpr P operator*(P v, double factor) {
    return {v.x * factor, v.y * factor};
}

/// Euclidean norm.
inline double length(P v) {
    return std::sqrt(v.x * v.x + v.y * v.y);
}
inline double distance(P a, P b) {
    return length(a - b);
}

/// The vector scaled to length 1; a vector shorter than a millionth gives (0, 0).
inline P unit(P v) {
    const double norm = length(v);
    return norm < 0.000001 ? P{} : P{v.x / norm, v.y / norm};
}

} // namespace velmora
