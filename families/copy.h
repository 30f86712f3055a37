// Deep copy: writes a frame and reads it back.
#pragma once

#include "core/walk.h"

namespace tarn {

template <const Record &R>
struct Copy {
    static void clone(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source, mirk_object **result, void *buffer,
                      std::uint32_t size, std::uint32_t *err);
    static mirk_object *clone_cr(mirk_handle *h, mirk_object *source);
    static void copy_cr(mirk_handle *h, mirk_object *source, mirk_object *destination);
    // Into an element of a block. If it fails, the element is destroyed but its memory stays part of the block.
    static void copy_into_element(mirk_handle *h, mirk_object *source, mirk_object *element);

private:
    static void copy(mirk_handle *h, std::uint32_t ctx_id, mirk_object *source, mirk_object **destination, void *buffer,
                     std::uint32_t size, std::uint32_t free_it, std::uint32_t *err);
    static void copy_by_workspace(mirk_handle *h, mirk_object *source, mirk_object **destination,
                                  std::uint32_t free_it);
};

}  // namespace tarn
