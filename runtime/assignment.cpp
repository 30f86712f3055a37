#include "runtime/assignment.h"

#include "runtime/accessors.h"
#include "runtime/kinds.h"

namespace tarn {

namespace {

template <class F>
void give_up_block(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source) {
    using Pointer = typename F::Storage;
    store(h, ctx_id, F::at(source), static_cast<Pointer>(nullptr));
    store(h, ctx_id, F::Counter::at(source), typename F::Count{0});
}

}  // namespace

template <const Record &R>
void Assignment<R>::set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *destination, mirk_object *source,
                        std::uint32_t *err) {
    adjust_variant(h, ctx_id, destination, err);
    if (destination == source) return;
    if (destination == nullptr || source == nullptr) {
        fail(h, err, EINVAL);
        return;
    }

    const std::uint8_t before = destination->obj_flag;
    announce(h, ctx_id, destination, schema::layout<R>.base_size);
    std::memcpy(bytes_of(destination), bytes_of(source), schema::layout<R>.base_size);

    bool move_state = false;
    if (h->sttr_desc != nullptr) {
        constexpr std::uint8_t offset = flag::sttr_offset;
        destination->obj_flag = static_cast<std::uint8_t>((destination->obj_flag & ~offset) | (before & offset));
        if (tracks(h)) {
            // Without room for state here or without state there the blocks have changed hands all the same: source and
            // destination hold the same pointers by now, and one of them has to let go.
            const bool has_room = (before & flag::state_tracked) != 0;
            if (!has_room) forget_tracking(destination);
            if (!is_state_tracked(destination)) {
                give_up_blocks(h, ctx_id, source);
                refuse_untracked(h, err);
                return;
            }
            move_state = is_state_tracked(source);
        }
    }
    if (move_state) {
        std::uint8_t *area = state_area<R>(h, ctx_id, destination);
        References<R>::offset_update(h, ctx_id, destination, area, err);
        std::memcpy(area, state_area<R>(h, ctx_id, source), schema::layout<R>.state_width);
    }
    walk<R>([&]<class F>(F) {
        if constexpr (schema::has_area(F::member)) {
            Primitive<F>::set(h, ctx_id, F::at(destination), F::at(source), err);
        }
    });
    walk<R>([&]<class F>(F) {
        if constexpr (schema::owns_block(F::member)) give_up_block<F>(h, ctx_id, source);
        if constexpr (F::kind == Kind::array) {
            if (!move_state) return;
            const ElementStates states = F::element_states(state_area<R>(h, ctx_id, source));
            announce(h, ctx_id, states.word(), sizeof(void *));
            states.put(nullptr);
        }
    });
}

template <const Record &R>
void Assignment<R>::give_up_blocks(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source) {
    walk<R>([&]<class F>(F) {
        if constexpr (F::kind == Kind::record) {
            Assignment<*F::member.record>::give_up_blocks(h, ctx_id, F::at(source));
        } else if constexpr (schema::owns_block(F::member)) {
            give_up_block<F>(h, ctx_id, source);
        }
    });
}

template <const Record &R>
void Assignment<R>::forget_tracking(mirk_object *object) {
    constexpr std::uint8_t tracked = flag::state_tracked;
    object->obj_flag = static_cast<std::uint8_t>(object->obj_flag & ~tracked);
    walk<R>([&]<class F>(F) {
        if constexpr (F::kind == Kind::record) {
            Assignment<*F::member.record>::forget_tracking(F::at(object));
        } else if constexpr (F::kind == Kind::address) {
            F::at(object)->obj_flag = static_cast<std::uint8_t>(F::at(object)->obj_flag & ~tracked);
        }
    });
}

template <const Record &R>
void Assignment<R>::post_copyout_cleanup(mirk_handle *h, std::uint32_t ctx_id, mirk_object *new_place,
                                         mirk_object *old_place, std::uint32_t *err) {
    walk<R>([&]<class F>(F) {
        if constexpr (schema::has_area(F::member)) {
            Primitive<F>::set(h, ctx_id, F::at(new_place), F::at(old_place), err);
        } else if constexpr (schema::owns_block(F::member)) {
            give_up_block<F>(h, ctx_id, old_place);
        }
    });
}

}  // namespace tarn

#include "exports/assignment.inc"
