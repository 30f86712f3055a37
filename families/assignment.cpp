#include "families/assignment.h"

#include <cstring>

#include "core/guard.h"
#include "families/accessors.h"
#include "families/references.h"
#include "kinds/kinds.h"

namespace tarn {

namespace {

template <class F>
void release_ownership(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source) {
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

    const std::uint8_t old_flag = destination->obj_flag;
    notify_write(h, ctx_id, destination, schema::layout<R>.base_size);
    std::memcpy(bytes_of(destination), bytes_of(source), schema::layout<R>.base_size);

    bool move_state = false;
    if (h->sttr_desc != nullptr) {
        constexpr std::uint8_t offset = flag::sttr_offset;
        destination->obj_flag = static_cast<std::uint8_t>((destination->obj_flag & ~offset) | (old_flag & offset));
        if (tracks(h)) {
            // Even if the destination has no room for state or the source has none, both hold the same pointers by now,
            // so those of the source have to be cleared.
            const bool has_room = (old_flag & flag::state_tracked) != 0;
            if (!has_room) clear_tracking(destination);
            if (!is_state_tracked(destination)) {
                clear_blocks(h, ctx_id, source);
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
    walk<R>(cases{
        [&]<AreaMember F>(F) { Primitive<F>::set(h, ctx_id, F::at(destination), F::at(source), err); },
        nothing,
    });
    walk<R>(cases{
        [&]<ArrayMember A>(A) {
            release_ownership<A>(h, ctx_id, source);
            if (!move_state) return;
            const ElementStates states = A::element_states(state_area<R>(h, ctx_id, source));
            notify_write(h, ctx_id, states.word(), sizeof(void *));
            states.put(nullptr);
        },
        [&]<StringMember S>(S) { release_ownership<S>(h, ctx_id, source); },
        nothing,
    });
}

template <const Record &R>
void Assignment<R>::clear_blocks(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source) {
    walk<R>(cases{
        [&]<RecordMember F>(F) { Assignment<*F::of>::clear_blocks(h, ctx_id, F::at(source)); },
        [&]<BlockMember B>(B) { release_ownership<B>(h, ctx_id, source); },
        nothing,
    });
}

template <const Record &R>
void Assignment<R>::clear_tracking(mirk_object *object) {
    constexpr std::uint8_t tracked = flag::state_tracked;
    object->obj_flag = static_cast<std::uint8_t>(object->obj_flag & ~tracked);
    walk<R>(cases{
        [&]<RecordMember F>(F) { Assignment<*F::of>::clear_tracking(F::at(object)); },
        [&]<AreaMember F>(F) {
            F::at(object)->obj_flag = static_cast<std::uint8_t>(F::at(object)->obj_flag & ~tracked);
        },
        nothing,
    });
}

template <const Record &R>
void Assignment<R>::post_copyout_cleanup(mirk_handle *h, std::uint32_t ctx_id, mirk_object *new_location,
                                         mirk_object *old_location, std::uint32_t *err) {
    walk<R>(cases{
        [&]<AreaMember F>(F) { Primitive<F>::set(h, ctx_id, F::at(new_location), F::at(old_location), err); },
        [&]<BlockMember B>(B) { release_ownership<B>(h, ctx_id, old_location); },
        nothing,
    });
}

}  // namespace tarn

#include "exports/assignment.inc"
