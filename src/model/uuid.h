#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// A universally unique identifier (RFC 4122).
struct Uuid {
    std::array<std::uint8_t, 16> bytes{};

    bool operator==(const Uuid&) const = default;

    /// A version 4 identifier made of 128 random bits.
    static Uuid fromRandomBits(std::uint64_t high, std::uint64_t low);
    /// Reads the canonical 36-character form in either case; absent for any other text.
    static std::optional<Uuid> fromText(std::string_view text);
    /// The canonical 36-character form, upper case.
    std::string text() const;
};

} // namespace velmora
