// References that an object itself holds to others. No type of this schema has any, so these serve every record and
// every enumeration: they check their arguments and find nothing.
#pragma once

#include "core/guard.h"

namespace tarn {

std::uint32_t get_own_oid_count(mirk_handle *h, const void *object, std::uint32_t *err);
void get_own_object_references(mirk_handle *h, const void *object, std::uint32_t *err);

}  // namespace tarn
