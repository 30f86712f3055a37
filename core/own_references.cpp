#include "core/own_references.h"

namespace tarn {

std::uint32_t get_own_oid_count(mirk_handle *h, const void *object, std::uint32_t *err) {
    if (*err != 0) {
        trace(error_level, "(ERR): Error already present in call to get object oid count");
    } else if (object == nullptr) {
        trace(error_level, "(ERR): Invalid object passed in to get object oid count");
        fail(h, err, EINVAL);
    }
    return 0;
}

void get_own_object_references(mirk_handle *h, const void *object, std::uint32_t *err) {
    if (*err != 0) {
        trace(error_level, "(ERR): Error present in call to get table references from object");
    } else if (object == nullptr) {
        trace(error_level, "(ERR): Cannot get table references. Invalid object passed on");
        fail(h, err, EINVAL);
    }
}

}  // namespace tarn
