// The API of the library as data: one row for each operation. The writers expand each row over the schema.
#pragma once

#include <span>
#include <string_view>

namespace tarn::generate {

// What a row applies to: each match is one exported name. Values combine with |.
enum class Applies : unsigned {
    record = 1U << 0,
    integer = 1U << 1,  // from here on, members by their class
    boolean = 1U << 2,
    enumerated = 1U << 3,  // a member that is an enumeration
    address = 1U << 4,
    nested = 1U << 5,
    string = 1U << 6,
    length = 1U << 7,
    count = 1U << 8,
    array = 1U << 9,
    enumeration = 1U << 10,
    message = 1U << 11,
    control = 1U << 12,
    bundle = 1U << 13,
    module = 1U << 14,
};
constexpr Applies operator|(Applies a, Applies b) {
    return static_cast<Applies>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr bool includes(Applies set, Applies one) {
    return (static_cast<unsigned>(set) & static_cast<unsigned>(one)) != 0;
}

// What the sticky form of an operation does. It has the name of the explicit form and _cr, works under the handle's
// default_id, and its error slot is the handle's last_error. Its parameters are those of the explicit form, the object
// first, without a name (the type's own), an indent (0) and a state (0).
enum class Sticky {
    none,          // no sticky form, or one with a row of its own
    as_is,         // makes the call even if last_error is set
    create,        // makes the call in create mode: returns a sentinel instead of null
    zero,          // returns 0, without the call, while last_error is set
    size,          // makes the call; returns 0xFFFFFFFF if last_error is set after it
    checked_size,  // as size, but without the call while last_error is set
    error,         // makes the call and returns last_error
};

// A prototype holds placeholders: {r} record, {f} member, {n} the member's record or enumeration, {A} the type of the
// member in memory, {V} the type of its value, {e} enumeration, {m} message, {b} bundle, {k} kind of a control message;
// H, I and E stand for the handle, ctx_id and err. An entry is what the export calls, with {R}, {F}, {E}, {M}, {B} and
// {K} for the schema's own objects. A text uses the placeholders of prototypes, {meaning} for the member's meaning in
// the schema, and {start:...} and {end:...} for what is true of a start alone, or of an abort and a commit alone.
struct Row {
    Applies applies;
    std::string_view unit;    // the file of the library that defines the entry and includes the exports
    std::string_view family;  // heading in the public header, explained in families.h; a member's operations have none
    std::string_view prototype;
    std::string_view entry;
    std::string_view text;
    Sticky sticky = Sticky::none;
    std::string_view alias = {};  // suffix of a second name of the operation
    bool weak = false;            // a weak symbol: a client may define a function of the same name
};

std::span<const Row> rows();

// A class template that other units call. It is instantiated in the unit that defines it.
struct Instantiation {
    std::string_view unit;
    Applies applies;
    std::string_view type;
};

std::span<const Instantiation> instantiations();

}  // namespace tarn::generate
