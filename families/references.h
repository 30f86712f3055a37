// What an instance contributes to the runtime's mappings: references that it holds, state offsets of what it embeds.
#pragma once

#include "core/own_references.h"
#include "core/walk.h"

namespace tarn {

template <const Record &R>
struct References {
    static std::uint32_t get_oid_count(mirk_handle *h, std::uint32_t, mirk_object *object, std::uint32_t *err) {
        return get_own_oid_count(h, object, err);
    }
    static void get_object_references(mirk_handle *h, std::uint32_t, mirk_object *object, void **, std::uint32_t,
                                      std::uint32_t *err) {
        get_own_object_references(h, object, err);
    }
    // Tells the runtime where each embedded object's state lies inside the area at the given address.
    static void offset_update(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, void *state_area,
                              std::uint32_t *err);
    static void offset_remove(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err);
};

}  // namespace tarn
