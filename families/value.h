// Operations on the value of a whole instance. Compare and hash take no handle, so that containers can call them, and
// read neither header nor state bytes.
#pragma once

#include "core/walk.h"

namespace tarn {

template <const Record &R>
struct Compare {
    static std::int32_t compare(const mirk_object *a, const mirk_object *b);
};

template <const Record &R>
struct Hash {
    static std::uint32_t hash(const mirk_object *instance, std::uint32_t seed);
};

template <const Record &R>
struct Propagate {
    static std::uint32_t backpropagate(mirk_handle *h, std::uint32_t ctx_id, mirk_object *instance, void *word);
};

}  // namespace tarn
