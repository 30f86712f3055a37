// The archive's frames of closed records on handles that track states. Each member is followed by its state byte, so
// that these frames have one length, too.
#pragma once

#include "families/shortcuts/coding.h"

namespace tarn::shortcut {

constexpr std::uint32_t size_with_states(const Record &record);
// Without the member's own state byte, which follows.
constexpr std::uint32_t size_with_states(const Member &m) {
    if (m.kind == Kind::record) return size_with_states(*m.record);
    return schema::facts(m.kind).wire + schema::facts(m.kind).own_states;
}
constexpr std::uint32_t size_with_states(const Record &record) {
    std::uint32_t sum = record_head;
    for (const Member &m : record.members) sum += size_with_states(m) + (schema::is_tracked(m) ? 1 : 0);
    return sum;
}
template <const Record &R>
inline constexpr std::uint32_t tracked_size = size_with_states(R);
template <class F>
inline constexpr std::uint32_t tracked_part = size_with_states(F::member);

// 0 if an object has variant 0, a state area, and no RA data.
[[gnu::always_inline]] inline std::uint32_t unusual_with_states(const void *object) {
    constexpr std::uint32_t tracked = unusual_bits(flag::state_tracked) ^ unusual_bits(0);
    return (header_bits(object) ^ tracked) & unusual_bits(flag::state_tracked | flag::ra_data);
}
template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t unusual_tree_with_states(const mirk_object *object) {
    std::uint32_t unusual = unusual_with_states(object);
    walk<R>(cases{
        [&]<RecordMember F>(F) TARN_INLINE { unusual |= unusual_tree_with_states<*F::of>(F::at(object)); },
        [&]<AddressMember F>(F) TARN_INLINE { unusual |= unusual_with_states(F::at(object)); },
        [&]<EnumerationMember F>(F) TARN_INLINE { unusual |= unusual_to_write(F::at(object)); },
        nothing,
    });
    return unusual;
}

template <const Record &R>
[[gnu::always_inline]] inline void put_tracked_record(mirk_handle *h, std::uint32_t ctx_id, std::uint8_t *to,
                                                      mirk_object *object) {
    const std::uint8_t *const area = state_area<R>(h, ctx_id, object);
    put_head(to, tracked_size<R>, flag::state_tracked);
    to += record_head;
    walk<R>([&]<class F>(F) TARN_INLINE {
        if constexpr (RecordMember<F>) {
            put_tracked_record<*F::of>(h, ctx_id, to, F::at(object));
        } else if constexpr (AddressMember<F>) {
            std::uint32_t error = 0;
            ip_address_marshal(h, ctx_id, to, F::at(object), tracked_part<F>, &error);
        } else {
            put_member<F>(to, object);
        }
        to += tracked_part<F>;
        if constexpr (schema::is_tracked(F::member)) *to++ = area[F::place.slot];
    });
}

// Returns the number of bytes written, or 0 if the shortcut does not apply.
template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t write_tracked(mirk_handle *h, std::uint32_t ctx_id, std::uint8_t *to,
                                                          mirk_object *object, std::int32_t remaining) {
    if (!tracks_states(h) || remaining < static_cast<std::int32_t>(tracked_size<R>)) return 0;
    if (unusual_tree_with_states<R>(object) != 0) return 0;
    put_tracked_record<R>(h, ctx_id, to, object);
    mirk_inside_count_lookups(h, n_checked<R> - made<R>[address_number]);  // those of addresses have been counted
    h->last_error = 0;
    return tracked_size<R>;
}

// 0 if a frame and all frames in it have states and are complete.
template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t unusual_tracked_frame(const std::uint8_t *from) {
    std::uint32_t unusual = unusual_head(from, tracked_size<R>, flag::state_tracked);
    const std::uint8_t *part = from + record_head;
    walk<R>([&]<class F>(F) TARN_INLINE {
        if constexpr (RecordMember<F>) {
            unusual |= unusual_tracked_frame<*F::of>(part);
        } else if constexpr (AddressMember<F>) {
            unusual |= unusual_head(part, tracked_part<F>, flag::state_tracked);
        } else {
            unusual |= unusual_member_in<F>(part);
        }
        part += tracked_part<F> + (schema::is_tracked(F::member) ? 1 : 0);
    });
    return unusual;
}

template <const Record &R>
[[gnu::always_inline]] inline void get_tracked_record(mirk_handle *h, std::uint32_t ctx_id, const std::uint8_t *from,
                                                      mirk_object *object, const Types &types) {
    std::uint8_t *const area = state_area<R>(h, ctx_id, object);
    const std::uint8_t *part = from + record_head;
    walk<R>([&]<class F>(F) TARN_INLINE {
        if constexpr (RecordMember<F>) {
            get_tracked_record<*F::of>(h, ctx_id, part, F::at(object), types);
        } else if constexpr (AddressMember<F>) {
            std::uint32_t error = 0;
            ip_address_unmarshal(h, ctx_id, const_cast<std::uint8_t *>(part), F::at(object), tracked_part<F>, 0,
                                 &error);
        } else {
            get_member<F, Memory::any>(part, object, types);
        }
        part += tracked_part<F>;
        if constexpr (schema::is_tracked(F::member)) *F::state(area) = *part++;
    });
    object->tinfo = types[record_number<R>];
}

// Returns the number of bytes read, or 0 if the shortcut does not apply.
template <const Record &R>
[[gnu::always_inline]] inline std::uint32_t read_tracked(mirk_handle *h, std::uint32_t ctx_id, const std::uint8_t *from,
                                                         mirk_object *object, std::uint32_t length) {
    const bool fits = static_cast<std::int32_t>(length) >= static_cast<std::int32_t>(tracked_size<R>);
    Types types;
    if (!tracks_states(h) || !fits || !types.bind<made<R>>(h, ctx_id)) return 0;
    if ((unusual_tracked_frame<R>(from) | unusual_tree_with_states<R>(object)) != 0) return 0;
    get_tracked_record<R>(h, ctx_id, from, object, types);
    h->last_error = 0;
    return tracked_size<R>;
}

}  // namespace tarn::shortcut
