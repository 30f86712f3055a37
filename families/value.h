// Operations on an instance's value as a whole. The first two take no handle, so that they serve as callbacks of a
// container; neither they nor the third look at header or state bytes.
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
