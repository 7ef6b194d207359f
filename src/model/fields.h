#pragma once

#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace velmora {

/// One member of a record and the name it has in JSON documents.
template <class Record, class Value>
struct Field {
    std::string_view name;
    Value Record::*member;
};
template <class Record, class Value>
Field(std::string_view, Value Record::*) -> Field<Record, Value>;

/// Table of a record's fields, in the order in which they are written. Specialised after each struct.
/// Equality, reading, writing and validation iterate over it, so it is the only list of the fields.
template <class Record>
inline constexpr auto fieldsOf = std::tuple<>{};

template <class Record>
inline constexpr std::size_t fieldCount = std::tuple_size_v<std::remove_cvref_t<decltype(fieldsOf<Record>)>>;

/// A record with a field table.
template <class T>
concept Described = (fieldCount<T> > 0);

template <class Value>
inline constexpr bool isOptional = false;
template <class Item>
inline constexpr bool isOptional<std::optional<Item>> = true;

/// Calls `visit` with every field of the record type, in order.
template <Described Record, class Visit>
constexpr void forEachField(Visit&& visit) {
    std::apply([&](const auto&... field) { (visit(field), ...); }, fieldsOf<Record>);
}

/// Exact equality, field by field.
template <Described Record>
bool operator==(const Record& a, const Record& b) {
    return std::apply([&](const auto&... field) { return ((a.*(field.member) == b.*(field.member)) && ...); },
                      fieldsOf<Record>);
}

/// Whether two pointers point to the same member, whatever their types.
template <class A, class B>
constexpr bool isSameMember(A a, B b) {
    if constexpr (std::is_same_v<A, B>)
        return a == b;
    else
        return false;
}

/// Equality of all fields but these members.
template <auto... ignored, Described Record>
bool sameBut(const Record& a, const Record& b) {
    return std::apply(
        [&](const auto&... field) {
            const auto isSame = [&](const auto& one) {
                return (isSameMember(one.member, ignored) || ...) || a.*(one.member) == b.*(one.member);
            };
            return (isSame(field) && ...);
        },
        fieldsOf<Record>);
}

} // namespace velmora
