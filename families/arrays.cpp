#include "families/arrays.h"

#include <atomic>
#include <cstring>
#include <span>

#include "core/call.h"
#include "core/named_text.h"
#include "core/type_table.h"
#include "families/assignment.h"
#include "families/copy.h"
#include "families/lifecycle.h"
#include "families/references.h"
#include "families/shortcuts/shortcuts.h"
#include "kinds/kinds.h"

namespace tarn {

namespace {

// What growth needs to know of the elements, so that one function serves all arrays with counts of the same width.
struct ElementShape {
    std::size_t base, width;
    decltype(&Lifecycle<schema::lumo_tarn_debug_setting>::initialize_new) initialize;
    decltype(&Assignment<schema::lumo_tarn_debug_setting>::post_copyout_cleanup) post_copyout_cleanup;
    decltype(&References<schema::lumo_tarn_debug_setting>::offset_update) offset_update;
    decltype(&References<schema::lumo_tarn_debug_setting>::offset_remove) offset_remove;
    // Null in the shared library.
    bool (*initialize_elements)(mirk_handle *h, std::uint32_t ctx_id, mirk_object *first, std::uint64_t n,
                                const std::uint32_t *err);

    mirk_object *at(mirk_object *block, std::uint64_t index) const {
        return reinterpret_cast<mirk_object *>(bytes_of(block) + index * base);
    }
    // The state areas follow the n elements of a block.
    void *area(const mirk_object *block, std::uint64_t n, std::uint64_t index) const {
        return reinterpret_cast<void *>(address_of(block) + n * base + index * width);
    }
};
template <const Record &R>
constexpr decltype(ElementShape::initialize_elements) initialize_elements = [] {
    if constexpr (runtime_inside) {
        return [](mirk_handle *h, std::uint32_t ctx_id, mirk_object *first, std::uint64_t n, const std::uint32_t *err) {
            return shortcut::initialize<R, shortcut::Memory::fresh>(h, ctx_id, first, n, flag::nested, err);
        };
    } else {
        return nullptr;
    }
}();
template <const Record &R>
constinit const ElementShape element_shape{schema::layout<R>.base_size,  schema::layout<R>.state_width,
                                           Lifecycle<R>::initialize_new, Assignment<R>::post_copyout_cleanup,
                                           References<R>::offset_update, References<R>::offset_remove,
                                           initialize_elements<R>};

template <class A>
constexpr auto growth_text = named_text<A::owner>("(ERR): Reallocating resource for ", "");
// Growth moves all elements, which each array reports once per process.
template <class A>
constinit std::atomic<bool> growth_reported{false};

struct ArrayShape {
    const ElementShape &element;
    std::uint32_t base_size, inner;  // of the owner; offset of the vector's address in its state area
    const char *growth_text;
    std::atomic<bool> &growth_reported;
};
template <class A>
constinit const ArrayShape array_shape{element_shape<A::element>, schema::layout<A::owner>.base_size, A::place.inner,
                                       growth_text<A>.data(), growth_reported<A>};

ElementStates element_states(const Call &call, mirk_object *object, const ArrayShape &array) {
    return ElementStates(state_area(call.h, call.ctx_id, object, array.base_size) + array.inner);
}

// Moves the elements of an array that grows, their states included, and frees the old block.
void move_elements(const Call &call, mirk_object *from, std::uint32_t old_count, mirk_object *to,
                   std::uint64_t new_count, bool tracked, const ElementShape &shape) {
    if (tracked) {
        for (std::uint32_t i = 0; i < old_count; ++i) {
            // By the element's own offset, since the old areas cannot be computed from a count that has wrapped.
            std::memcpy(shape.area(to, new_count, i),
                        state_area(call.h, call.ctx_id, shape.at(from, i), static_cast<std::uint32_t>(shape.base)),
                        shape.width);
        }
    }
    std::memcpy(to, from, std::size_t{old_count} * shape.base);
    if (tracked) {
        for (std::uint32_t i = 0; i < old_count; ++i) {
            mirk_object *element = shape.at(to, i);
            void *area = shape.area(to, new_count, i);
            mirklib_update_sttr_offset(call.h, call.ctx_id, element, distance(element, address_of(area)));
            shape.offset_update(call.h, call.ctx_id, element, area, call.err);
        }
    }
    for (std::uint32_t i = 0; i < old_count; ++i) {
        mirk_object *old_element = shape.at(from, i);
        shape.post_copyout_cleanup(call.h, call.ctx_id, shape.at(to, i), old_element, call.err);
        if (tracked) {
            mirk_hd_mapping_destroy(call.h, call.ctx_id, old_element, call.err);
            shape.offset_remove(call.h, call.ctx_id, old_element, call.err);
        }
    }
    call.release(from);
}

void initialize_new_elements(const Call &call, mirk_object *block, std::uint32_t from, std::uint64_t n, bool tracked,
                             const ElementShape &shape) {
    if (tracked) {
        for (std::uint64_t i = from; i < n; ++i) {
            mirk_object *element = shape.at(block, i);
            mirklib_update_sttr_offset(call.h, call.ctx_id, element,
                                       distance(element, address_of(shape.area(block, n, i))));
        }
    }
    if constexpr (runtime_inside) {
        if (shape.initialize_elements(call.h, call.ctx_id, shape.at(block, from), n - from, call.err)) return;
    }
    StepErrors errors(*call.err);
    for (std::uint64_t i = from; i < n; ++i) {
        errors.add(shape.initialize(call.h, call.ctx_id, shape.at(block, i), flag::nested, shape.area(block, n, i)));
    }
    if (const std::uint32_t error = errors.result(call.h); error != 0) *call.err = error;
}

// Replaces the vector of element states by a longer one that starts with the old states. False: EINVAL or ENOMEM.
bool grow_element_states(const Call &call, mirk_object *object, std::uint32_t old_count, std::uint64_t new_count,
                         const ArrayShape &array) {
    if (!is_state_tracked(object)) return refuse_untracked(call.h, call.err);
    const ElementStates states = element_states(call, object, array);
    std::uint8_t *old_states = states.block();
    notify_write(call.h, call.ctx_id, states.word(), sizeof(void *));
    auto *new_states = static_cast<std::uint8_t *>(call.allocate(new_count));
    states.put(new_states);
    if (new_states == nullptr) {
        call.fail(ENOMEM);
        return false;
    }
    std::memset(new_states, 0, new_count);
    if (old_states != nullptr) {
        std::memcpy(new_states, old_states, old_count);
        call.release(old_states);
    }
    return true;
}

// Grows the array to index + 1 elements. If the value is an element of the old block, it is updated to the moved one.
// False: an allocation failed, or the owner has no room for state.
template <class Count>
[[gnu::noinline]] bool grow(const Call &call, mirk_object *object, Count *counter, mirk_object **block,
                            std::uint32_t old_count, std::uint32_t index, mirk_object *&value, bool tracked,
                            const ArrayShape &array) {
    const ElementShape &shape = array.element;
    mirk_object *old_block = *block;
    if (old_block != nullptr && !array.growth_reported.load(std::memory_order_relaxed)) {
        trace(error_level, array.growth_text);
        array.growth_reported.store(true, std::memory_order_relaxed);
    }
    // In 64 bits, since the largest index asks for 2^32 elements, which then fails with ENOMEM.
    const std::uint64_t new_count = std::uint64_t{index} + 1;
    const std::size_t stride = shape.base + (tracked ? shape.width : 0);
    auto *new_block = static_cast<mirk_object *>(call.allocate(stride * new_count));
    if (new_block == nullptr) {
        call.fail(ENOMEM);
        return false;
    }
    call.store(block, new_block);
    std::memset(bytes_of(new_block), 0, stride * new_count);
    if (old_block != nullptr) {
        const std::uintptr_t value_offset = address_of(value) - address_of(old_block);
        const bool inside = value != nullptr && value_offset < std::size_t{old_count} * shape.base;
        move_elements(call, old_block, old_count, new_block, new_count, tracked, shape);
        if (inside) value = shape.at(new_block, value_offset / shape.base);
    }
    call.store(counter, static_cast<Count>(new_count));
    initialize_new_elements(call, new_block, old_count, new_count, tracked, shape);
    return !tracks(call.h) || grow_element_states(call, object, old_count, new_count, array);
}

// True if value can become an element of object; otherwise sets the error.
[[gnu::noinline]] bool may_take(const Call &call, mirk_object *object, const mirk_object *value) {
    if (!call.enter()) return false;
    call.adjust_variant(object);
    if (!call.require_body(object)) return false;
    if (tracks(call.h)) {
        if (!is_state_tracked(object)) return refuse_untracked(call.h, call.err);
        if (!is_state_tracked(value)) {
            call.fail(EINVAL);
            trace(error_level, "(ERR): The val object is not state tracked");
            return false;
        }
    }
    if (object != nullptr) return true;
    call.fail(EINVAL);
    return false;
}

std::uint8_t get_element_state(const Call &call, mirk_object *object, std::uint32_t count, std::uint32_t index,
                               const ArrayShape &array) {
    if (*call.err != 0 || !can_read_state(call.h, object, call.err)) return 0;
    if (index >= count) {
        call.fail(ENOENT);
        return 0;
    }
    return element_states(call, object, array).get(index);
}

void set_element_state(const Call &call, mirk_object *object, std::uint32_t count, std::uint32_t index,
                       std::uint8_t value, const ArrayShape &array) {
    if (*call.err != 0 || !can_write_state(call.h, object, call.err)) return;
    call.adjust_variant(object);
    if (!call.require_body(object)) return;
    if (index >= count) {
        call.fail(ENOENT);
        return;
    }
    std::uint8_t *states = element_states(call, object, array).block();
    if (states != nullptr) call.store(states + index, value);
    mark_modified(object, 0);
}

// is_address marks the bytes of the owner's state area that hold addresses of vectors.
void set_all_states(const Call &call, mirk_object *object, std::uint32_t count, const std::uint8_t *source,
                    std::uint32_t length, std::span<const bool> is_address, const ArrayShape &array) {
    if (*call.err != 0 || !can_write_state(call.h, object, call.err)) return;
    if (length != count) {
        call.fail(ENOENT);
        return;
    }
    call.adjust_variant(object);
    if (!call.require_body(object)) return;
    std::uint8_t *area = state_area(call.h, call.ctx_id, object, array.base_size);
    for (std::uint32_t i = 0; i < length && i < is_address.size(); ++i) {
        if (!is_address[i]) area[i] = source[i];
    }
    mark_modified(object, 0);
}

}  // namespace

template <class A>
mirk_object *Array<A>::get(mirk_handle *h, std::uint32_t, mirk_object *object, std::uint32_t index,
                           std::uint32_t *err) {
    if constexpr (runtime_inside) {
        if (mirk_object *element = shortcut::element_to_get<A>(h, object, index, err); element != nullptr)
            return element;
    }
    if (!enter(h, err)) return nullptr;
    if (!require_body(h, object, 0, err)) return nullptr;
    if (index >= A::count(object)) {
        fail(h, err, ENOENT);
        return nullptr;
    }
    return element_at<A::element>(*A::at(object), index);
}

template <class A>
void Array<A>::set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index, mirk_object *value,
                   std::uint32_t copy_mode, std::uint32_t *err) {
    const Call call{h, ctx_id, err};
    if (!may_take(call, object, value)) return;
    const bool tracked = tracks(h);
    mirk_object **block = A::at(object);
    const std::uint32_t count = A::count(object);
    if (index >= count &&
        !grow(call, object, A::Counter::at(object), block, count, index, value, tracked, array_shape<A>)) {
        return;
    }
    if (value == nullptr) return;

    mirk_object *element = element_at<A::element>(*block, index);
    if (copy_mode != 0) {
        Assignment<A::element>::set(h, ctx_id, element, value, err);
    } else {
        Copy<A::element>::copy_into_element(h, value, element);
    }
    // Unlike the setters of single values, does not mark the owner as modified.
    if (tracked && tracks(h)) {
        std::uint8_t *area = state_area<A::owner>(h, ctx_id, object);
        store(h, ctx_id, A::state(area), written_state);
        std::uint8_t *states = A::element_states(area).block();
        if (states != nullptr) store(h, ctx_id, states + index, written_state);
    }
}

