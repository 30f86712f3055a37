// Facts about records that are known at compile time.
//
// A closed record contains no array and no string, at any depth: all its frames have the same length, and all its
// objects the same layout. A segment is a run of closed members in any record. It has a constant length too.
#pragma once

#include <array>
#include <numeric>

#include "core/type_table.h"
#include "core/walk.h"
#include "schema/catalogue.h"
#include "schema/wire_size.h"

namespace tarn::shortcut {

constexpr bool is_closed(const Record &record);
constexpr bool is_closed(const Member &m) {
    return m.kind == Kind::record ? is_closed(*m.record) : !schema::owns_block(m);
}
constexpr bool is_closed(const Record &record) {
    for (const Member &m : record.members) {
        if (!is_closed(m)) return false;
    }
    return true;
}

template <class F>
concept OpenRecordMember = RecordMember<F> && !is_closed(F::member);
template <class F>
concept ClosedRecordMember = RecordMember<F> && is_closed(F::member);
template <class F>
concept EnumerationMember = EmbeddedMember<F> && F::kind == Kind::enumeration;
template <class F>
concept BooleanMember = EmbeddedMember<F> && F::kind == Kind::boolean;
template <class F>
concept AddressMember = AreaMember<F> && F::kind == Kind::address;

// The frame of a closed record, and the bytes of a closed member.
template <const Record &R>
inline constexpr std::uint32_t frame_size = schema::wire_size(R).least;
template <class F>
inline constexpr std::uint32_t part_size = schema::wire_size(F::member).least;

template <class F>
constexpr bool begins_segment() {
    constexpr std::span<const Member> members = F::owner.members;
    return is_closed(members[F::index]) && (F::index == 0 || !is_closed(members[F::index - 1]));
}
template <class F>
constexpr std::size_t length_of_segment() {
    std::size_t end = F::index;
    while (end < F::owner.members.size() && is_closed(F::owner.members[end])) ++end;
    return end - F::index;
}
// Visits the members of the segment that begins with First.
template <class First, class Visit>
[[gnu::always_inline]] constexpr void walk_segment(Visit &&visit) {
    walk_some<First::owner, First::index, length_of_segment<First>()>([&]<class F>(F f) TARN_INLINE {
        visit(f);
        return true;
    });
}
template <class First>
constexpr std::uint32_t size_of_segment() {
    std::uint32_t sum = 0;
    walk_segment<First>([&]<class F>(F) { sum += part_size<F>; });
    return sum;
}

// ---- types, by number

inline constexpr std::size_t n_records = schema::records.size();
inline constexpr std::size_t boolean_number = n_records + schema::enumerations.size();
inline constexpr std::size_t address_number = boolean_number + 1;
inline constexpr std::size_t n_types = address_number + 1;

// By name: the compiler does not compare addresses in constant expressions if it checks pointers at run time.
template <class List, class Type>
constexpr std::size_t position_in(const List &list, const Type *type) {
    std::size_t i = 0;
    while (list[i]->name != type->name) ++i;
    return i;
}
constexpr std::size_t number_of(const Record &record) { return position_in(schema::records, &record); }
constexpr std::size_t number_of(const Member &m) {
    if (m.kind == Kind::record) return number_of(*m.record);
    if (m.kind == Kind::enumeration) return n_records + position_in(schema::enumerations, m.enumeration);
    return m.kind == Kind::boolean ? boolean_number : address_number;
}

template <const Record &R>
inline constexpr std::size_t record_number = number_of(R);
template <class F>
inline constexpr std::size_t member_number = number_of(F::member);

// The module's own record of each type.
inline constinit const auto own_types =
    []<std::size_t... R, std::size_t... E>(std::index_sequence<R...>, std::index_sequence<E...>) {
    return std::array<mirk_type_info *, n_types>{&TypeInfo<*schema::records[R]>::own...,
                                                 &TypeInfo<*schema::enumerations[E]>::own...,
                                                 &_mirk_boolean_type_info_internal, &_ip_address_type_info_internal};
}
(std::make_index_sequence<n_records>{}, std::make_index_sequence<schema::enumerations.size()>{});

// How many objects of each type.
using Counts = std::array<std::uint32_t, n_types>;

// Adds the record and everything embedded in it.
constexpr void add_made(Counts &counts, const Record &record) {
    ++counts[number_of(record)];
    for (const Member &m : record.members) {
        if (m.kind == Kind::record) {
            add_made(counts, *m.record);
        } else if (schema::is_embedded(m)) {
            ++counts[number_of(m)];
        }
    }
}
template <const Record &R>
inline constexpr Counts made = [] {
    Counts counts{};
    add_made(counts, R);
    return counts;
}();

// The same for destruction, which does not count embedded booleans and enumerations.
template <const Record &R>
inline constexpr Counts destroyed = [] {
    Counts counts = made<R>;
    for (std::size_t i = n_records; i < address_number; ++i) counts[i] = 0;
    return counts;
}();

// Objects in a tree whose variant is compared with the domain's when the tree is written: all but booleans.
template <const Record &R>
inline constexpr std::uint32_t n_checked = [] {
    Counts checked = made<R>;
    checked[boolean_number] = 0;
    return std::accumulate(checked.begin(), checked.end(), std::uint32_t{0});
}();
template <const Record &R>
inline constexpr std::uint32_t n_made = n_checked<R> + made<R>[boolean_number];

// The types that a tree can contain, array elements included.
constexpr void add_reached(Counts &counts, const Record &record) {
    add_made(counts, record);
    for (const Member &m : record.members) {
        if (m.kind == Kind::record || m.kind == Kind::array) add_reached(counts, *m.record);
    }
}
template <const Record &R>
inline constexpr Counts reached = [] {
    Counts counts{};
    add_reached(counts, R);
    return counts;
}();

// Calls visit(number, count) for each type that occurs, until it returns false; true if none did.
template <const Counts &counts, class Visit>
[[gnu::always_inline]] constexpr bool each_type(Visit &&visit) {
    const auto types = [&]<std::size_t... I>(std::index_sequence<I...>) TARN_INLINE {
        return ((counts[I] == 0 || visit(I, counts[I])) && ...);
    };
    return types(std::make_index_sequence<n_types>{});
}

}  // namespace tarn::shortcut
