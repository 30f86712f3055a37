#include "runtime/arrays.h"

#include <atomic>

#include "encodings/copy.h"
#include "runtime/kinds.h"
#include "runtime/text.h"

namespace tarn {

namespace {

// Growth is a full move, and it is worth one line for each array in the life of a process.
template <class A>
void report_growth() {
    static std::atomic<bool> reported{false};
    if (reported.load(std::memory_order_relaxed)) return;
    static constexpr auto text = named_text<A::owner>("(ERR): Reallocating resource for ", "");
    trace(error_level, text.data());
    reported.store(true, std::memory_order_relaxed);
}

// Moves the elements of an array that grows, their states included, and takes leave of the old block.
template <class A>
void move_elements(mirk_handle *h, std::uint32_t ctx_id, mirk_object *from, std::uint32_t old_count, mirk_object *to,
                   std::uint64_t new_count, bool tracked, std::uint32_t *err) {
    if (tracked) {
        for (std::uint32_t i = 0; i < old_count; ++i) {
            // By the element's own offset: the stored count may have wrapped, and the old areas stand where they stand.
            std::memcpy(reinterpret_cast<void *>(element_area<A::element>(to, new_count, i)),
                        state_area<A::element>(h, ctx_id, element_at<A::element>(from, i)), A::width);
        }
    }
    std::memcpy(to, from, std::size_t{old_count} * A::base);
    if (tracked) {
        for (std::uint32_t i = 0; i < old_count; ++i) {
            mirk_object *element = element_at<A::element>(to, i);
            const std::uintptr_t area = element_area<A::element>(to, new_count, i);
            mirklib_update_sttr_offset(h, ctx_id, element, distance(element, area));
            References<A::element>::offset_update(h, ctx_id, element, reinterpret_cast<void *>(area), err);
        }
    }
    for (std::uint32_t i = 0; i < old_count; ++i) {
        mirk_object *old_element = element_at<A::element>(from, i);
        Assignment<A::element>::post_copyout_cleanup(h, ctx_id, element_at<A::element>(to, i), old_element, err);
        if (tracked) {
            mirk_hd_mapping_destroy(h, ctx_id, old_element, err);
            References<A::element>::offset_remove(h, ctx_id, old_element, err);
        }
    }
    release(h, ctx_id, from);
}

template <class A>
void initialize_new_elements(mirk_handle *h, std::uint32_t ctx_id, mirk_object *block, std::uint32_t from,
                             std::uint64_t n, bool tracked, std::uint32_t *err) {
    if (tracked) {
        for (std::uint64_t i = from; i < n; ++i) {
            mirk_object *element = element_at<A::element>(block, static_cast<std::uint32_t>(i));
            mirklib_update_sttr_offset(h, ctx_id, element, distance(element, element_area<A::element>(block, n, i)));
        }
    }
    StepErrors errors(h, err);
    for (std::uint64_t i = from; i < n; ++i) {
        Lifecycle<A::element>::initialize(
            h, ctx_id, element_at<A::element>(block, static_cast<std::uint32_t>(i)), &TypeInfo<A::element>::own, 1, 0,
            flag::nested, reinterpret_cast<void *>(element_area<A::element>(block, n, i)), errors.next());
    }
}

// A new vector of element states with the old ones at its front. False: EINVAL or ENOMEM is in the slot.
template <class A>
bool grow_element_states(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t old_count,
                         std::uint64_t new_count, std::uint32_t *err) {
    if (!is_state_tracked(object)) return refuse_untracked(h, err);
    const ElementStates states = A::element_states(state_area<A::owner>(h, ctx_id, object));
    std::uint8_t *old_states = states.block();
    announce(h, ctx_id, states.word(), sizeof(void *));
    auto *new_states = static_cast<std::uint8_t *>(allocate(h, ctx_id, new_count));
    states.put(new_states);
    if (new_states == nullptr) {
        fail(h, err, ENOMEM);
        return false;
    }
    std::memset(new_states, 0, new_count);
    if (old_states != nullptr) {
        std::memcpy(new_states, old_states, old_count);
        release(h, ctx_id, old_states);
    }
    return true;
}

}  // namespace

template <class A>
mirk_object *Array<A>::get(mirk_handle *h, std::uint32_t, mirk_object *object, std::uint32_t index,
                           std::uint32_t *err) {
    if (!begin(h, err)) return nullptr;
    if (!gate(h, object, 0, err)) return nullptr;
    if (index >= A::count(object)) {
        fail(h, err, ENOENT);
        return nullptr;
    }
    return element_at<A::element>(*A::at(object), index);
}

template <class A>
void Array<A>::set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index, mirk_object *value,
                   std::uint32_t copy_mode, std::uint32_t *err) {
    if (!begin(h, err)) return;
    adjust_variant(h, ctx_id, object, err);
    if (!gate(h, object, 0, err)) return;
    const bool tracked = tracks(h);
    if (tracked) {
        if (!is_state_tracked(object)) {
            refuse_untracked(h, err);
            return;
        }
        if (!is_state_tracked(value)) {
            fail(h, err, EINVAL);
            trace(error_level, "(ERR): The val object is not state tracked");
            return;
        }
    }
    if (object == nullptr) {
        fail(h, err, EINVAL);
        return;
    }

    mirk_object **block = A::at(object);
    const std::uint32_t old_count = A::count(object);
    if (index >= old_count) {
        mirk_object *old_block = *block;
        if (old_block != nullptr) report_growth<A>();
        // In 64 bits: the last index there is asks for 2^32 elements, and is refused for want of memory.
        const std::uint64_t new_count = std::uint64_t{index} + 1;
        const std::size_t stride = A::base + (tracked ? A::width : 0);
        auto *new_block = static_cast<mirk_object *>(allocate(h, ctx_id, stride * new_count));
        if (new_block == nullptr) {
            fail(h, err, ENOMEM);
            return;
        }
        store(h, ctx_id, block, new_block);
        std::memset(bytes_of(new_block), 0, stride * new_count);
        if (old_block != nullptr) {
            // A value that lies in the old block is found at its new place after the move.
            const std::uintptr_t into = address_of(value) - address_of(old_block);
            const bool inside = value != nullptr && into < std::size_t{old_count} * A::base;
            move_elements<A>(h, ctx_id, old_block, old_count, new_block, new_count, tracked, err);
            if (inside) value = element_at<A::element>(new_block, static_cast<std::uint32_t>(into / A::base));
        }
        store(h, ctx_id, A::Counter::at(object), static_cast<typename A::Count>(new_count));
        initialize_new_elements<A>(h, ctx_id, new_block, old_count, new_count, tracked, err);
        if (tracks(h) && !grow_element_states<A>(h, ctx_id, object, old_count, new_count, err)) return;
    }
    if (value == nullptr) return;

    mirk_object *element = element_at<A::element>(*block, index);
    if (copy_mode != 0) {
        Assignment<A::element>::set(h, ctx_id, element, value, err);
    } else {
        Copy<A::element>::copy_into_element(h, value, element);
    }
    // The owner's modified mark is left alone, unlike by the setters of single values.
    if (tracked && tracks(h)) {
        std::uint8_t *area = state_area<A::owner>(h, ctx_id, object);
        store(h, ctx_id, A::state(area), written_state);
        std::uint8_t *states = A::element_states(area).block();
        if (states != nullptr) store(h, ctx_id, states + index, written_state);
    }
}

