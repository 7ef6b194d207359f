#pragma once

#include <cstdint>

namespace velmora {

/// Whether truncating the number gives a 64-bit integer; false for an infinity or NaN.
constexpr bool fitsInt64(double number) {
    constexpr double limit = 9223372036854775808.0; // 2^63
    return number >= -limit && number < limit;
}

/// Truncates toward zero, as texts print numbers; 0 if the result does not fit. Validation rejects such
/// numbers in settings and server states; a mission record may contain them.
constexpr std::int64_t truncated(double number) {
    return fitsInt64(number) ? static_cast<std::int64_t>(number) : 0;
}

} // namespace velmora
