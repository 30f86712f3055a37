// Every exported operation as a table, for programs that work on any record: the tool, and tests that loop over all of
// them. The tables are generated; they call exported names alone, with pointers to objects as void and values as 64-bit
// numbers.
#pragma once

#include <span>

#include "mirk/mirk.h"
#include "schema/catalogue.h"

namespace tarn::reflect {

using Handle = mirk_handle *;
using Id = std::uint32_t;
using Err = std::uint32_t *;

// Operations that a member's class does not have are null.
struct MemberOperations {
    const schema::Member *member;

    void *(*get)(Handle, Id, void *object, Err);
    std::uint64_t (*get_value)(Handle, Id, void *object, Err);
    void (*set)(Handle, Id, void *object, void *source, Err);
    void (*set_value)(Handle, Id, void *object, std::uint64_t value, Err);
    std::uint8_t (*state_flag_get)(Handle, Id, void *object, Err);  // of an array: the whole
    void (*state_flag_set)(Handle, Id, void *object, std::uint8_t value, Err);

    void (*text_get)(Handle, Id, void *object, char *destination, std::uint32_t size, Err);
    void (*text_set)(Handle, Id, void *object, const char *text, std::uint32_t length, Err);
    std::uint32_t (*text_set_cr)(Handle, void *object, const char *text, std::uint32_t length);

    void *(*element_get)(Handle, Id, void *object, std::uint32_t index, Err);
    void (*element_set)(Handle, Id, void *object, std::uint32_t index, void *value, Err);
    std::uint32_t (*element_set_cr)(Handle, void *object, std::uint32_t index, void *value, std::uint32_t copy_mode);
    std::uint8_t (*element_state_flag_get)(Handle, Id, void *object, std::uint32_t index, Err);
    void (*element_state_flag_set)(Handle, Id, void *object, std::uint32_t index, std::uint8_t value, Err);
    void (*element_state_flag_get_arr)(Handle, Id, void *object, std::uint8_t **out, Err);
    void (*element_state_flag_set_arr)(Handle, Id, void *object, const std::uint8_t *source, std::uint32_t length, Err);
};

struct RecordOperations {
    const schema::Record *record;
    mirk_type_info *type;
    std::span<const MemberOperations> members;

    void *(*create)(Handle, Id);
    void *(*create_cr)(Handle);
    void *(*create_internal)(Handle, Id);
    void (*initialize)(Handle, Id, void *object, mirk_type_info *type, std::uint32_t notify, std::uint32_t skip_count,
                       std::uint8_t flags, void *sttr_base, Err);
    std::uint32_t (*sizeof_)(Handle);
    std::int8_t (*variant_data_index_cap)(std::int8_t variant);
    void (*set_instance_embedded)(Handle, Id, void *object);
    void (*adjust_variant)(Handle, Id, void *object, Err);
    void (*destroy)(Handle, Id, void *object);
    void (*destroy_cr)(Handle, void *object);
    void (*destroy_internal)(Handle, Id, void *object, std::uint32_t free_it);
    void *(*get)(Handle, Id, void *object, Err);
    void (*get_all)(Handle, Id, void *object, void *const *out, Err);
    void (*set_all)(Handle, Id, void *object, const std::uint64_t *values, Err);
    void (*set)(Handle, Id, void *destination, void *source, Err);
    void (*post_copyout_cleanup)(Handle, Id, void *new_place, void *old_place, Err);
    void (*set_all_state_tracking_flag)(Handle, Id, void *object, std::uint8_t value);
    std::uint32_t (*is_valid_cr)(Handle, void *object, std::uint32_t field_index);
    std::uint32_t (*get_oid_count)(Handle, Id, void *object, Err);
    void (*get_object_references)(Handle, Id, void *object, void **oids, std::uint32_t size, Err);
    void (*offset_update)(Handle, Id, void *object, void *state_area, Err);
    void (*offset_remove)(Handle, Id, void *object, Err);
    std::uint32_t (*len)(Handle, Id, void *instance);
    std::uint32_t (*len_cr)(Handle, void *instance);
    std::uint32_t (*marshal)(Handle, Id, void *buffer, void *instance, std::int32_t remaining, Err);
    std::uint32_t (*marshal_for_clone)(Handle, Id, void *buffer, void *instance, std::int32_t remaining, Err);
    std::uint32_t (*unmarshal)(Handle, Id, void *buffer, void *instance, std::uint32_t length, std::uint32_t reuse,
                               Err);
    void (*clone)(Handle, Id, void *source, void **result, void *buffer, std::uint32_t size, Err);
    void *(*clone_cr)(Handle, void *source);
    void (*copy_cr)(Handle, void *source, void *destination);
    std::uint32_t (*print)(Handle, Id, char *buffer, std::uint32_t indent, const char *name, void *instance,
                           std::int32_t remaining, Err);
    std::uint32_t (*print_cr)(Handle, void *instance, char *buffer, std::int32_t remaining);
    std::uint32_t (*to_xml)(Handle, Id, const char *name, char *buffer, void *instance, std::int32_t remaining,
                            std::uint8_t state, Err);
    std::uint32_t (*toxml_cr)(Handle, void *instance, char *buffer, std::int32_t remaining);
    void (*from_xml)(Handle, Id, const char *path, void *document, void *instance, Err, char *message,
                     std::uint32_t message_size);
    std::int32_t (*compare)(const void *a, const void *b);
    std::uint32_t (*hash)(const void *instance, std::uint32_t seed);
    std::uint32_t (*type_type_backpropagate)(Handle, Id, void *instance, void *word);
};

struct EnumerationOperations {
    const schema::Enumeration *enumeration;
    mirk_type_info *type;

