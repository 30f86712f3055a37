// The archive's access to single members: a check of the handle and the object, and one load or store.
#pragma once

#include "families/accessors.h"
#include "families/shortcuts/batch.h"
#include "kinds/kinds.h"

extern "C" bool mirk_inside_is_unhooked(const mirk_handle *h);

namespace tarn::shortcut {

// The member, or null if the shortcut does not apply.
template <class F>
[[gnu::always_inline]] inline typename F::Storage *member_to_get(mirk_handle *h, mirk_object *object,
                                                                 const std::uint32_t *err) {
    const bool applies = *err == 0 && object != nullptr && mirk_inside_is_unhooked(h) && object->variant >= 0;
    if (!applies) return nullptr;
    h->last_error = 0;
    return F::at(object);
}

template <class Storage>
[[gnu::always_inline]] inline auto value_of(const Storage &member) {
    if constexpr (requires { member.value; }) {
        return member.value;
    } else {
        return member;
    }
}

// A sequence of setters writes to one object. Bytes that have their value already are not written again, because each
// would have to wait for the one before.
template <class Object>
[[gnu::always_inline]] inline void reset_variant(Object &object) {
    if (object.variant != 0) object.variant = 0;
}
[[gnu::always_inline]] inline void mark_once(void *object, std::uint32_t value_kind) {
    if (mirk_get_instance_modified(object, 1, value_kind) == 0) mirk_set_instance_modified(object, 1, value_kind, 1);
}

// False: the shortcut does not apply, and nothing was changed.
template <class F>
[[gnu::always_inline]] inline bool set_value(mirk_handle *h, mirk_object *object, auto value,
                                             const std::uint32_t *err) {
    const bool applies = *err == 0 && object != nullptr && object->tinfo != nullptr && is_plain(h);
    if (!applies) return false;
    auto *member = F::at(object);
    if constexpr (EnumerationMember<F>) {
        // Any other value is refused.
        if (member->tinfo == nullptr || value >= F::of->enumerators.size()) return false;
        reset_variant(*member);
    }
    // An object that is written gets the domain's variant, after a look-up of its type.
    reset_variant(*object);
    mirk_inside_count_lookups(h, EnumerationMember<F> ? 2 : 1);
    h->last_error = 0;
    if constexpr (IntegerMember<F>) {
        *member = value;
    } else {
        member->value = value;
        mark_once(member, F::value_kind);
    }
    mark_once(object, F::value_kind);
    return true;
}

// The element, or null if the shortcut does not apply.
template <class A>
[[gnu::always_inline]] inline mirk_object *element_to_get(mirk_handle *h, mirk_object *object, std::uint32_t index,
                                                          const std::uint32_t *err) {
    mirk_object **block = member_to_get<A>(h, object, err);
    return block != nullptr && index < A::count(object) ? element_at<A::element>(*block, index) : nullptr;
}

}  // namespace tarn::shortcut
