/* mirk.h - everything that the library asks of the runtime beneath it. */
#ifndef MIRK_MIRK_H
#define MIRK_MIRK_H

#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- types ---- */
typedef struct mirk_handle      mirk_handle;
typedef struct mirk_type_info   mirk_type_info;
typedef struct mirk_domain      mirk_domain;        /* the runtime's own; the library passes its address and never looks inside */
typedef void (*mirk_message_handler)(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, void *message, uint32_t *err);
typedef void (*mirk_bundle_handler)(mirk_handle *h, uint32_t ctx_id, void *dispatch_ctx, uint32_t *err);
typedef void (*mirk_typeinfo_init_fn)(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
typedef int  (*mirk_print_fn)(const char *format, ...);
typedef struct mirk_variant_entry { uint32_t variant_word, used_length, alloc_slop; uint64_t num_created, num_destroyed, num_live; } mirk_variant_entry;  /* 40 bytes */
typedef struct mirk_variant_info { int8_t n_variants; mirk_variant_entry *entries; } mirk_variant_info;   /* entries[-128..0] must all be readable and writable */
struct mirk_type_info { uint32_t magic; uint8_t luid[16]; char luid_text[33], name[64], module[64], kind[64]; int32_t reserved_index; mirk_variant_info *variant_info; uint32_t plain_counters; };  /* 272 bytes; luid_text is the key of the type store */
typedef struct mirk_type_info_copy { mirk_type_info info; uint64_t store_word_0, store_word_1; } mirk_type_info_copy;  /* 288 bytes, the "private copy" */
typedef struct mirk_module { const char *name; mirk_type_info **types; struct mirk_module *next, **prev; } mirk_module;
typedef struct mirk_module_root { uint32_t count; mirk_module *first, **last; } mirk_module_root;
typedef struct mirk_object { mirk_type_info *tinfo; int8_t variant, home_variant; uint8_t obj_flag; } mirk_object;  /* header: fields may start at offset 11 */
typedef struct mirk_boolean { mirk_type_info *tinfo; int8_t variant, home_variant; uint8_t obj_flag, value; } mirk_boolean;  /* 16 bytes */
typedef struct ip_address ip_address;               /* 40 bytes, alignment 8; members below */
struct ip_address { mirk_type_info *tinfo; int8_t variant, home_variant; uint8_t obj_flag, af, prefix_len; uint16_t scope; uint32_t word[4]; uint64_t slop; };
typedef struct mirk_message_header { uint8_t marker, fill[6], sttr; uint32_t stamp, total_length; } mirk_message_header;  /* 16 bytes, alignment 4 */
/* a table ends with a row of three zero words */
typedef struct mirk_allowed_row { const uint8_t *luid; const char *name; uint64_t zero; } mirk_allowed_row;
/* the library reads the second word (a name for trace lines) and the fifth (a handler or null) */
typedef struct mirk_dispatch_info { void *word_0; const char *name; void *word_2, *word_3; mirk_bundle_handler handler; } mirk_dispatch_info;
/* empty: both words point at the head itself */
typedef struct mirk_list_head { struct mirk_list_head *next, *prev; } mirk_list_head;
/* 0xDDDD tracking off, 0xEEEE tracking on, anything else is a corrupt handle; a null descriptor means off */
typedef struct mirk_sttr_desc { uint32_t sttr_mode; } mirk_sttr_desc;
struct mirk_domain { void *opaque[4]; };
struct mirk_handle {
    void *(*sys_alloc)(void *sys_ctx, uint32_t id, size_t size);
    void *(*obj_alloc)(void *mem_ctx, uint32_t ctx_id, size_t size);
    void  (*obj_free)(void *mem_ctx, uint32_t ctx_id, void *p);
    int   (*write_notify)(void *mem_ctx, void *address, size_t size, uint32_t ctx_id);
    int   (*count_notify)(void *mem_ctx, uint64_t *address, int64_t delta, uint32_t ctx_id);
    void  (*type_store_put)(void *type_store, uint32_t ctx_id, const char *key, mirk_type_info_copy *copy);
    mirk_type_info_copy *(*type_store_get)(void *type_store, uint32_t ctx_id, const char *key);
    uint32_t private_types;
    void *mem_ctx, *type_store, *sys_ctx;
    mirk_bundle_handler bundle_handler;
    uint32_t send_bundle_open, recv_bundle_open;
    const mirk_allowed_row *bundle_table;
    mirk_dispatch_info *recv_bundle_lut; void *recv_bundle_lut_ref; mirk_dispatch_info *recv_bundle_commit_lut;
    mirk_list_head send_bundle_list, recv_bundle_list;
    const char *domain_name;
    uint32_t message_stamp;
    mirk_domain domain;
    uint32_t last_error, default_id, cr_mode;
    mirk_sttr_desc *sttr_desc;
    uint32_t oid_mapping;
};
/* ---- errors and trace ---- */
/* zeroes last_error */
void mirk_clear_last_error(mirk_handle *h);
/* writes last_error only; the caller writes its own slot */
void mirk_store_err(mirk_handle *h, uint32_t number);
/* variant (43) and domain (52) errors: writes last_error and, by policy, the slot */
void mirk_store_epoch_err(mirk_handle *h, uint32_t number, uint32_t *err);
/* printf-style; the third argument is always 0 */
void skald_wrapper(uint16_t module_id, uint32_t level, uint32_t zero, const char *format, ...);
/* repeatable: one name, one identifier */
void skald_module_init_fn(const char *name, uint16_t *module_id, uint64_t *module_state);
/* ---- variants, instance state, state tracking, type table ---- */
/* no ctx_id; type may be null; may exceed 0, the caller caps */
int8_t mirk_domain_lookup_variant(mirk_handle *h, mirk_domain *domain, mirk_type_info *type, uint32_t *err);
/* no handle; the pair is (1, 0) for records, (1, 1) in accessors of boolean and enumeration fields, (0, 1) in enumerations; object may be null */
int8_t mirk_get_instance_variant(void *object, uint32_t is_record, uint32_t is_value_kind);
/* brings the object to the variant of the domain before a write; object and tinfo may be null */
void mirklib_adjust_variant(mirk_handle *h, uint32_t ctx_id, void *object, mirk_type_info *tinfo, uint32_t zero, uint32_t *err);
/* value 1 sets, 0 clears the one modified mark of the object */
void mirk_set_instance_modified(void *object, uint32_t is_record, uint32_t is_value_kind, uint32_t value);
uint32_t mirk_get_instance_modified(void *object, uint32_t is_record, uint32_t is_value_kind);
uint8_t mirk_get_instance_obj_flag(void *object, uint32_t is_record, uint32_t is_value_kind);
/* distance from the object to its state area; asked only when obj_flag has bit 64 */
uint32_t mirklib_get_sttr_offset(mirk_handle *h, uint32_t ctx_id, void *object);
/* records that distance and sets bit 64 in obj_flag */
void mirklib_update_sttr_offset(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t offset);
/* work buffer of the handle, one byte of slack behind size */
void mirklib_get_handle_ws(mirk_handle *h, void **buffer, uint32_t *size);
/* private copy of own on this handle; calls init when the store has none */
mirk_type_info *mirk_type_info_ptr_get(mirk_handle *h, uint32_t ctx_id, mirk_type_info *own, mirk_typeinfo_init_fn init);
/* must leave copy->info.variant_info usable */
void mirk_update_variant_info(mirk_handle *h, uint32_t ctx_id, mirk_type_info_copy *copy, mirk_type_info *own, uint32_t is_new);
/* constant-initialised, last = &first; shared by all modules of the process */
extern mirk_module_root mirk_module_tot_root;
/* ---- object references ---- */
/* nonzero: gone; 0: references remain and the runtime destroys the object later */
uint32_t mirk_request_oid_mapping_destroy(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t *err);
/* drops the offset and RA entries of the object */
void mirk_hd_mapping_destroy(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t *err);
/* fourth argument 0: lower the count */
void mirklib_lookup_and_update_oid_ref_count(mirk_handle *h, uint32_t ctx_id, void *oid, uint32_t zero, uint32_t *err);
/* ---- wire ---- */
/* the six below move 1, 1 or 4 bytes and return that number */
uint32_t _mirk_instance_variant_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, int8_t *variant, int32_t remaining, uint32_t *err);
uint32_t _mirk_instance_variant_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, int8_t *variant, int32_t remaining, uint32_t *err);
uint32_t _mirk_instance_obj_flag_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, uint8_t *flag, int32_t remaining, uint32_t *err);
uint32_t _mirk_instance_obj_flag_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, uint8_t *flag, int32_t remaining, uint32_t *err);
uint32_t _mirk_variant_jump_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, uint32_t *jump, int32_t remaining, uint32_t *err);
uint32_t _mirk_variant_jump_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, uint32_t *jump, int32_t remaining, uint32_t *err);
/* returns an error number, not a length; err is not among its arguments */
uint32_t mirklib_get_ra_data(mirk_handle *h, uint32_t ctx_id, void *instance, void **ra_value, uint8_t *ra_byte);
uint32_t _mirk_instance_ra_data_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, void **ra_value, uint8_t *ra_byte, int32_t remaining, uint32_t *err);
uint32_t _mirk_instance_ra_data_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, void **ra_value, uint8_t *ra_byte, int32_t remaining, uint32_t *err);
/* the value is an opaque word from the wire and is never dereferenced */
void mirklib_update_ra_all(mirk_handle *h, uint32_t ctx_id, void *instance, void *ra_value, uint8_t ra_byte);
/* both 1: one character is one byte */
uint32_t char_len(mirk_handle *h, uint32_t ctx_id, void *chars);
uint32_t char_sizeof(mirk_handle *h);
/* ---- text and XML ---- */
/* writes exactly indent blanks and no NUL */
uint32_t mirk_print_space(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, int32_t remaining, uint32_t *err);
/* length without the NUL; err goes in front of the format */
uint32_t mirk_snprintf(mirk_handle *h, uint32_t ctx_id, char *buffer, int32_t remaining, uint32_t *err, const char *format, ...);
/* name may carry attributes after a blank; end_tag gets the word alone */
uint32_t start_tag(mirk_handle *h, uint32_t ctx_id, char *buffer, const char *name, int32_t remaining, uint8_t state, uint32_t *err);
uint32_t end_tag(mirk_handle *h, uint32_t ctx_id, char *buffer, const char *name, int32_t remaining, uint32_t *err);
uint32_t xml_enum_print(mirk_handle *h, uint32_t ctx_id, char *buffer, const char *text, int32_t remaining, uint32_t text_length, uint32_t *err);
/* no handle, no err: the result is the error number */
uint32_t xml_get_element_nodecount(void *document, const char *path, uint32_t *count);
uint32_t xml_get_element_value(void *document, const char *path, char *value, uint32_t value_size, uint32_t *length);
uint32_t var_string_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name, const char *chars, int32_t remaining, uint32_t length, uint32_t *err);
uint32_t var_string_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, const char *chars, int32_t remaining, uint32_t length, uint8_t state, uint32_t *err);
/* writes into a plain buffer, not into a field */
void var_string_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, char *buffer, uint32_t size, uint32_t *err, char *message, uint32_t message_size);
uint32_t SuperFastHash(const void *data, uint32_t length, uint32_t seed);
/* ---- primitives: one block per integer kind; T is uint8_t, uint16_t, uint32_t, uint64_t ---- */
#define MIRK_INTEGER(K, T) \
T *K##_get(mirk_handle *h, uint32_t ctx_id, T *field, uint32_t *err); \
T K##_get_value(mirk_handle *h, uint32_t ctx_id, T *field, uint32_t *err); \
void K##_set(mirk_handle *h, uint32_t ctx_id, T *field, const T *source, uint32_t *err); \
void K##_set_value(mirk_handle *h, uint32_t ctx_id, T *field, T value, uint32_t *err); \
uint32_t K##_len(mirk_handle *h, uint32_t ctx_id, T *field); \
uint32_t K##_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, T *field, int32_t remaining, uint32_t *err); \
uint32_t K##_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, T *field, int32_t remaining, uint32_t reuse, uint32_t *err); \
uint32_t K##_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name, T *field, int32_t remaining, uint32_t *err); \
uint32_t K##_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, T *field, int32_t remaining, uint8_t state, uint32_t *err); \
void K##_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, T *field, uint32_t *err, char *message, uint32_t message_size); \
uint32_t K##_hash(const T *field, uint32_t seed); \
uint32_t K##_backpropagate(mirk_handle *h, uint32_t ctx_id, T *field, void *word);
MIRK_INTEGER(u_int8, uint8_t) MIRK_INTEGER(u_int16, uint16_t) MIRK_INTEGER(u_int32, uint32_t) MIRK_INTEGER(u_int64, uint64_t)
/* mirk_boolean */
mirk_boolean *mirk_boolean_get(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint32_t *err);
uint8_t mirk_boolean_get_value(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint32_t *err);
void mirk_boolean_set(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, const mirk_boolean *source, uint32_t *err);
void mirk_boolean_set_value(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint8_t value, uint32_t *err);
void mirk_boolean_initialize(mirk_handle *h, uint32_t ctx_id, mirk_boolean *object, mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
void mirk_boolean_set_instance_embedded(mirk_handle *h, uint32_t ctx_id, mirk_boolean *object);
uint32_t mirk_boolean_len(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field);
uint32_t mirk_boolean_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, mirk_boolean *field, int32_t remaining, uint32_t *err);
uint32_t mirk_boolean_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, mirk_boolean *field, int32_t remaining, uint32_t reuse, uint32_t *err);
uint32_t mirk_boolean_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name, mirk_boolean *field, int32_t remaining, uint32_t *err);
uint32_t mirk_boolean_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, mirk_boolean *field, int32_t remaining, uint8_t state, uint32_t *err);
void mirk_boolean_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, mirk_boolean *field, uint32_t *err, char *message, uint32_t message_size);
int32_t mirk_boolean_compare(const mirk_boolean *a, const mirk_boolean *b);
uint32_t mirk_boolean_hash(const mirk_boolean *field, uint32_t seed);
uint32_t mirk_boolean_backpropagate(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, void *word);
extern mirk_type_info _mirk_boolean_type_info_internal;
/* ip_address */
ip_address *ip_address_get(mirk_handle *h, uint32_t ctx_id, ip_address *field, uint32_t *err);
void ip_address_set(mirk_handle *h, uint32_t ctx_id, ip_address *destination, ip_address *source, uint32_t *err);
void ip_address_initialize(mirk_handle *h, uint32_t ctx_id, ip_address *object, mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
void ip_address_set_instance_embedded(mirk_handle *h, uint32_t ctx_id, ip_address *object);
void ip_address_destroy_internal(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t free_it);
void ip_address_offset_update(mirk_handle *h, uint32_t ctx_id, ip_address *object, void *state_area, uint32_t *err);
void ip_address_offset_remove(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t *err);
uint32_t ip_address_get_oid_count(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t *err);
void ip_address_get_object_references(mirk_handle *h, uint32_t ctx_id, ip_address *object, void **oids, uint32_t size, uint32_t *err);
uint32_t ip_address_len(mirk_handle *h, uint32_t ctx_id, ip_address *field);
uint32_t ip_address_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field, int32_t remaining, uint32_t *err);
uint32_t ip_address_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field, int32_t remaining, uint32_t reuse, uint32_t *err);
uint32_t ip_address_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name, ip_address *field, int32_t remaining, uint32_t *err);
uint32_t ip_address_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, ip_address *field, int32_t remaining, uint8_t state, uint32_t *err);
void ip_address_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, ip_address *field, uint32_t *err, char *message, uint32_t message_size);
int32_t ip_address_compare(const ip_address *a, const ip_address *b);
uint32_t ip_address_hash(const ip_address *field, uint32_t seed);
uint32_t ip_address_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id, ip_address *field, void *word);
extern mirk_type_info _ip_address_type_info_internal;
/* ---- messages and bundles ---- */
/* size is 27 here; the size of the received buffer in the unmarshal form, which returns 27 for a good frame */
void _mirk_message_header_marshal(mirk_handle *h, uint32_t ctx_id, void *frame, mirk_message_header *header, uint32_t size, uint32_t *err);
uint32_t _mirk_message_header_unmarshal(mirk_handle *h, uint32_t ctx_id, void *frame, mirk_message_header *header, uint32_t size, uint32_t *err);
/* no ctx_id; nonzero: allowed */
uint32_t mirk_domain_lookup_message_ok(mirk_handle *h, mirk_domain *domain, mirk_type_info *type, uint32_t *err);
/* nonzero: failed marshalling is traced at level 7 and not 3 */
uint32_t mirklib_suppress_messages_enabled(mirk_handle *h);
/* admits the message by bundle_table and enters it in send_bundle_list */
void bundle_message_validate_add(mirk_handle *h, uint32_t ctx_id, const uint8_t *luid, const char *name, uint32_t *err);
/* no ctx_id */
void bundle_message_increment_count(mirk_handle *h, const uint8_t *luid, uint32_t *err);
/* both run whatever *err holds, and end the open state */
void bundle_send_message_list_destroy(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
void bundle_receive_message_list_destroy(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
uint32_t mirklib_is_accumulating_bundle(mirk_handle *h);
/* lut may be null; it is written also when the result is null */
mirk_dispatch_info *mirklib_in_dispatch_message_info(mirk_handle *h, void **lut);
/* process-wide; the stream may be null while the state is on */
uint32_t mirklib_msg_recorder_get_state(void);
FILE *mirklib_msg_recorder_get_handle(void);
/* plain memory, first argument 0 */
void *mirklib_malloc(void *zero, uint32_t ctx_id, size_t size);
void mirklib_free(void *zero, uint32_t ctx_id, void *p);
/* ---- sibling modules: each keeps the last handler given and returns the one before ---- */
#define VELD(M) \
mirk_bundle_handler veld_##M##_bundle_handler_register(mirk_bundle_handler handler); \
mirk_bundle_handler veld_##M##_bundle_handler_unregister(void);
VELD(comm) VELD(defs) VELD(shared) VELD(stats) VELD(intf) VELD(cond) VELD(view)
extern const uint8_t message_ui_req_msg_luid[16];
extern const char message_ui_req_msg_name[64];

#ifdef __cplusplus
}
#endif
#endif
