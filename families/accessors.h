// Access to single members: a pointer, a value, a state byte.
#pragma once

#include "core/guard.h"
#include "core/walk.h"

namespace tarn {

// Where a member lives, which is all that the accessors of two members of one kind differ in: each exported name is a
// jump to the one function of its kind, with the place as its last argument.
struct MemberPlace {
    std::uint32_t offset, slot, base_size, value_kind;
};
template <class F>
inline constexpr MemberPlace member_place{F::place.offset, F::place.slot, schema::layout<F::owner>.base_size,
                                          F::value_kind};

template <Kind K, auto Of>
struct KindAccessor {
    using Storage = typename StorageOf<K>::type;

    static Storage *get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err,
                        const MemberPlace &place);
    static auto get_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err,
                          const MemberPlace &place);
    template <class Source>
    static void set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, Source *source, std::uint32_t *err,
                    const MemberPlace &place);
    template <class Value>
    static void set_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, Value value, std::uint32_t *err,
                          const MemberPlace &place);
};

// F is a Field. Every single-valued member has these; counts and lengths have get and get_value alone.
template <class F>
struct Accessor {
    using OfKind = KindAccessor<F::kind, F::of>;

    static auto get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err) {
        return OfKind::get(h, ctx_id, object, err, member_place<F>);
    }
    static auto get_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err) {
        return OfKind::get_value(h, ctx_id, object, err, member_place<F>);
    }
    static void set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, auto *source, std::uint32_t *err) {
        OfKind::set(h, ctx_id, object, source, err, member_place<F>);
    }
    static void set_value(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, auto value, std::uint32_t *err) {
        OfKind::set_value(h, ctx_id, object, value, err, member_place<F>);
    }
};

std::uint8_t get_state_byte(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err,
                            const MemberPlace &place);
void set_state_byte(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint8_t value, std::uint32_t *err,
                    const MemberPlace &place);

// The state byte of a member, that of a whole array included.
template <class F>
struct StateByte {
    static std::uint8_t get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err) {
        return get_state_byte(h, ctx_id, object, err, member_place<F>);
    }
    static void set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint8_t value, std::uint32_t *err) {
        set_state_byte(h, ctx_id, object, value, err, member_place<F>);
    }
};

// True if the handle answers questions about the state of this object; otherwise EINVAL is in the slot.
bool can_read_state(mirk_handle *h, const mirk_object *object, std::uint32_t *err);

// The same before a state byte is written; the trace line comes ahead of the error there.
bool can_write_state(mirk_handle *h, const mirk_object *object, std::uint32_t *err);

// EINVAL for an object without room for state, and false.
bool refuse_untracked(mirk_handle *h, std::uint32_t *err);

// After a setter has stored: state byte 2 on a tracking handle. False if the object cannot have one; the value stays.
bool mark_written(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, const MemberPlace &place,
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
