// The offsets of members in an instance and in its state area, computed from the tables alone.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "reference/tables.h"

namespace reference {

constexpr std::uint32_t no_slot = 0xFFFFFFFF;

struct MemberLayout {
    std::uint32_t offset = 0, size = 0;
    std::uint32_t block_offset = no_slot;  // string, array: the pointer after the length or count member
    std::uint32_t slot = no_slot;          // state byte; a count or length has none
    std::uint32_t area = no_slot;  // nested record and address: start of its state area; array: the vector's pointer
};

struct RecordLayout {
    std::vector<MemberLayout> members;  // one for each row of the table
    std::uint32_t used = 0, rounded = 0, slop = 0, base = 0, state = 0, tracked = 0;
    bool holds_pointer = false;  // the state area contains an element-state pointer, at any depth
};

const RecordLayout &layout_of(const RecordTable &table);

// One line for each member: record, member, class, offset, size, slot and area, with a dash for none.
std::string layout_text();

}  // namespace reference
