// Bytes on the wire, without state bytes and RA data.
#pragma once

#include <string>

#include "schema/model.h"

namespace tarn::schema {

struct WireSize {
    std::uint32_t least = 0;
    bool open = false;  // elements or characters come on top
};

// The greatest value of an integer.
constexpr std::uint64_t greatest(Kind kind) {
    const auto bits = 8U << static_cast<unsigned>(kind);
    return bits == 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << bits) - 1;
}

constexpr WireSize wire_size(const Record &record);

constexpr WireSize wire_size(const Member &m) {
    switch (m.kind) {
        case Kind::boolean:
            return {2};
        case Kind::enumeration:
            return {5};
        case Kind::address:
            return {26};
        case Kind::record:
            return wire_size(*m.record);
        case Kind::string:
        case Kind::array:
            return {0, true};
        default:
            return {1U << static_cast<unsigned>(m.kind)};
    }
}

constexpr WireSize wire_size(const Record &record) {
    WireSize sum{6};  // variant, flag, jump
    for (const Member &m : record.members) {
        const WireSize one = wire_size(m);
        sum.least += one.least;
        sum.open = sum.open || one.open;
    }
    return sum;
}

// "14", or "14+" if that is the least.
template <class Type>
std::string wire_text(const Type &type) {
    const WireSize size = wire_size(type);
    return std::to_string(size.least) + (size.open ? "+" : "");
}

}  // namespace tarn::schema
