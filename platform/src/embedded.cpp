// The object header of the runtime's own embedded types.
#include "handle.hpp"

namespace mirk {

void set_header(mirk_handle *h, uint32_t ctx_id, mirk_object *object, mirk_type_info *type, uint32_t notify,
                uint8_t flags, uint32_t *err) {
    const auto announce = [&](void *member, size_t size) {
        if (notify != 0) h->write_notify(h->mem_ctx, member, size, ctx_id);
    };
    int8_t variant = mirk_domain_lookup_variant(h, &h->domain, type, err);
    if (variant > 0) variant = 0;
    announce(&object->home_variant, 1);
    object->home_variant = variant;
    announce(&object->variant, 1);
    object->variant = variant;
    announce(&object->tinfo, sizeof object->tinfo);
    object->tinfo = h->private_types != 0 ? mirk_type_info_ptr_get(h, ctx_id, type, runtime_types_initialize) : type;
    announce(&object->obj_flag, 1);
    object->obj_flag |= flags;
}

void count_created(mirk_handle *h, uint32_t ctx_id, mirk_object *object, uint32_t *err) {
    mirk_type_info *type = object->tinfo;
    if (type == nullptr || type->variant_info == nullptr) fatal("(FATAL): varinfo is NULL");
    mirk_variant_entry *entry = variant_entry(type, object->variant);
    count(h, ctx_id, type, &entry->num_created, 1);
    *err = 0;
    count(h, ctx_id, type, &entry->num_live, 1);
    *err = 0;
}

void set_embedded(mirk_handle *h, uint32_t ctx_id, mirk_object *object) {
    if (object == nullptr) {
        skald_wrapper(trace_module(), 3, 0, "(ERR): Invalid object pointer passed in to set instance flag");
        return;
    }
    h->write_notify(h->mem_ctx, &object->obj_flag, 1, ctx_id);
    object->obj_flag |= embedded;
}

}  // namespace mirk
