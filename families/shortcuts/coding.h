// Closed members in a frame: everything but the values is constant.
#pragma once

#include <bit>

#include "families/shortcuts/initialize.h"
#include "families/wire.h"
#include "kinds/kinds.h"

namespace tarn::shortcut {

template <class T>
[[gnu::always_inline]] inline T to_or_from_big_endian(T value) {
    if constexpr (std::endian::native == std::endian::big || sizeof(T) == 1) {
        return value;
    } else if constexpr (sizeof(T) == 2) {
        return __builtin_bswap16(value);
    } else if constexpr (sizeof(T) == 4) {
        return __builtin_bswap32(value);
    } else {
        return __builtin_bswap64(value);
    }
}
template <class T>
[[gnu::always_inline]] inline void put(std::uint8_t *to, T value) {
    value = to_or_from_big_endian(value);
    std::memcpy(to, &value, sizeof value);
}
template <class T>
[[gnu::always_inline]] inline T get(const std::uint8_t *from) {
    T value;
    std::memcpy(&value, from, sizeof value);
    return to_or_from_big_endian(value);
}

// The head of a usual frame: variant 0, a flag without RA data, and a jump from its own start to the end of the frame.
inline constexpr std::uint32_t jump_offset = 2;
static_assert(record_head == jump_offset + sizeof(std::uint32_t));

[[gnu::always_inline]] inline void put_head(std::uint8_t *to, std::uint32_t size, std::uint8_t wire_flag = 0) {
    put(to, std::uint16_t{wire_flag});
    put(to + jump_offset, size - jump_offset);
}
[[gnu::always_inline]] inline std::uint32_t unusual_head(const std::uint8_t *from, std::uint32_t size,
                                                         std::uint8_t wire_flag = 0) {
    return (get<std::uint16_t>(from) ^ wire_flag) | (get<std::uint32_t>(from + jump_offset) ^ (size - jump_offset));
}

template <class Visit>
[[gnu::always_inline]] inline void each_number(ip_address &address, Visit &&visit) {
    visit(address.af);
    visit(address.prefix_len);
    visit(address.scope);
    for (std::uint32_t &word : address.word) visit(word);
}

// ---- writing

// 0 if an object has variant 0 and no RA data.
[[gnu::always_inline]] inline std::uint32_t unusual_to_write(const void *object) {
    return header_bits(object) & unusual_bits(flag::ra_data);
}
template <class F>
[[gnu::always_inline]] inline std::uint32_t unusual_member_to_write(const mirk_object *object);

// The record itself and its closed members.
template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t unusual_record_to_write(const mirk_object *object) {
    std::uint32_t unusual = unusual_to_write(object);
    walk<R>([&]<class F>(F) TARN_INLINE { unusual |= unusual_member_to_write<F>(object); });
    return unusual;
}
template <class F>
[[gnu::always_inline]] inline std::uint32_t unusual_member_to_write(const mirk_object *object) {
    if constexpr (ClosedRecordMember<F>) {
        return unusual_record_to_write<*F::of>(F::at(object));
    } else if constexpr (AddressMember<F> || EnumerationMember<F>) {
        return unusual_to_write(F::at(object));
    } else {
        return 0;  // any variant of a boolean is written
    }
}

template <const Record &R>
[[gnu::always_inline]] inline void put_closed_record(std::uint8_t *to, mirk_object *object);

template <class F>
[[gnu::always_inline]] inline void put_member(std::uint8_t *to, mirk_object *object) {
    auto *member = F::at(object);
    if constexpr (ClosedRecordMember<F>) {
        put_closed_record<*F::of>(to, member);
    } else if constexpr (AddressMember<F>) {
        put_head(to, part_size<F>);
        to += record_head;
        each_number(*member, [&](auto number) TARN_INLINE {
            put(to, number);
            to += sizeof number;
        });
    } else if constexpr (EnumerationMember<F>) {
        put(to, std::uint8_t{0});
        put(to + 1, member->value);
    } else if constexpr (BooleanMember<F>) {
        put(to, static_cast<std::uint8_t>(member->variant));
        put(to + 1, member->value);
    } else {
        put(to, *member);
    }
}
template <const Record &R>
[[gnu::always_inline]] inline void put_closed_record(std::uint8_t *to, mirk_object *object) {
    put_head(to, frame_size<R>);
    std::uint8_t *part = to + record_head;
    walk<R>([&]<class F>(F) TARN_INLINE {
        put_member<F>(part, object);
        part += part_size<F>;
    });
}

// ---- reading

template <class F>
[[gnu::always_inline]] inline std::uint32_t unusual_member_in(const std::uint8_t *from);

// 0 if a closed record's frame and all frames in it have the usual head.
template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t unusual_frame(const std::uint8_t *from) {
    std::uint32_t unusual = unusual_head(from, frame_size<R>);
    const std::uint8_t *part = from + record_head;
    walk<R>([&]<class F>(F) TARN_INLINE {
        unusual |= unusual_member_in<F>(part);
        part += part_size<F>;
    });
    return unusual;
}
template <class F>
[[gnu::always_inline]] inline std::uint32_t unusual_member_in(const std::uint8_t *from) {
    if constexpr (ClosedRecordMember<F>) {
        return unusual_frame<*F::of>(from);
    } else if constexpr (AddressMember<F>) {
        return unusual_head(from, part_size<F>);
    } else if constexpr (EnumerationMember<F> || BooleanMember<F>) {
        return *from;
    } else {
        return 0;
    }
}

template <const Record &R, Memory memory>
[[gnu::always_inline]] inline void get_closed_record(const std::uint8_t *from, mirk_object *object, const Types &types);

// Fresh memory already has its headers. Otherwise the variant and the type are set, but not the type of a boolean.
template <class F, Memory memory>
[[gnu::always_inline]] inline void get_member(const std::uint8_t *from, mirk_object *object, const Types &types) {
    auto *member = F::at(object);
    if constexpr (memory == Memory::any && EmbeddedMember<F>) {
        member->variant = 0;
        if constexpr (!BooleanMember<F>) member->tinfo = types[member_number<F>];
    }
    if constexpr (ClosedRecordMember<F>) {
        get_closed_record<*F::of, memory>(from, member, types);
    } else if constexpr (AddressMember<F>) {
        from += record_head;
        each_number(*member, [&](auto &number) TARN_INLINE {
            number = get<std::remove_reference_t<decltype(number)>>(from);
            from += sizeof number;
        });
    } else if constexpr (EnumerationMember<F> || BooleanMember<F>) {
        member->value = get<decltype(member->value)>(from + 1);
    } else {
        *member = get<typename F::Storage>(from);
    }
}
template <const Record &R, Memory memory>
[[gnu::always_inline]] inline void get_closed_record(const std::uint8_t *from, mirk_object *object,
                                                     const Types &types) {
    const std::uint8_t *part = from + record_head;
    walk<R>([&]<class F>(F) TARN_INLINE {
        get_member<F, memory>(part, object, types);
        part += part_size<F>;
    });
}

}  // namespace tarn::shortcut
