// References that an object itself holds to others. No type of this schema has any, so these functions check their
// arguments and find nothing, for all records and enumerations.
#pragma once

#include "core/guard.h"

namespace tarn {

[[gnu::cold]] void refuse_oid_count(mirk_handle *h, std::uint32_t *err);

inline std::uint32_t get_own_oid_count(mirk_handle *h, const void *object, std::uint32_t *err) {
    if (*err != 0 || object == nullptr) refuse_oid_count(h, err);
    return 0;
}

void get_own_object_references(mirk_handle *h, const void *object, std::uint32_t *err);

}  // namespace tarn
