// The object header and the counters of the runtime's own embedded types, booleans and addresses. These functions run
// for every such object, so they are inline.
#pragma once

#include "platform/contract/handle.hpp"

namespace mirk {

// The type record for an object of one of the runtime's own types: on a handle with private types, its copy.
inline mirk_type_info *bind_type(mirk_handle *h, uint32_t ctx_id, mirk_type_info *type) {
    return h->private_types != 0 ? mirk_type_info_ptr_get(h, ctx_id, type, runtime_types_initialize) : type;
}

// Also for negative variants.
inline mirk_variant_entry *variant_entry(const mirk_type_info *type, int8_t variant) {
    if (type == nullptr || type->variant_info == nullptr) fatal("(FATAL): varinfo is NULL");
    return type->variant_info->entries + (variant > 0 ? 0 : variant);
}

inline void add(const mirk_type_info *type, uint64_t *counter, int64_t delta) {
    const auto step = static_cast<uint64_t>(delta);
    if (type->plain_counters != 0) {
        *counter += step;
    } else {
        __atomic_fetch_add(counter, step, __ATOMIC_SEQ_CST);
    }
}

// Counts an event that changes the number of live instances.
[[gnu::always_inline]] inline void count(mirk_handle *h, uint32_t ctx_id, const mirk_type_info *type, uint64_t *events,
                                         uint64_t *live, int64_t change, bool observed) {
    if (observed) h->count_notify(h->mem_ctx, events, 1, ctx_id);
    add(type, events, 1);
    if (observed) h->count_notify(h->mem_ctx, live, change, ctx_id);
    add(type, live, change);
}

[[gnu::always_inline]] inline void count_created(mirk_handle *h, uint32_t ctx_id, const mirk_object *object,
                                                 bool observed) {
    mirk_variant_entry *entry = variant_entry(object->tinfo, object->variant);
    count(h, ctx_id, object->tinfo, &entry->num_created, &entry->num_live, 1, observed);
}

[[gnu::always_inline]] inline void count_destroyed(mirk_handle *h, uint32_t ctx_id, const mirk_object *object,
                                                   bool observed) {
    mirk_variant_entry *entry = variant_entry(object->tinfo, object->variant);
    count(h, ctx_id, object->tinfo, &entry->num_destroyed, &entry->num_live, -1, observed);
}

inline void set_header(mirk_handle *h, uint32_t ctx_id, mirk_object *object, mirk_type_info *type, uint32_t notify,
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

// Initializes an object on a handle with shared types, an empty domain and no observer. Returns false on any other
// handle and has no effect then.
[[gnu::always_inline]] inline bool initialize_usual(mirk_handle *h, uint32_t ctx_id, mirk_object *object,
                                                    mirk_type_info *type, uint32_t skip_count, uint8_t flags) {
    if (h->private_types != 0 || is_observed(h) || !skip_variant_lookup(*own(h))) return false;
    h->last_error = 0;
    object->home_variant = 0;
    object->variant = 0;
    object->tinfo = type;
    object->obj_flag |= flags;
    if (skip_count == 0) count_created(h, ctx_id, object, false);
    return true;
}

inline void set_embedded(mirk_handle *h, uint32_t ctx_id, mirk_object *object) {
    if (object == nullptr) {
        skald_wrapper(trace_module(), 3, 0, "(ERR): Invalid object pointer passed in to set instance flag");
        return;
    }
    notify_write(h, ctx_id, &object->obj_flag, 1);
    object->obj_flag |= embedded;
}

}  // namespace mirk
