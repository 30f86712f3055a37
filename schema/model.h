// The types that a schema is made of: records, members, enumerations, messages, bundles.
//
// schema/ holds the tables of the one schema, and what can be computed from them alone: layouts, frames, wire sizes,
// lint. It may include nothing but the standard library: not the runtime's contract, the core or the families. Library,
// tools, bindings, documents and tests are computed or printed from its tables.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "schema/kind_facts.h"

namespace tarn::schema {

// An integer is a plain value, or it is the count or length of the array or string that follows it.
enum class Role : std::uint8_t { value, count, length };

// Not defined: calling it in a constant expression is an error whose message contains this name.
void an_identity_is_32_lower_case_hexadecimal_digits();

// A 128-bit identity, written as 32 lower-case hexadecimal digits.
struct Luid {
    std::array<char, 33> text{};
    std::array<std::uint8_t, 16> bytes{};

    consteval Luid(const char (&digits)[33]) {
        for (std::size_t i = 0; i < 32; ++i) {
            const char c = digits[i];
            const bool decimal = c >= '0' && c <= '9';
            if (!decimal && !(c >= 'a' && c <= 'f')) an_identity_is_32_lower_case_hexadecimal_digits();
            const int nibble = decimal ? c - '0' : c - 'a' + 10;
            bytes[i / 2] = static_cast<std::uint8_t>(bytes[i / 2] * 16 + nibble);
            text[i] = c;
        }
    }
};

// How people read an integer: as a number, or as the address of something in another process.
enum class Notation : std::uint8_t { decimal, hexadecimal };

// The members that identify an element among the others of its list, and what people call such an element. Tools align
// two versions of a list by its key, and write "class 1003".
struct Key {
    std::array<std::string_view, 4> names{};
    std::size_t size = 0;
    bool is_stated = false;  // also true of no_key
    std::string_view element{};

    constexpr std::span<const std::string_view> members() const { return {names.data(), size}; }
    consteval Key called(std::string_view name) const { return {names, size, is_stated, name}; }
};
consteval Key keyed_by(auto... members) { return {{members...}, sizeof...(members), true}; }
inline constexpr Key no_key{{}, 0, true};  // only their position identifies elements

struct Record;

struct Enumeration {
    std::string_view name;
    Luid luid;
    std::string_view meaning;
    std::span<const std::string_view> enumerators;
};

struct Member {
    std::string_view name;
    std::string_view meaning;
    Kind kind;
    Role role = Role::value;
    const Record *record = nullptr;            // of a nested record or of an array's elements
    const Enumeration *enumeration = nullptr;  // of an enumeration
    Notation notation = Notation::decimal;
};

struct Record {
    std::string_view name;
    Luid luid;
    std::string_view meaning;
    std::span<const Member> members;
    Key key{};  // stated by each record that is an element of an array
};

struct Message {
    std::string_view name;
    Luid luid;
    const Record &payload;
};

struct Bundle {
    std::string_view name;
    const Message &message;  // the one message of this module that it admits
    Luid start, abort, commit;
};

// Builders, one for each sort of member, so that a table reads from left to right.
consteval Member u8(std::string_view name, std::string_view meaning) { return {name, meaning, Kind::u8}; }
consteval Member u16(std::string_view name, std::string_view meaning) { return {name, meaning, Kind::u16}; }
consteval Member u32(std::string_view name, std::string_view meaning) { return {name, meaning, Kind::u32}; }
consteval Member u64(std::string_view name, std::string_view meaning) { return {name, meaning, Kind::u64}; }
// The value of a pointer or a handle of another process.
consteval Member pointer(std::string_view name, std::string_view meaning) {
    return {name, meaning, Kind::u64, Role::value, nullptr, nullptr, Notation::hexadecimal};
}
consteval Member boolean(std::string_view name, std::string_view meaning) { return {name, meaning, Kind::boolean}; }
consteval Member address(std::string_view name, std::string_view meaning) { return {name, meaning, Kind::address}; }
consteval Member enumerated(std::string_view name, const Enumeration &of, std::string_view meaning) {
    return {name, meaning, Kind::enumeration, Role::value, nullptr, &of};
}
consteval Member one(std::string_view name, const Record &of, std::string_view meaning) {
    return {name, meaning, Kind::record, Role::value, &of};
}
consteval Member count8(std::string_view name, std::string_view meaning) {
    return {name, meaning, Kind::u8, Role::count};
}
consteval Member count32(std::string_view name, std::string_view meaning) {
    return {name, meaning, Kind::u32, Role::count};
}
consteval Member many(std::string_view name, const Record &of, std::string_view meaning) {
    return {name, meaning, Kind::array, Role::value, &of};
}
consteval Member length(std::string_view name, std::string_view meaning) {
    return {name, meaning, Kind::u16, Role::length};
}
consteval Member string(std::string_view name, std::string_view meaning) { return {name, meaning, Kind::string}; }

// Has the six accessors of a value that fits in a register.
constexpr bool is_scalar(const Member &m) { return m.role == Role::value && *facts(m.kind).value_type != '\0'; }

// Embedded with a state area of its own.
constexpr bool has_area(const Member &m) { return m.kind == Kind::record || facts(m.kind).own_states != 0; }

constexpr bool owns_block(const Member &m) { return m.kind == Kind::array || m.kind == Kind::string; }

// Embedded with a header of its own, which is initialized with its owner.
constexpr bool is_embedded(const Member &m) { return !is_integer(m.kind) && !owns_block(m); }

// Has a state byte; counts and lengths have none.
constexpr bool is_tracked(const Member &m) { return m.role == Role::value; }

// True if all instances have the same size on the wire: integers only, at any depth.
constexpr bool has_fixed_wire_size(const Record &record) {
    for (const Member &m : record.members) {
        if (m.kind == Kind::record ? !has_fixed_wire_size(*m.record) : !is_integer(m.kind)) return false;
    }
    return true;
}

}  // namespace tarn::schema