// The first growth in the life of a process is reported, which the shortcut does not do.
template <class A>
void Array<A>::append(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index,
                      mirk_object *value, std::uint32_t *err) {
    if constexpr (runtime_inside) {
        const bool reported = growth_reported<A>.load(std::memory_order_relaxed);
        if (reported && shortcut::append<A>(h, ctx_id, object, index, value, err)) return;
    }
    set(h, ctx_id, object, index, value, 1, err);
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
    return get_element_state({h, ctx_id, err}, object, A::count(object), index, array_shape<A>);
}

template <class A>
void Array<A>::state_flag_set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index,
                              std::uint8_t value, std::uint32_t *err) {
    set_element_state({h, ctx_id, err}, object, A::count(object), index, value, array_shape<A>);
}

template <class A>
void Array<A>::state_flag_get_arr(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint8_t **out,
                                  std::uint32_t *err) {
    if (*err != 0 || !can_read_state(h, object, err)) return;
    *out = element_states({h, ctx_id, err}, object, array_shape<A>).block();
}

// The bytes are copied to the start of the owner's state area, not to the vector, without a notification. The copy
// stops at the end of the area and skips the addresses of vectors, which would otherwise leak.
template <class A>
void Array<A>::state_flag_set_arr(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, const std::uint8_t *source,
                                  std::uint32_t length, std::uint32_t *err) {
    static constexpr auto is_address = vector_bytes<A::owner>();
    set_all_states({h, ctx_id, err}, object, A::count(object), source, length, is_address, array_shape<A>);
}

}  // namespace tarn

#include "exports/arrays.inc"
