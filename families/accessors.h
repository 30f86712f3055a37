// Access to single members: by pointer, value and state byte.
#pragma once

#include "core/walk.h"

namespace tarn {

// Accessors of two members of one kind differ only in the member's location. So each exported name is a jump to the one
// function of its kind, with the location as its last argument.
struct MemberLocation {
    std::uint32_t offset, slot, base_size, value_kind;
};
template <class F>
inline constexpr MemberLocation member_location{F::place.offset, F::place.slot, schema::layout<F::owner>.base_size,
                                                F::value_kind};

template <Kind K, auto Of>
struct KindAccessor {
    using Storage = typename StorageOf<K>::type;

    static Storage *get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err,
                        const MemberLocation &location);
    static auto get_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err,
                          const MemberLocation &location);
    template <class Source>
    static void set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, Source *source, std::uint32_t *err,
                    const MemberLocation &location);
    template <class Value>
    static void set_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, Value value, std::uint32_t *err,
                          const MemberLocation &location);
};

// F is a Field. Every single-valued member has all four; counts and lengths have only get and get_value.
template <class F>
struct Accessor {
    using OfKind = KindAccessor<F::kind, F::of>;

    static auto get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err);
    static auto get_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err);
    static void set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, auto *source, std::uint32_t *err) {
        OfKind::set(h, ctx_id, object, source, err, member_location<F>);
    }
    static void set_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, auto value, std::uint32_t *err);
};

std::uint8_t get_state_byte(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err,
                            const MemberLocation &location);
void set_state_byte(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint8_t value, std::uint32_t *err,
                    const MemberLocation &location);

// The state byte of a member; an array has one for the whole.
template <class F>
struct StateByte {
    static std::uint8_t get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err) {
        return get_state_byte(h, ctx_id, object, err, member_location<F>);
    }
    static void set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint8_t value, std::uint32_t *err) {
        set_state_byte(h, ctx_id, object, value, err, member_location<F>);
    }
};

// True if the state of this object can be read on this handle; otherwise fails with EINVAL.
bool can_read_state(mirk_handle *h, const mirk_object *object, std::uint32_t *err);

// The same before a state byte is written, but here the trace line precedes the error.
bool can_write_state(mirk_handle *h, const mirk_object *object, std::uint32_t *err);

// Fails with EINVAL because the object has no room for state. Returns false.
bool refuse_untracked(mirk_handle *h, std::uint32_t *err);

// After a setter has stored, on a tracking handle: sets state byte 2. False if the object has no room for state; the
// value stays.
bool mark_written(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, const MemberLocation &location,
                  std::uint32_t *err);

inline void mark_modified(mirk_object *object, std::uint32_t value_kind) {
    mirk_set_instance_modified(object, 1, value_kind, 1);
}

// Whole-record operations on members and state.
template <const Record &R>
struct Whole {
    template <class... Values>
    static void get_all(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err, Values *...out);
    template <class... Values>
    static void set_all(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err,
                        Values... values);
    static void set_all_state_tracking_flag(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                            std::uint8_t value);
    static std::uint32_t is_valid_cr(mirk_handle *h, const mirk_object *object, std::uint32_t field_index);
};

}  // namespace tarn
