#include "core/own_references.h"

namespace tarn {

void refuse_oid_count(mirk_handle *h, std::uint32_t *err) {
    if (*err != 0) {
        trace(error_level, "(ERR): Error already present in call to get object oid count");
    } else {
        trace(error_level, "(ERR): Invalid object passed in to get object oid count");
        fail(h, err, EINVAL);
    }
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
