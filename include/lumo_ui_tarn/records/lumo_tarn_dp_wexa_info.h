/* lumo_tarn_dp_wexa_info.h - flags of a wexa entry.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_WEXA_INFO_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_WEXA_INFO_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_wexa_info: flags of a wexa entry.
 *
 *   flags  uint32_t  flags of the wexa entry
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_wexa_info lumo_tarn_dp_wexa_info;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_wexa_info_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_wexa_info *lumo_tarn_dp_wexa_info_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_wexa_info *lumo_tarn_dp_wexa_info_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_wexa_info *lumo_tarn_dp_wexa_info_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_wexa_info *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_wexa_info_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_wexa_info *object);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_destroy_cr(mirk_handle *h, lumo_tarn_dp_wexa_info *object);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_wexa_info *lumo_tarn_dp_wexa_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_wexa_info *object,
    uint32_t *flags, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_wexa_info *object,
    uint32_t flags, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_wexa_info *destination,
    lumo_tarn_dp_wexa_info *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *new_place, lumo_tarn_dp_wexa_info *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_is_valid_cr(mirk_handle *h, lumo_tarn_dp_wexa_info *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_wexa_info *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_len_cr(mirk_handle *h, lumo_tarn_dp_wexa_info *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_wexa_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_wexa_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_wexa_info *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_wexa_info *source,
    lumo_tarn_dp_wexa_info **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_wexa_info *lumo_tarn_dp_wexa_info_clone_cr(mirk_handle *h,
    lumo_tarn_dp_wexa_info *source);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_copy_cr(mirk_handle *h, lumo_tarn_dp_wexa_info *source,
    lumo_tarn_dp_wexa_info *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_wexa_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_print_cr(mirk_handle *h, lumo_tarn_dp_wexa_info *instance,
    char *buffer, int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_wexa_info *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_toxml_cr(mirk_handle *h, lumo_tarn_dp_wexa_info *instance,
    char *buffer, int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_wexa_info *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_wexa_info_compare(const lumo_tarn_dp_wexa_info *a,
    const lumo_tarn_dp_wexa_info *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_hash(const lumo_tarn_dp_wexa_info *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *instance, void *word);

/* flags: flags of the wexa entry */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_wexa_info_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_wexa_info_flags_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_flags_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_wexa_info *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_flags_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_wexa_info_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_wexa_info_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_wexa_info *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
