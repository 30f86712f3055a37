/* lumo_tarn_dp_mp_prefix.h - one prefix as one complex holds it.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_MP_PREFIX_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_MP_PREFIX_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_mp_prefix: one prefix as one complex holds it.
 *
 *   complex_num  uint8_t   number of the complex that this entry describes
 *   prefix       address   prefix as the complex holds it
 *   flags        uint16_t  flags of the prefix, sixteen bits
 *   tc_list_ptr  uint64_t  where the prefix's class list lies in the data plane
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_mp_prefix lumo_tarn_dp_mp_prefix;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_mp_prefix_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_mp_prefix *lumo_tarn_dp_mp_prefix_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_mp_prefix *lumo_tarn_dp_mp_prefix_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_mp_prefix *lumo_tarn_dp_mp_prefix_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_mp_prefix *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_mp_prefix_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_mp_prefix *object);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_destroy_cr(mirk_handle *h, lumo_tarn_dp_mp_prefix *object);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_mp_prefix *lumo_tarn_dp_mp_prefix_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_mp_prefix *object,
    uint8_t *complex_num, uint16_t *flags, uint64_t *tc_list_ptr, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_mp_prefix *object,
    uint8_t complex_num, uint16_t flags, uint64_t tc_list_ptr, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_mp_prefix *destination,
    lumo_tarn_dp_mp_prefix *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *new_place, lumo_tarn_dp_mp_prefix *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_is_valid_cr(mirk_handle *h, lumo_tarn_dp_mp_prefix *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_mp_prefix *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_len_cr(mirk_handle *h, lumo_tarn_dp_mp_prefix *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_mp_prefix *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_mp_prefix *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_mp_prefix *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_mp_prefix *source,
    lumo_tarn_dp_mp_prefix **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_mp_prefix *lumo_tarn_dp_mp_prefix_clone_cr(mirk_handle *h,
    lumo_tarn_dp_mp_prefix *source);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_copy_cr(mirk_handle *h, lumo_tarn_dp_mp_prefix *source,
    lumo_tarn_dp_mp_prefix *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_mp_prefix *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_print_cr(mirk_handle *h, lumo_tarn_dp_mp_prefix *instance,
    char *buffer, int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_mp_prefix *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_toxml_cr(mirk_handle *h, lumo_tarn_dp_mp_prefix *instance,
    char *buffer, int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_mp_prefix *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_mp_prefix_compare(const lumo_tarn_dp_mp_prefix *a,
    const lumo_tarn_dp_mp_prefix *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_hash(const lumo_tarn_dp_mp_prefix *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_prefix_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *instance, void *word);

/* complex_num: number of the complex that this entry describes */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_mp_prefix_complex_num_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_prefix_complex_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_complex_num_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_complex_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_prefix_complex_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_complex_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint8_t value, uint32_t *err);

/* prefix: prefix as the complex holds it */
LUMO_UI_TARN_API ip_address *lumo_tarn_dp_mp_prefix_prefix_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_prefix_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_mp_prefix *object,
    ip_address *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_prefix_prefix_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_prefix_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint8_t value, uint32_t *err);

/* flags: flags of the prefix, sixteen bits */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_mp_prefix_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_mp_prefix_flags_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_flags_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_mp_prefix *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_flags_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_prefix_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint8_t value, uint32_t *err);

/* tc_list_ptr: where the prefix's class list lies in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_mp_prefix_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_mp_prefix_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_prefix_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_prefix_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_prefix *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
