// Shared by both test programs: the operations of each record, and the location of its members as computed by the
// reference.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "mirk/mirk.h"
#include "reference/layout.h"
#include "reference/tables.h"
#include "tools/reflect/operations.h"

namespace families {

using tarn::reflect::MemberOperations;
using tarn::reflect::RecordOperations;
using tarn::schema::Kind;
using tarn::schema::Role;

inline constexpr std::uint8_t mapped = 1, embedded = 2, nested = 4, tracked = 8, ra_data = 32, has_offset = 64;
inline constexpr std::uint32_t id = 42;  // a ctx_id that nothing else uses

inline const RecordOperations &record(std::string_view name) {
    const RecordOperations *found = tarn::reflect::find_record(name);
    if (found == nullptr) throw std::out_of_range(std::string(name));
    return *found;
}
inline const MemberOperations &member(const RecordOperations &r, std::string_view name) {
    for (const MemberOperations &m : r.members) {
        if (m.member->name == name) return m;
    }
    throw std::out_of_range(std::string(name));
}
inline const MemberOperations &member(std::string_view owner, std::string_view name) {
    return member(record(owner), name);
}
inline const RecordOperations &nested_record(const MemberOperations &m) {
    return tarn::reflect::operations_of(*m.member->record);
}

inline std::string name(const RecordOperations &r) { return std::string(r.record->name); }
inline std::string name(const MemberOperations &m) { return std::string(m.member->name); }

inline const reference::RecordTable &table(const RecordOperations &r) {
    return reference::record_table(r.record->name);
}
inline const reference::RecordLayout &layout(const RecordOperations &r) { return reference::layout_of(table(r)); }
inline std::size_t index_of(const RecordOperations &r, const MemberOperations &m) {
    return static_cast<std::size_t>(&m - r.members.data());
}
inline const reference::MemberLayout &member_layout(const RecordOperations &r, const MemberOperations &m) {
    return layout(r).members.at(index_of(r, m));
}
// For arrays and strings, the offset of the pointer.
inline std::uint32_t offset(const RecordOperations &r, const MemberOperations &m) {
    const reference::MemberLayout &p = member_layout(r, m);
    return p.block_offset != reference::no_slot ? p.block_offset : p.offset;
}

inline mirk_object *header(void *object) { return static_cast<mirk_object *>(object); }
inline std::uint8_t *bytes(void *object) { return static_cast<std::uint8_t *>(object); }
inline void *at(const RecordOperations &r, void *object, const MemberOperations &m) {
    return bytes(object) + offset(r, m);
}
inline void *at(std::string_view owner, void *object, std::string_view m) {
    return at(record(owner), object, member(owner, m));
}

template <class T>
T read(const void *address) {
    T value;
    std::memcpy(&value, address, sizeof value);
    return value;
}
template <class T>
void write(void *address, T value) {
    std::memcpy(address, &value, sizeof value);
}

inline bool is_scalar(const MemberOperations &m) { return tarn::schema::is_scalar(*m.member); }
inline bool has_area(const MemberOperations &m) { return tarn::schema::has_area(*m.member); }
inline bool is_embedded(const MemberOperations &m) { return tarn::schema::is_embedded(*m.member); }
inline bool is_value_kind(const MemberOperations &m) {
    return m.member->kind == Kind::boolean || m.member->kind == Kind::enumeration;
}
inline bool embeds_something(const RecordOperations &r) {
    for (const MemberOperations &m : r.members) {
        if (is_embedded(m)) return true;
    }
    return false;
}
inline std::uint32_t width(const MemberOperations &m) {
    switch (m.member->kind) {
        case Kind::u8:
            return 1;
        case Kind::u16:
            return 2;
        case Kind::u32:
            return 4;
        default:
            return 8;
    }
}
// The width of the number that accessors pass: for booleans and enumerations it is not that of the object.
inline std::uint32_t value_width(const MemberOperations &m) {
    return m.member->kind == Kind::boolean ? 1 : m.member->kind == Kind::enumeration ? 4 : width(m);
}
inline std::uint64_t number_at(const void *address, std::uint32_t bytes) {
    switch (bytes) {
        case 1:
            return read<std::uint8_t>(address);
        case 2:
            return read<std::uint16_t>(address);
        case 4:
            return read<std::uint32_t>(address);
        default:
            return read<std::uint64_t>(address);
    }
}
inline const char *family(const MemberOperations &m) {
    switch (m.member->kind) {
        case Kind::u8:
            return "u_int8";
        case Kind::u16:
            return "u_int16";
        case Kind::u32:
            return "u_int32";
        case Kind::u64:
            return "u_int64";
        case Kind::boolean:
            return "mirk_boolean";
        case Kind::address:
            return "ip_address";
        default:
            return "";
    }
}

// Adds the record's name to each failure.
inline void each_record(const std::function<void(const RecordOperations &)> &visit) {
    for (const RecordOperations &r : tarn::reflect::records()) {
        SCOPED_TRACE(name(r));
        visit(r);
    }
}
inline void each_member(const std::function<void(const RecordOperations &, const MemberOperations &)> &visit) {
    for (const RecordOperations &r : tarn::reflect::records()) {
        for (const MemberOperations &m : r.members) {
            SCOPED_TRACE(name(r) + "." + name(m));
            visit(r, m);
        }
    }
}

}  // namespace families
