// The arguments of an operation besides its object, for operations that consist of several functions. Exported
// functions and those that run for each member take the three separately, which keeps them in registers.
#pragma once

#include "core/guard.h"

namespace tarn {

struct Call {
    mirk_handle *h;
    std::uint32_t ctx_id;
    std::uint32_t *err;

    bool enter() const { return tarn::enter(h, err); }
    void adjust_variant(mirk_object *object) const { tarn::adjust_variant(h, ctx_id, object, err); }
    bool require_body(mirk_object *object) const { return tarn::require_body(h, object, 0, err); }
    void fail(std::uint32_t number) const { tarn::fail(h, err, number); }

    void *allocate(std::size_t size) const { return tarn::allocate(h, ctx_id, size); }
    void release(void *block) const { tarn::release(h, ctx_id, block); }
    template <class T>
    void store(T *member, T value) const {
        tarn::store(h, ctx_id, member, value);
    }
};

}  // namespace tarn
