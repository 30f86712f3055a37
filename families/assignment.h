// Whole-record assignment. Blocks move: what the source owned belongs to the destination afterwards.
#pragma once

#include "core/guard.h"
#include "core/walk.h"

namespace tarn {

template <const Record &R>
struct Assignment {
    static void set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *destination, mirk_object *source,
                    std::uint32_t *err);
    // After the bytes of an instance went to a new place: gives each block one owner again.
    static void post_copyout_cleanup(mirk_handle *h, std::uint32_t ctx_id, mirk_object *new_location,
                                     mirk_object *old_location, std::uint32_t *err);
    // Leaves the source without blocks, at any depth.
    static void release_blocks(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source);
    // The opposite of being tracked, for an instance that has no room for state.
    static void clear_tracking(mirk_object *object);
};

}  // namespace tarn
