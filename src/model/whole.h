#pragma once

#include <cstdint>

namespace velmora {

/// Whether truncating the number gives a 64-bit integer; false for an infinity or NaN.
constexpr bool fitsWhole(double number) {
    constexpr double limit = 9223372036854775808.0; // 2^63
    return number >= -limit && number < limit;
}

/// The number truncated toward zero, as texts print it. Settings and server states with numbers that do not
/// fit are refused where they are read; one in a mission's record is printed as 0.
constexpr std::int64_t whole(double number) {
    return fitsWhole(number) ? static_cast<std::int64_t>(number) : 0;
}

} // namespace velmora
