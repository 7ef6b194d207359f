#pragma once

#include "model/json.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace velmora {

/// Aborts with the text if the property does not hold.
inline void require(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "%s\n", property);
    std::abort();
}

/// Reads the document and checks that a rejected document has an error, and that an accepted one can be
/// written and read again without a change. Returns the value; nullopt if rejected.
template <class T>
std::optional<T> roundTrip(const std::uint8_t* data, std::size_t size, KeyStyle keys) {
    auto first = decode<T>({reinterpret_cast<const char*>(data), size}, keys, "document");
    require(bool(first) == first.error.empty(), "a document is rejected exactly if there is an error text");
    if (!first)
        return std::nullopt;
    const auto bytes = encode(*first.value, keys);
    require(bytes.has_value(), "a value that was read can be written");
    const auto second = decode<T>(*bytes, keys);
    require(bool(second), "a value that was written can be read");
    require(*second.value == *first.value, "a written value reads as the same value");
    require(encode(*second.value, keys) == bytes, "the same value writes as the same bytes");
    return std::move(first.value);
}

} // namespace velmora
