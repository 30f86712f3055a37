// The object header of the runtime's own embedded types.
#include "platform/contract/handle.hpp"

namespace mirk {

void set_header(mirk_handle *h, uint32_t ctx_id, mirk_object *object, mirk_type_info *type, uint32_t notify,
                uint8_t flags, uint32_t *err) {
    const bool observed = notify != 0 && is_observed(h);
    const auto notify_member = [&](void *member, size_t size) {
        if (observed) h->write_notify(h->mem_ctx, member, size, ctx_id);
    };
    int8_t variant = mirk_domain_lookup_variant(h, &h->domain, type, err);
    if (variant > 0) variant = 0;
    notify_member(&object->home_variant, 1);
    object->home_variant = variant;
    notify_member(&object->variant, 1);
    object->variant = variant;
    notify_member(&object->tinfo, sizeof object->tinfo);
    object->tinfo = bind_type(h, ctx_id, type);
    notify_member(&object->obj_flag, 1);
    object->obj_flag |= flags;
}

void count_created(mirk_handle *h, uint32_t ctx_id, mirk_object *object, uint32_t *err) {
    mirk_type_info *type = object->tinfo;
    if (type == nullptr || type->variant_info == nullptr) fatal("(FATAL): varinfo is NULL");
    mirk_variant_entry *entry = variant_entry(type, object->variant);
    const bool observed = is_observed(h);
    count(h, ctx_id, type, &entry->num_created, 1, observed);
    count(h, ctx_id, type, &entry->num_live, 1, observed);
    *err = 0;
}

void set_embedded(mirk_handle *h, uint32_t ctx_id, mirk_object *object) {
    if (object == nullptr) {
        skald_wrapper(trace_module(), 3, 0, "(ERR): Invalid object pointer passed in to set instance flag");
        return;
    }
    notify_write(h, ctx_id, &object->obj_flag, 1);
    object->obj_flag |= embedded;
}

}  // namespace mirk
