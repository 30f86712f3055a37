// An enumeration: an object with a header and one 32-bit value, always 5 bytes on the wire (variant, value).
#pragma once

#include "core/type_table.h"
#include "kinds/kind.h"

namespace tarn {

template <const Enumeration &E>
struct Enum {
    using object = enumeration_object;

    static std::int8_t variant_data_index_cap(std::int8_t variant) { return cap_variant(variant); }
    static object *create(mirk_handle *h, std::uint32_t ctx_id);
    static void initialize(mirk_handle *h, std::uint32_t ctx_id, object *instance, mirk_type_info *type,
                           std::uint32_t notify, std::uint32_t not_used_1, std::uint8_t flags, void *not_used_2,
                           std::uint32_t *err);
    // The same for new memory, where all is notified. Returns the error.
    static std::uint32_t initialize_new(mirk_handle *h, std::uint32_t ctx_id, object *instance, std::uint8_t flags,
                                        void *not_used);
    static void set_instance_embedded(mirk_handle *h, std::uint32_t ctx_id, object *instance);
    static std::uint32_t get_oid_count(mirk_handle *h, std::uint32_t, object *instance, std::uint32_t *err);
    static void get_object_references(mirk_handle *h, std::uint32_t, object *instance, void **, std::uint32_t,
                                      std::uint32_t *err);
    static std::uint32_t sizeof_instance() { return schema::enumeration_size; }
    static void destroy(mirk_handle *h, std::uint32_t ctx_id, object *instance);
    static object *destroy_internal(mirk_handle *h, std::uint32_t ctx_id, object *instance, std::uint32_t free_it);
    static std::uint32_t same_value(std::uint32_t value) { return value; }
    static void adjust_variant(mirk_handle *h, std::uint32_t ctx_id, object *instance, std::uint32_t *err);
    static std::int32_t compare(const object *a, const object *b) {
        if (a == nullptr) return b == nullptr ? 0 : -1;
        if (b == nullptr) return 1;
        return static_cast<std::int32_t>(a->value - b->value);
    }
    static std::uint32_t hash(const object *instance, std::uint32_t seed);
    static std::uint32_t len(mirk_handle *, std::uint32_t, const object *) {
        return schema::facts(Kind::enumeration).wire;
    }
    static std::uint32_t len_cr(const mirk_handle *h) {
        return h->last_error != 0 ? 0 : schema::facts(Kind::enumeration).wire;
    }
    static object *get(mirk_handle *, std::uint32_t, object *instance, std::uint32_t *) { return instance; }
    static std::uint32_t get_value(mirk_handle *h, std::uint32_t ctx_id, object *instance, std::uint32_t *err);
    static void set(mirk_handle *h, std::uint32_t ctx_id, object *instance, object *source, std::uint32_t *err);
    static void set_value(mirk_handle *h, std::uint32_t ctx_id, object *instance, std::uint32_t value,
                          std::uint32_t *err);
    static std::uint32_t marshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, object *instance,
                                 std::int32_t remaining, std::uint32_t *err);
    static std::uint32_t unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, object *instance,
                                   std::uint32_t length, std::uint32_t reuse, std::uint32_t *err);
    static std::uint32_t backpropagate(mirk_handle *h, std::uint32_t ctx_id, object *instance, void *word);
    static std::uint32_t print(mirk_handle *h, std::uint32_t ctx_id, char *buffer, std::uint32_t indent,
                               const char *name, object *instance, std::int32_t remaining, std::uint32_t *err);
    static std::uint32_t to_xml(mirk_handle *h, std::uint32_t ctx_id, const char *name, char *buffer, object *instance,
                                std::int32_t remaining, std::uint8_t state, std::uint32_t *err);
    static void from_xml(mirk_handle *h, std::uint32_t ctx_id, const char *path, void *document, object *instance,
                         std::uint32_t *err, char *message, std::uint32_t message_size);
    static std::uint32_t is_valid_cr(mirk_handle *h, std::uint32_t value);

private:
    static object *sentinel();
    static bool admits(object *instance, std::uint32_t value);
};

template <>
struct StorageOf<Kind::enumeration> : std::type_identity<enumeration_object> {};

template <auto Of>
struct PrimitiveOf<Kind::enumeration, Of> : Enum<*Of> {
    static std::uint32_t unmarshal(mirk_handle *h, std::uint32_t ctx_id, void *buffer, enumeration_object *field,
                                   std::int32_t left, std::uint32_t reuse, std::uint32_t *err) {
        return Enum<*Of>::unmarshal(h, ctx_id, buffer, field, static_cast<std::uint32_t>(left), reuse, err);
    }
    static mirk_type_info *type() { return &TypeInfo<*Of>::own; }
};

}  // namespace tarn
