// Bytes on the wire, without state bytes and RA data.
#pragma once

#include <string>

#include "schema/frame.h"

namespace tarn::schema {

struct WireSize {
    std::uint32_t least = 0;
    bool open = false;  // elements or characters add to it
};

constexpr WireSize wire_size(const Record &record);

constexpr WireSize wire_size(const Member &m) {
    if (m.kind == Kind::record) return wire_size(*m.record);
    return {facts(m.kind).wire, owns_block(m)};
}

constexpr WireSize wire_size(const Record &record) {
    WireSize sum{record_head_size};
    for (const Member &m : record.members) {
        const WireSize one = wire_size(m);
        sum.least += one.least;
        sum.open = sum.open || one.open;
    }
    return sum;
}
static_assert(wire_size(address_record).least == facts(Kind::address).wire);

// "14", or "14+" if 14 is the minimum.
template <class Type>
std::string wire_text(const Type &type) {
    const WireSize size = wire_size(type);
    return std::to_string(size.least) + (size.open ? "+" : "");
}

}  // namespace tarn::schema
