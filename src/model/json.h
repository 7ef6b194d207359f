#pragma once

#include "model/mission_record.h"
#include "model/settings.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// How the keys of a document are spelled: as the fields are named, or in the server's snake case
/// ("mission_id"), in which every key is converted before it is matched.
enum class KeyStyle { fieldNames, snakeCase };

/// What reading a document gave: the value, or what is wrong and where ("drone.trail[3].x: expected a
/// number").
template <class T>
struct Decoded {
    std::optional<T> value;
    std::string error;

    explicit operator bool() const { return value.has_value(); }
};

/// Reads one whole JSON document (UTF-8, no byte order mark). Strict about types, required keys, repeated
/// keys and dates; tolerant of unknown keys. `root` comes before the path in error texts ("settings" gives
/// "settings.port: expected an integer"). Hostile input is only ever an error.
///
/// Defined for every record and for a list of mission records.
template <class T>
Decoded<T> decode(std::string_view json, KeyStyle keys = KeyStyle::fieldNames, std::string_view root = {});

/// The compact document of a record, keys in the order of its table and spelled as the style says. Absent
/// when it cannot be written: a number that is not finite, a date outside the years 0 to 9999, or text that
/// is not UTF-8.
///
/// Defined for every record, and for a list of mission records or of pointers to them.
template <class T>
std::optional<std::string> encode(const T& value, KeyStyle keys = KeyStyle::fieldNames);

} // namespace velmora
