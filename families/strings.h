// Strings: a two-byte length and a body without a terminator.
#pragma once

#include "families/accessors.h"

namespace tarn {

// S is the Block of a string member.
template <class S>
struct String {
    static void get(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, char *destination, std::uint32_t size,
                    std::uint32_t *err);
    static void set(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, const char *text, std::uint32_t length,
                    std::uint32_t *err);
};

}  // namespace tarn
