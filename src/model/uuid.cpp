#include "model/uuid.h"

namespace velmora {

namespace {

constexpr std::size_t textSize = 36;

constexpr bool isHyphenIndex(std::size_t index) {
    return index == 8 || index == 13 || index == 18 || index == 23;
}

/// The value of a hexadecimal digit, or -1.
constexpr int digitValue(char digit) {
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    return -1;
}

} // namespace

Uuid Uuid::fromRandomBits(std::uint64_t high, std::uint64_t low) {
    Uuid uuid;
    for (std::size_t i = 0; i < 8; ++i) {
        const std::size_t shift = 56 - 8 * i;
        uuid.bytes[i] = static_cast<std::uint8_t>(high >> shift);
        uuid.bytes[8 + i] = static_cast<std::uint8_t>(low >> shift);
    }
    uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x40);
    uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80);
    return uuid;
}

std::optional<Uuid> Uuid::fromText(std::string_view text) {
    if (text.size() != textSize)
        return std::nullopt;
    Uuid uuid;
    std::size_t nibble = 0;
    for (std::size_t index = 0; index < textSize; ++index) {
        if (isHyphenIndex(index)) {
            if (text[index] != '-')
                return std::nullopt;
            continue;
        }
        const int value = digitValue(text[index]);
        if (value < 0)
            return std::nullopt;
        std::uint8_t& byte = uuid.bytes[nibble / 2];
        byte = static_cast<std::uint8_t>(byte << 4 | value);
        ++nibble;
    }
    return uuid;
}

std::string Uuid::text() const {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text(textSize, '-');
    std::size_t nibble = 0;
    for (std::size_t index = 0; index < textSize; ++index) {
        if (isHyphenIndex(index))
            continue;
        const std::uint8_t byte = bytes[nibble / 2];
        text[index] = digits[nibble % 2 == 0 ? byte >> 4 : byte & 0x0F];
        ++nibble;
    }
    return text;
}

} // namespace velmora
