/* lumo_tarn_dp_appl_sig.h - one signature.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_APPL_SIG_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_APPL_SIG_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_appl_sig: one signature.
 *
 *   exmem_info      lumo_tarn_exmem_info  where the signature lies in memory
 *   dp_hash_bucket  uint32_t              bucket of the data plane's hash in which the signature lies
 *   pal_id          uint32_t              identifier of the signature in the adaptation layer
 *   appl_name_len   uint16_t length       length of appl_name in bytes
 *   appl_name       string                name of the application
 *   appl_id         uint16_t              identifier of the application
 *   protocol        uint8_t               protocol number to match
 *   tos             uint8_t               type-of-service value to match
 *   flags           uint32_t              flags of the signature
 *   dport_min       uint16_t              low end of the destination port range
 *   dport_max       uint16_t              high end of the destination port range
 *   sport_min       uint16_t              low end of the source port range
 *   sport_max       uint16_t              high end of the source port range
 *   next_ptr        uint64_t              link to the next signature in the bucket
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_appl_sig lumo_tarn_dp_appl_sig;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_appl_sig_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_sig_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_sig_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_sig_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_appl_sig_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_destroy_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_sig_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    uint32_t *dp_hash_bucket, uint32_t *pal_id, uint16_t *appl_name_len, uint16_t *appl_id, uint8_t *protocol,
    uint8_t *tos, uint32_t *flags, uint16_t *dport_min, uint16_t *dport_max, uint16_t *sport_min, uint16_t *sport_max,
    uint64_t *next_ptr, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    uint32_t dp_hash_bucket, uint32_t pal_id, uint16_t appl_id, uint8_t protocol, uint8_t tos, uint32_t flags,
    uint16_t dport_min, uint16_t dport_max, uint16_t sport_min, uint16_t sport_max, uint64_t next_ptr, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *destination,
    lumo_tarn_dp_appl_sig *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *new_place, lumo_tarn_dp_appl_sig *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_is_valid_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_len_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_sig *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_sig *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_sig *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *source,
    lumo_tarn_dp_appl_sig **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_sig_clone_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *source);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_copy_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *source,
    lumo_tarn_dp_appl_sig *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_appl_sig *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_print_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_appl_sig *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_toxml_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_appl_sig *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_appl_sig_compare(const lumo_tarn_dp_appl_sig *a, const lumo_tarn_dp_appl_sig *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_hash(const lumo_tarn_dp_appl_sig *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *instance, void *word);

/* exmem_info: where the signature lies in memory */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_dp_appl_sig_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_exmem_info_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_exmem_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_exmem_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* dp_hash_bucket: bucket of the data plane's hash in which the signature lies */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_appl_sig_dp_hash_bucket_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_dp_hash_bucket_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dp_hash_bucket_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dp_hash_bucket_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_dp_hash_bucket_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dp_hash_bucket_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* pal_id: identifier of the signature in the adaptation layer */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_appl_sig_pal_id_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_pal_id_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_pal_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_pal_id_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_pal_id_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_pal_id_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* appl_name_len: length of appl_name in bytes */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_appl_name_len_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_appl_name_len_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);

/* appl_name: name of the application */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_name_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, char *destination, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_name_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const char *text, uint32_t length, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_appl_name_set_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *object,
    const char *text, uint32_t length);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_appl_name_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_name_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* appl_id: identifier of the application */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_appl_id_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_appl_id_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_id_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_appl_id_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_id_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* protocol: protocol number to match */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_appl_sig_protocol_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_protocol_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_protocol_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_protocol_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_protocol_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_protocol_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* tos: type-of-service value to match */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_appl_sig_tos_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_tos_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_tos_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_tos_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_tos_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_tos_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* flags: flags of the signature */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_appl_sig_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_flags_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_flags_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_flags_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* dport_min: low end of the destination port range */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_dport_min_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_dport_min_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_min_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_min_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_dport_min_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_min_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* dport_max: high end of the destination port range */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_dport_max_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_dport_max_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_max_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_max_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_dport_max_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_max_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* sport_min: low end of the source port range */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_sport_min_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_sport_min_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_min_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_min_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_sport_min_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_min_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* sport_max: high end of the source port range */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_sport_max_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_sport_max_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_max_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_max_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_sport_max_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_max_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

/* next_ptr: link to the next signature in the bucket */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_appl_sig_next_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_appl_sig_next_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_next_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_next_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_next_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_next_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
