#pragma once

#include <cstdint>
#include <limits>

namespace velmora {

/// Whether truncating the number gives a 64-bit integer; false for an infinity or NaN.
constexpr bool fitsWhole(double number) {
    constexpr double limit = 9223372036854775808.0; // 2^63
    return number >= -limit && number < limit;
}

/// The number truncated toward zero, as texts print it. Readers refuse documents with numbers that do not
/// fit, so a misfit is a slip of ours; it is printed as 0 rather than left undefined.
constexpr std::int64_t whole(double number) {
    return fitsWhole(number) ? static_cast<std::int64_t>(number) : 0;
}

} // namespace velmora
