#include "families/references.h"

#include "kinds/kinds.h"

namespace tarn {

template <const Record &R>
void References<R>::offset_update(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, void *state_area,
                                  std::uint32_t *err) {
    const std::uintptr_t area = address_of(state_area);
    walk<R>(cases{
        [&]<AreaMember F>(F) {
            auto *child = F::at(object);
            const std::uintptr_t inner = F::inner_area(area);
            mirklib_update_sttr_offset(h, ctx_id, child, distance(child, inner));
            Primitive<F>::offset_update(h, ctx_id, child, reinterpret_cast<void *>(inner), err);
        },
        nothing,
    });
}

template <const Record &R>
void References<R>::offset_remove(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err) {
    walk<R>(cases{
        [&]<AreaMember F>(F) {
            mirk_hd_mapping_destroy(h, ctx_id, F::at(object), err);
            Primitive<F>::offset_remove(h, ctx_id, F::at(object), err);
        },
        nothing,
    });
}

}  // namespace tarn

#include "exports/references.inc"
