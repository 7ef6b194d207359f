#pragma once

#include "model/json.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace velmora {

/// Ends the run with the text when the property does not hold.
inline void require(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", property);
    std::abort();
}

/// Reads the document. One that is refused says why; one that is read can be written, and what was written
/// reads as the same value and writes as the same bytes.
template <class T>
std::optional<T> readAndReturn(const std::uint8_t* data, std::size_t size, KeyStyle keys) {
    auto first = decode<T>({reinterpret_cast<const char*>(data), size}, keys, "document");
    require(bool(first) == first.error.empty(), "a refusal has a reason, and only a refusal");
    if (!first)
        return std::nullopt;
    const auto bytes = encode(*first.value, keys);
    require(bytes.has_value(), "what was read can be written");
    const auto second = decode<T>(*bytes, keys);
    require(bool(second), "what was written can be read");
    require(*second.value == *first.value, "what was written reads as the same value");
    require(encode(*second.value, keys) == bytes, "and writes as the same bytes");
    return std::move(first.value);
}

} // namespace velmora
