// The kinds of members: one row for each kind with everything about it that is not code. Layouts, wire sizes, writers
// of headers and tables, and the tool read these rows, so that a new kind is described once.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarn::schema {

enum class Kind : std::uint8_t { u8, u16, u32, u64, boolean, address, enumeration, record, string, array };

// Code distinguishes categories; kinds of one category differ only by their rows.
enum class Category : std::uint8_t { integer, boolean, address, enumeration, record, string, array };

inline constexpr std::uint32_t varies = 0;  // depends on the member's record or on the content of the instance

inline constexpr std::uint32_t boolean_size = 16;
inline constexpr std::uint32_t enumeration_size = 16;
inline constexpr std::uint32_t address_size = 40;
inline constexpr std::uint32_t pointer_size = 8;

struct KindFacts {
    Kind kind;
    Category category;
    const char *name;                // in printed tables
    const char *value_type = "";     // C type of a value that fits in a register; otherwise empty
    const char *primitive = "";      // prefix of the runtime's functions of the kind; empty if there are none
    std::uint32_t storage = varies;  // bytes in an instance
    std::uint32_t alignment = 8;     // in an instance
    std::uint32_t wire = varies;     // bytes in a frame, without state
    std::uint32_t own_states = 0;    // state bytes inside the member's own area, apart from a record's
    std::uint64_t greatest = 0;      // value of an integer
    const char *in_frame;            // description of the bytes in a frame
};

template <class Integer>
consteval KindFacts integer_facts(Kind kind, const char *name, const char *value_type, const char *primitive) {
    return {.kind = kind,
            .category = Category::integer,
            .name = name,
            .value_type = value_type,
            .primitive = primitive,
            .storage = sizeof(Integer),
            .alignment = alignof(Integer),
            .wire = sizeof(Integer),
            .greatest = static_cast<Integer>(-1),
            .in_frame = "a number"};
}

inline constexpr KindFacts kind_facts[] = {
    integer_facts<std::uint8_t>(Kind::u8, "u8", "uint8_t", "u_int8"),
    integer_facts<std::uint16_t>(Kind::u16, "u16", "uint16_t", "u_int16"),
    integer_facts<std::uint32_t>(Kind::u32, "u32", "uint32_t", "u_int32"),
    integer_facts<std::uint64_t>(Kind::u64, "u64", "uint64_t", "u_int64"),
    {.kind = Kind::boolean,
     .category = Category::boolean,
     .name = "boolean",
     .value_type = "uint8_t",
     .primitive = "mirk_boolean",
     .storage = boolean_size,
     .wire = 2,
     .in_frame = "variant, then 0 or 1"},
    {.kind = Kind::address,
     .category = Category::address,
     .name = "address",
     .primitive = "ip_address",
     .storage = address_size,
     .wire = 26,
     .own_states = 7,
     .in_frame = "a record of af, prefix_len (1 byte each), scope (2), four words (4 each)"},
    {.kind = Kind::enumeration,
     .category = Category::enumeration,
     .name = "enumeration",
     .value_type = "uint32_t",
     .storage = enumeration_size,
     .wire = 5,
     .in_frame = "variant, then the value in four bytes"},
    {.kind = Kind::record, .category = Category::record, .name = "record", .in_frame = "its own frame, jump included"},
    {.kind = Kind::string,
     .category = Category::string,
     .name = "string",
     .primitive = "var_string",
     .storage = pointer_size,
     .in_frame = "characters, as many as the preceding length says"},
    {.kind = Kind::array,
     .category = Category::array,
     .name = "array",
     .storage = pointer_size,
     .in_frame = "the records one after another, as many as the preceding count says"},
};

// A kind without a row cannot be used: the layout of its record is computed at compile time, where reading past the end
// is an error.
constexpr const KindFacts &facts(Kind kind) { return kind_facts[static_cast<std::size_t>(kind)]; }

consteval bool rows_are_in_order() {
    for (std::size_t i = 0; i < std::size(kind_facts); ++i) {
        if (kind_facts[i].kind != static_cast<Kind>(i)) return false;
    }
    return true;
}
static_assert(rows_are_in_order(), "row i describes kind i");

constexpr Category category(Kind kind) { return facts(kind).category; }
constexpr bool is_integer(Kind kind) { return category(kind) == Category::integer; }
constexpr std::uint64_t greatest(Kind kind) { return facts(kind).greatest; }

}  // namespace tarn::schema
