// The archive's growth of an array by one element: the block grows where it is, if there is room behind it.
#pragma once

#include "families/assignment.h"
#include "families/shortcuts/initialize.h"

extern "C" bool mirk_inside_grow_block(mirk_handle *h, std::uint32_t ctx_id, void **block, std::size_t size);

namespace tarn::shortcut {

// Records and addresses that are embedded in an element. The general way assigns each of them once more when an element
// moves: that looks up a variant, and marks addresses as modified.
template <const Record &R>
inline constexpr std::uint32_t n_assigned = [] {
    std::uint32_t sum = 0;
    for (const std::uint32_t uses : destroyed<R>) sum += uses;
    return sum - 1;
}();

// Moves value to the end of an array. All elements of the array have been assigned, so that their addresses are marked
// as modified. False: the shortcut does not apply, and nothing was changed.
template <class A>
[[gnu::noinline]] bool append(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index,
                              mirk_object *value, std::uint32_t *err) {
    if (*err != 0 || object == nullptr || object->tinfo == nullptr || value == nullptr) return false;
    void *block = *A::at(object);
    const auto new_count = static_cast<typename A::Count>(index + 1);
    if (block == nullptr || *A::Counter::at(object) != index || new_count <= index) return false;
    Types types;
    if (!can_make<A::element>(h, ctx_id, types)) return false;
    if (!mirk_inside_grow_block(h, ctx_id, &block, A::base * (std::size_t{index} + 1))) return false;

    h->last_error = 0;
    object->variant = 0;
    mirk_inside_count_lookups(h, 1);
    if (block == nullptr) {
        fail(h, err, ENOMEM);
        return true;
    }
    *A::at(object) = static_cast<mirk_object *>(block);
    *A::Counter::at(object) = new_count;
    mirk_object *element = A::element_of(object, index);
    std::memset(bytes_of(element), 0, A::base);
    put_headers<A::element, Memory::fresh>(element, types, flag::nested);
    count_made<A::element>(h, types, 1);
    mirk_inside_count_lookups(h, std::uint64_t{index} * n_assigned<A::element>);
    Assignment<A::element>::set(h, ctx_id, element, value, err);
    return true;
}

}  // namespace tarn::shortcut
