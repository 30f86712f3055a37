// An instance in memory: its header, the flags in the header, and element states.
//
// The layer core/ holds what all families need: objects and their headers, the guard of each operation, type records,
// the module, and the walk over members. It may know the schema and the contract in include/mirk/, but no family, no
// kind's primitives and no messages other than the shape of their objects.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "mirk/mirk.h"
#include "schema/frame.h"
#include "schema/layout.h"

namespace tarn {

namespace flag {
inline constexpr std::uint8_t oid_mapped = 1;
inline constexpr std::uint8_t embedded = 2;
inline constexpr std::uint8_t nested = 4;
inline constexpr std::uint8_t state_tracked = schema::wire_flag::tracked;
inline constexpr std::uint8_t ra_data = schema::wire_flag::ra_data;
inline constexpr std::uint8_t sttr_offset = 64;
inline constexpr std::uint8_t on_the_wire = state_tracked | ra_data;
}  // namespace flag

inline constexpr std::uint32_t type_magic = 0xbeeff00d;
inline constexpr std::uint8_t written_state = 2;   // the state byte that the library's setters write
inline constexpr std::int8_t highest_variant = 0;  // of every type of this schema

constexpr std::int8_t cap_variant(std::int8_t variant) { return variant > highest_variant ? highest_variant : variant; }

struct enumeration_object {
    mirk_type_info *tinfo;
    std::int8_t variant, home_variant;
    std::uint8_t obj_flag;
    std::uint32_t value;
};
static_assert(sizeof(enumeration_object) == schema::enumeration_size);
static_assert(offsetof(enumeration_object, value) == schema::enumeration_value_offset);
static_assert(sizeof(mirk_boolean) == schema::boolean_size && sizeof(ip_address) == schema::address_size);
static_assert(offsetof(mirk_object, obj_flag) + 1 == schema::header_size);

struct message_object {
    mirk_type_info *tinfo;
    std::int8_t variant, home_variant;
    std::uint8_t obj_flag;
    mirk_message_header header;
    mirk_object *payload;
};
static_assert(sizeof(message_object) == 40 && offsetof(message_object, header) == 12 &&
              offsetof(message_object, payload) == 32);

inline mirk_object *header_of(enumeration_object *object) { return reinterpret_cast<mirk_object *>(object); }

// State areas are computed as integers: on a handle without tracking they are past the end of a block, and never read.
inline std::uintptr_t address_of(const void *p) { return reinterpret_cast<std::uintptr_t>(p); }
inline std::uint32_t distance(const void *from, std::uintptr_t to) {
    return static_cast<std::uint32_t>(to - address_of(from));
}

// The vector of element states: one state byte for each element of an array, in a block whose address is in the owner's
// state area.
//
// Filling a whole state area also overwrites that address. Eight equal nonzero bytes cannot be an address: they mean
// that there is no block and that each element's state is this byte. Reads return it, and writes have no effect.
class ElementStates {
public:
    ElementStates() = default;  // an owner without state
    explicit ElementStates(std::uint8_t *word) : word_(word) {}

    std::uint8_t *block() const {
        std::uint8_t *p = nullptr;
        if (word_ != nullptr) std::memcpy(&p, word_, sizeof p);
        return is_fill(address_of(p)) ? nullptr : p;
    }
    void put(std::uint8_t *block) const {
        if (word_ != nullptr) std::memcpy(word_, &block, sizeof block);
    }
    void *word() const { return word_; }

    std::uint8_t get(std::uint32_t index) const {
        const std::uint8_t *states = block();
        return states != nullptr ? states[index] : fill();
    }
    // The state of each element if there is no block.
    std::uint8_t fill() const {
        std::uintptr_t value = 0;
        if (word_ != nullptr) std::memcpy(&value, word_, sizeof value);
        return is_fill(value) ? static_cast<std::uint8_t>(value) : std::uint8_t{0};
    }

private:
    static constexpr bool is_fill(std::uintptr_t value) {
        return value != 0 && value == (value & 0xff) * 0x0101010101010101U;
    }
    std::uint8_t *word_ = nullptr;
};

}  // namespace tarn
