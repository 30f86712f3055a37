// Initializing a record together with all records in it, in the archive: on a handle that has no observer and tracks
// nothing, an object needs its header and its counts and nothing else.
#pragma once

#include "core/object_header.h"
#include "kinds/kinds.h"

namespace tarn::shortcut {

inline bool is_unobserved(const mirk_handle *h, const std::uint32_t *err) {
    return *err == 0 && !is_observed(h) && !tracks(h);
}

[[gnu::noinline, gnu::flatten]] inline void initialize_one(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                           mirk_type_info *type, std::uint8_t flags,
                                                           std::uint32_t *err) {
    mirk_clear_last_error(h);
    const std::int8_t variant = set_header(h, ctx_id, object, type, false, flags, err);
    count_created(h, ctx_id, object, variant, false);
    *err = 0;
}

template <const Record &R>
[[gnu::always_inline]] inline void initialize_tree(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                   std::uint8_t flags, void *sttr_base, std::uint32_t *err) {
    initialize_one(h, ctx_id, object, &TypeInfo<R>::own, flags, err);
    if constexpr (any_member<R>(schema::is_embedded)) {
        StepErrors errors(h, err);
        walk<R>(cases{
            [&]<RecordMember F>(F) {
                initialize_tree<*F::of>(h, ctx_id, F::at(object), flag::nested, sttr_base, errors.next());
            },
            [&]<EmbeddedMember F>(F) {
                Primitive<F>::initialize(h, ctx_id, F::at(object), Primitive<F>::type(), 0, 0, flag::nested, sttr_base,
                                         errors.next());
            },
            nothing,
        });
    }
}

}  // namespace tarn::shortcut
