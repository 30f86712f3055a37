// Assignment of whole records. Blocks move: afterwards the destination owns the blocks of the source.
#pragma once

#include "core/walk.h"

namespace tarn {

template <const Record &R>
struct Assignment {
    static void set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *destination, mirk_object *source,
                    std::uint32_t *err);
    // After the bytes of an instance were copied to a new location: leaves each block with one owner.
    static void post_copyout_cleanup(mirk_handle *h, std::uint32_t ctx_id, mirk_object *new_location,
                                     mirk_object *old_location, std::uint32_t *err);
    // Clears all block pointers of the source, at any depth, because the destination now owns the blocks.
    static void clear_blocks(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source);
    // Clears the tracking flag, at any depth, of an instance that has no room for state.
    static void clear_tracking(mirk_object *object);
};

}  // namespace tarn
