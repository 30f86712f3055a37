// The memory layout of an instance, computed from the tables alone.
//
// An instance is an 11-byte header, then each member at its natural alignment, then slop, then, on a handle that tracks
// state, the state area with one byte (slot) for each tracked member. Nested records and addresses take their state
// bytes from the area of their owner. An array has two entries there: the byte of the whole array and, at the next
// multiple of 8, a pointer to a block with one byte for each element.
#pragma once

#include "schema/model.h"

namespace tarn::schema {

inline constexpr std::uint32_t header_size = 11;
inline constexpr std::uint32_t enumeration_value_offset = 12;
inline constexpr std::size_t most_members = 64;

struct MemberLayout {
    std::uint32_t offset = 0;  // from the start of the instance
    std::uint32_t size = 0;
    std::uint32_t slot = 0;   // of the state byte; unused for a count or a length
    std::uint32_t inner = 0;  // nested record, address: first slot of its own area; array: slot of the vector pointer
};

struct Layout {
    std::array<MemberLayout, most_members> members{};
    std::uint32_t used_length = 0;  // to the end of the last member
    std::uint32_t rounded = 0;      // used_length, rounded up to a multiple of 8
    std::uint32_t base_size = 0;    // of an instance without its state area
    std::uint32_t alloc_slop = 0;
    std::uint32_t state_width = 0;
    bool has_vector_pointer = false;  // at any depth
};

constexpr std::uint32_t round_up(std::uint32_t n, std::uint32_t to) { return (n + to - 1) / to * to; }

constexpr Layout lay_out(const Record &record);

constexpr std::uint32_t storage_size(const Member &m) {
    return m.kind == Kind::record ? lay_out(*m.record).base_size : facts(m.kind).storage;
}

constexpr Layout lay_out(const Record &record) {
    Layout l;
    l.used_length = header_size;
    for (std::size_t i = 0; i < record.members.size(); ++i) {
        const Member &m = record.members[i];
        MemberLayout &p = l.members[i];
        p.size = storage_size(m);
        p.offset = round_up(l.used_length, facts(m.kind).alignment);
        l.used_length = p.offset + p.size;
        if (!is_tracked(m)) continue;
        p.slot = l.state_width++;
        if (m.kind == Kind::record) {
            const Layout nested = lay_out(*m.record);
            p.inner = round_up(l.state_width, nested.has_vector_pointer ? 8 : 1);
            l.state_width = p.inner + nested.state_width;
            l.has_vector_pointer |= nested.has_vector_pointer;
        } else if (m.kind == Kind::array) {
            p.inner = round_up(l.state_width, 8);
            l.state_width = p.inner + pointer_size;
            l.has_vector_pointer = true;
        } else if (has_area(m)) {
            p.inner = l.state_width;
            l.state_width += facts(m.kind).own_states;
        }
    }
    if (l.has_vector_pointer) l.state_width = round_up(l.state_width, 8);
    l.rounded = round_up(l.used_length, 8);
    l.base_size = l.rounded + (l.rounded < 64 ? 8 : 16);
    l.alloc_slop = l.base_size - l.used_length;
    return l;
}

template <const Record &R>
inline constexpr Layout layout = lay_out(R);

}  // namespace tarn::schema
