#include "runtime/references.h"

#include "runtime/kinds.h"

namespace tarn {

std::uint32_t get_oid_count(mirk_handle *h, const void *object, std::uint32_t *err) {
    if (*err != 0) {
        trace(error_level, "(ERR): Error already present in call to get object oid count");
    } else if (object == nullptr) {
        trace(error_level, "(ERR): Invalid object passed in to get object oid count");
        fail(h, err, EINVAL);
    }
    return 0;
}

void get_object_references(mirk_handle *h, const void *object, std::uint32_t *err) {
    if (*err != 0) {
        trace(error_level, "(ERR): Error present in call to get table references from object");
    } else if (object == nullptr) {
        trace(error_level, "(ERR): Cannot get table references. Invalid object passed on");
        fail(h, err, EINVAL);
    }
}

template <const Record &R>
void References<R>::offset_update(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, void *state_area,
                                  std::uint32_t *err) {
    const std::uintptr_t area = address_of(state_area);
    walk<R>([&]<class F>(F) {
        if constexpr (schema::has_area(F::member)) {
            auto *child = F::at(object);
            const std::uintptr_t inner = F::inner_area(area);
            mirklib_update_sttr_offset(h, ctx_id, child, distance(child, inner));
            if constexpr (F::kind == Kind::address) {
                ip_address_offset_update(h, ctx_id, child, reinterpret_cast<void *>(inner), err);
            } else {
                References<*F::member.record>::offset_update(h, ctx_id, child, reinterpret_cast<void *>(inner), err);
            }
        }
    });
}

template <const Record &R>
void References<R>::offset_remove(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err) {
    walk<R>([&]<class F>(F) {
        if constexpr (schema::has_area(F::member)) {
            auto *child = F::at(object);
            mirk_hd_mapping_destroy(h, ctx_id, child, err);
            if constexpr (F::kind == Kind::address) {
                ip_address_offset_remove(h, ctx_id, child, err);
            } else {
                References<*F::member.record>::offset_remove(h, ctx_id, child, err);
            }
        }
    });
}

}  // namespace tarn

#include "exports/references.inc"