template <class A>
std::uint32_t Array<A>::set_cr(mirk_handle *h, mirk_object *object, std::uint32_t index, mirk_object *value,
                               std::uint32_t copy_mode) {
    set(h, h->default_id, object, index, value, copy_mode, &h->last_error);
    return h->last_error;
}

template <class A>
std::uint8_t Array<A>::state_flag_get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index,
                                      std::uint32_t *err) {
    if (*err != 0 || !can_read_state(h, object, err)) return 0;
    if (index >= A::count(object)) {
        fail(h, err, ENOENT);
        return 0;
    }
    return A::element_states(state_area<A::owner>(h, ctx_id, object)).get(index);
}

template <class A>
void Array<A>::state_flag_set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index,
                              std::uint8_t value, std::uint32_t *err) {
    if (*err != 0 || !can_write_state(h, object, err)) return;
    adjust_variant(h, ctx_id, object, err);
    if (!gate(h, object, 0, err)) return;
    if (index >= A::count(object)) {
        fail(h, err, ENOENT);
        return;
    }
    std::uint8_t *states = A::element_states(state_area<A::owner>(h, ctx_id, object)).block();
    if (states != nullptr) store(h, ctx_id, states + index, value);
    mark_modified(object, 0);
}

template <class A>
void Array<A>::state_flag_get_arr(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint8_t **out,
                                  std::uint32_t *err) {
    if (*err != 0 || !can_read_state(h, object, err)) return;
    *out = A::element_states(state_area<A::owner>(h, ctx_id, object)).block();
}

// The bytes go to the start of the owner's state area and not to the vector, unannounced. The copy ends with the area
// and steps over the addresses of vectors in it, so that each stays owned.
template <class A>
void Array<A>::state_flag_set_arr(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, const std::uint8_t *source,
                                  std::uint32_t length, std::uint32_t *err) {
    if (*err != 0 || !can_write_state(h, object, err)) return;
    if (length != A::count(object)) {
        fail(h, err, ENOENT);
        return;
    }
    adjust_variant(h, ctx_id, object, err);
    if (!gate(h, object, 0, err)) return;
    constexpr auto is_address = vector_bytes<A::owner>();
    std::uint8_t *area = state_area<A::owner>(h, ctx_id, object);
    for (std::uint32_t i = 0; i < length && i < is_address.size(); ++i) {
        if (!is_address[i]) area[i] = source[i];
    }
    mark_modified(object, 0);
}

}  // namespace tarn

#include "exports/arrays.inc"