    void *(*create)(Handle, Id);
    void *(*create_internal)(Handle, Id);
    void *(*create_cr)(Handle);
    void (*initialize)(Handle, Id, void *instance, mirk_type_info *type, std::uint32_t notify, std::uint32_t not_used_1,
                       std::uint8_t flags, void *not_used_2, Err);
    std::uint32_t (*sizeof_)();
    std::int8_t (*variant_data_index_cap)(std::int8_t variant);
    void (*set_instance_embedded)(Handle, Id, void *instance);
    void (*adjust_variant)(Handle, Id, void *instance, Err);
    void (*destroy)(Handle, Id, void *instance);
    void (*destroy_cr)(Handle, void *instance);
    void *(*destroy_internal)(Handle, Id, void *instance, std::uint32_t free_it);
    std::uint32_t (*get_oid_count)(Handle, Id, void *instance, Err);
    void (*get_object_references)(Handle, Id, void *instance, void **not_used_1, std::uint32_t not_used_2, Err);
    void *(*get)(Handle, Id, void *instance, Err);
    std::uint32_t (*get_value)(Handle, Id, void *instance, Err);
    void (*set)(Handle, Id, void *instance, void *source, Err);
    void (*set_value)(Handle, Id, void *instance, std::uint32_t value, Err);
    std::uint32_t (*is_valid_cr)(Handle, std::uint32_t value);
    std::uint32_t (*map_to_user_value)(std::uint32_t value);
    std::uint32_t (*map_to_internal_value)(std::uint32_t value);
    std::int32_t (*compare)(const void *a, const void *b);
    std::uint32_t (*hash)(const void *instance, std::uint32_t seed);
    std::uint32_t (*backpropagate)(Handle, Id, void *instance, void *word);
    std::uint32_t (*len)(Handle, Id, void *instance);
    std::uint32_t (*len_cr)(Handle);
    std::uint32_t (*marshal)(Handle, Id, void *buffer, void *instance, std::int32_t remaining, Err);
    std::uint32_t (*unmarshal)(Handle, Id, void *buffer, void *instance, std::uint32_t length, std::uint32_t reuse,
                               Err);
    std::uint32_t (*print)(Handle, Id, char *buffer, std::uint32_t indent, const char *name, void *instance,
                           std::int32_t remaining, Err);
    std::uint32_t (*print_cr)(Handle, void *instance, char *buffer, std::int32_t remaining);
    std::uint32_t (*to_xml)(Handle, Id, const char *name, char *buffer, void *instance, std::int32_t remaining,
                            std::uint8_t state, Err);
    std::uint32_t (*toxml_cr)(Handle, void *instance, char *buffer, std::int32_t remaining);
    void (*from_xml)(Handle, Id, const char *path, void *document, void *instance, Err, char *message,
                     std::uint32_t message_size);
};

// Of a plain message and of a control message; the two differ in what they can do with a payload.
struct MessageOperations {
    const schema::Message *message;  // of a control message: null
    mirk_type_info *type;            // likewise
    const char *name;                // in the catalogue, without "message " in front
    const std::uint8_t *luid;
    const char *luid_text;
    const char *catalogue_name;

