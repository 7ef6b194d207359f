#pragma once

#include "model/fields.h"

#include <optional>
#include <string>
#include <vector>

namespace velmora {

template <class Value>
inline constexpr bool isList = false;
template <class Item>
inline constexpr bool isList<std::vector<Item>> = true;

template <class Value>
inline constexpr bool isOptional = false;
template <class Item>
inline constexpr bool isOptional<std::optional<Item>> = true;

/// The place within a value, such as ".drone.battery: out of range", of the first thing in it that the check
/// objects to; empty when there is none. The check is given every value that is not a record, a list before
/// its items, and returns its objection or nothing.
template <class Value, class Check>
std::string placeOfObjection(const Value& value, const Check& check) {
    std::string found;
    if constexpr (Described<Value>) {
        forEachField<Value>([&](const auto& field) {
            if (!found.empty())
                return;
            const std::string place = placeOfObjection(value.*(field.member), check);
            if (!place.empty())
                found = '.' + std::string(field.name) + place;
        });
    } else if constexpr (isOptional<Value>) {
        if (value)
            found = placeOfObjection(*value, check);
    } else {
        if (const std::string objection = check(value); !objection.empty())
            return ": " + objection;
        if constexpr (isList<Value>)
            for (std::size_t i = 0; i < value.size() && found.empty(); ++i)
                if (const std::string place = placeOfObjection(value[i], check); !place.empty())
                    found = '[' + std::to_string(i) + ']' + place;
    }
    return found;
}

/// The first thing in a record that the check objects to, such as "drone.battery: out of range"; empty when
/// there is none.
template <Described Record, class Check>
std::string firstObjection(const Record& record, const Check& check) {
    const std::string found = placeOfObjection(record, check);
    return found.empty() ? found : found.substr(1);
}

} // namespace velmora
