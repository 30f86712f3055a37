// The life of an instance: sizes, create, initialize, destroy.
//
// The layer families/ may know kinds/, core/, the schema and the contract; not messages, nor which runtime it runs on.
// A family is one template over a record's table, in a source of its own that ends with its exports; its header
// declares what other families and messaging/ call. shortcuts/ is the exception: only the archive uses it, where the
// runtime's code can be inlined, and it must have the same results as the general code.
#pragma once

#include "core/guard.h"
#include "core/walk.h"

namespace tarn {

template <const Record &R>
struct Lifecycle {
    static std::int8_t variant_data_index_cap(std::int8_t variant);
    static std::uint32_t sizeof_instance(const mirk_handle *h);
    static mirk_object *create(mirk_handle *h, std::uint32_t ctx_id);
    static mirk_object *create_cr(mirk_handle *h);
    static mirk_object *create_internal(mirk_handle *h, std::uint32_t ctx_id);
    // For clients. The library itself initializes new memory only.
    [[gnu::cold, gnu::nonnull(3)]] static void initialize(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                          mirk_type_info *type, std::uint32_t notify,
                                                          std::uint32_t skip_count, std::uint8_t flags, void *sttr_base,
                                                          std::uint32_t *err);
    // The same for new memory, where all is notified and counted. Returns the error; its arguments fit the registers.
    [[gnu::nonnull(3)]] static std::uint32_t initialize_new(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object,
                                                            std::uint8_t flags, void *sttr_base);
    static void set_instance_embedded(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object);
    static void destroy(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object);
    static void destroy_internal(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t free_it);
    static mirk_object *get(mirk_handle *, std::uint32_t, mirk_object *object, std::uint32_t *) { return object; }
    static void adjust_variant(mirk_handle *h, std::uint32_t ctx_id, mirk_object *object, std::uint32_t *err) {
        tarn::adjust_variant(h, ctx_id, object, err);
    }
    // All zero and never initialized; a failed sticky chain returns it instead of null.
    static mirk_object *sentinel();
};

}  // namespace tarn