    void *(*create)(Handle, Id);
    void *(*create_cr)(Handle);
    void *(*create_unsafe)(Handle, Id);
    void *(*create_shallow)(Handle, Id);
    void (*destroy)(Handle, Id, void *message);
    void (*destroy_cr)(Handle, void *message);
    void (*destroy_unsafe)(Handle, Id, void *message);
    void *(*payload_get)(Handle, Id, void *message, Err);
    void *(*payload_get_detach)(Handle, Id, void *message, Err);
    void (*payload_set)(Handle, Id, void *message, void *payload, Err);
    void (*payload_free_and_set)(Handle, Id, void *message, void *payload, Err);
    std::uint32_t (*is_valid_cr)(Handle);
    std::uint32_t (*len)(Handle, Id, void *message);
    std::uint32_t (*len_cr)(Handle, void *message);
    std::uint32_t (*len_unsafe)(Handle, Id, void *message);
    std::uint32_t (*marshal)(Handle, Id, void *buffer, void *message, std::uint32_t size, Err);
    std::uint32_t (*marshal_cr)(Handle, void *message, void *buffer, std::uint32_t size);
    std::uint32_t (*marshal_unsafe)(Handle, Id, void *buffer, void *message, std::uint32_t size, Err);
    std::uint32_t (*unmarshal)(Handle, Id, void *dispatch_ctx, void **out, void *buffer, std::uint32_t size,
                               mirk_message_handler handler, Err);
    std::uint32_t (*unmarshal_only)(Handle, Id, void **out, void *buffer, std::uint32_t size, Err);
    std::uint32_t (*print)(Handle, Id, char *buffer, void *message, std::uint32_t size, Err);
    std::uint32_t (*print_cr)(Handle, void *message, char *buffer, std::uint32_t size);
    std::uint32_t (*print_unsafe)(Handle, Id, char *buffer, void *message, std::uint32_t size, Err);
    std::uint32_t (*to_xml)(Handle, Id, char *buffer, void *message, std::uint32_t size, Err);
    std::uint32_t (*toxml_cr)(Handle, void *message, char *buffer, std::uint32_t size);
    std::uint32_t (*to_xml_unsafe)(Handle, Id, char *buffer, void *message, std::uint32_t size, Err);
    void *(*from_xml)(Handle, Id, void *document, Err, char *message_buffer, std::uint32_t message_size);
    void *(*from_xml_unsafe)(Handle, Id, void *document, Err, char *message_buffer, std::uint32_t message_size);
    std::uint32_t (*valid_cr)(Handle);

    mirk_message_handler handler;  // the linked-in one
};

struct BundleOperations {
    const schema::Bundle *bundle;
    MessageOperations start, abort, commit;
    mirk_bundle_handler handler;  // the linked-in one
    mirk_bundle_handler (*register_handler)(mirk_bundle_handler handler);
    mirk_bundle_handler (*unregister_handler)();
    mirk_bundle_handler *registered_handler;
};

// In the order of the catalogue.
std::span<const RecordOperations> records();
std::span<const EnumerationOperations> enumerations();
std::span<const MessageOperations> messages();
std::span<const BundleOperations> bundles();

const RecordOperations &operations_of(const schema::Record &record);
const EnumerationOperations &operations_of(const schema::Enumeration &enumeration);
const MessageOperations &operations_of(const schema::Message &message);

// Null for a name that is none.
const RecordOperations *find_record(std::string_view name);
const MessageOperations *find_message(std::string_view name);
const BundleOperations *find_bundle(std::string_view name);

}  // namespace tarn::reflect
