#pragma once

#include "model/journal_entry.h"
#include "model/mission_record.h"
#include "model/settings.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Spelling of a document's keys: the field names, or the server's snake case ("mission_id"). With snake case
/// the reader converts every key before it matches it.
enum class KeyStyle { fieldNames, snakeCase };

/// Result of reading a document: the value, or an error with its path ("drone.trail[3].x: expected a
/// number").
template <class T>
struct Decoded {
    std::optional<T> value;
    std::string error;

    explicit operator bool() const { return value.has_value(); }
};

/// Reads one JSON document (UTF-8, no byte order mark). Wrong types, missing or repeated keys and invalid
/// dates are errors; unknown keys are ignored. `root` is prepended to the path in error texts ("settings"
/// gives "settings.port: expected an integer"). Hostile input gives an error, never a crash.
///
/// Defined for every record and for a list of mission records.
template <class T>
Decoded<T> decode(std::string_view json, KeyStyle keys = KeyStyle::fieldNames, std::string_view root = {});

/// Writes compact JSON, keys in the order of the field table and in the given spelling. nullopt if the value
/// cannot be written: a number that is not finite, a date outside the years 0 to 9999, or text that is not
/// UTF-8.
///
/// Defined for every record, and for a list of mission records or of shared pointers to them.
template <class T>
std::optional<std::string> encode(const T& value, KeyStyle keys = KeyStyle::fieldNames);

} // namespace velmora
