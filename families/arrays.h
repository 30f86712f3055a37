// Counted arrays of records: elements by index, growth, and element states.
#pragma once

#include "families/accessors.h"

namespace tarn {

// A is an ArrayField.
template <class A>
struct Array {
    static mirk_object *get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index,
                            std::uint32_t *err);
    // An index past the end grows the array to index + 1 elements; with a null value, nothing is stored.
    static void set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index, mirk_object *value,
                    std::uint32_t copy_mode, std::uint32_t *err);
    static void move_in(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index,
                        mirk_object *value, std::uint32_t *err) {
        set(h, ctx_id, object, index, value, 1, err);
    }
    // The same, for a caller that has moved in all elements before this one.
    static void append(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index,
                       mirk_object *value, std::uint32_t *err);
    static std::uint32_t set_cr(mirk_handle *h, mirk_object *object, std::uint32_t index, mirk_object *value,
                                std::uint32_t copy_mode);
    static std::uint8_t state_flag_get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index,
                                       std::uint32_t *err);
    static void state_flag_set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t index,
                               std::uint8_t value, std::uint32_t *err);
    static void state_flag_get_arr(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint8_t **out,
                                   std::uint32_t *err);
    static void state_flag_set_arr(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                   const std::uint8_t *source, std::uint32_t length, std::uint32_t *err);
};

}  // namespace tarn
