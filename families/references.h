// An instance's entries in the runtime's mappings: its references, and the state offsets of its embedded members.
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
    // Records the state offset of each embedded object, for a state area at this address.
    static void offset_update(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, void *state_area,
                              std::uint32_t *err);
    static void offset_remove(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err);
};

}  // namespace tarn
