/* lumo_tarn_debug_setting.h - four debug levels of one component.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DEBUG_SETTING_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DEBUG_SETTING_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_debug_setting: four debug levels of one component.
 *
 *   info_enabled   uint32_t  switch of information-level debug output
 *   trace_enabled  uint32_t  switch of trace-level debug output
 *   warn_enabled   uint32_t  switch of warning-level debug output
 *   error_enabled  uint32_t  switch of error-level debug output
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_debug_setting lumo_tarn_debug_setting;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_debug_setting_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_debug_setting *lumo_tarn_debug_setting_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_debug_setting *lumo_tarn_debug_setting_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_debug_setting *lumo_tarn_debug_setting_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_initialize(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags,
    void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_debug_setting_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_debug_setting *object);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_destroy_cr(mirk_handle *h, lumo_tarn_debug_setting *object);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_debug_setting *lumo_tarn_debug_setting_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_debug_setting *object,
    uint32_t *info_enabled, uint32_t *trace_enabled, uint32_t *warn_enabled, uint32_t *error_enabled, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_debug_setting *object,
    uint32_t info_enabled, uint32_t trace_enabled, uint32_t warn_enabled, uint32_t error_enabled, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_debug_setting *destination,
    lumo_tarn_debug_setting *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *new_place, lumo_tarn_debug_setting *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_is_valid_cr(mirk_handle *h, lumo_tarn_debug_setting *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_len(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_len_cr(mirk_handle *h, lumo_tarn_debug_setting *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_debug_setting *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_debug_setting *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_debug_setting *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_debug_setting_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_debug_setting *source,
    lumo_tarn_debug_setting **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_debug_setting *lumo_tarn_debug_setting_clone_cr(mirk_handle *h,
    lumo_tarn_debug_setting *source);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_copy_cr(mirk_handle *h, lumo_tarn_debug_setting *source,
    lumo_tarn_debug_setting *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_debug_setting *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_print_cr(mirk_handle *h, lumo_tarn_debug_setting *instance,
    char *buffer, int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name,
    char *buffer, lumo_tarn_debug_setting *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_toxml_cr(mirk_handle *h, lumo_tarn_debug_setting *instance,
    char *buffer, int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path,
    void *document, lumo_tarn_debug_setting *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_debug_setting_compare(const lumo_tarn_debug_setting *a,
    const lumo_tarn_debug_setting *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_hash(const lumo_tarn_debug_setting *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *instance, void *word);

/* info_enabled: switch of information-level debug output */
LUMO_UI_TARN_API uint32_t *lumo_tarn_debug_setting_info_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_info_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_info_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_info_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_debug_setting_info_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_info_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint8_t value, uint32_t *err);

/* trace_enabled: switch of trace-level debug output */
LUMO_UI_TARN_API uint32_t *lumo_tarn_debug_setting_trace_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_trace_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_trace_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_trace_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_debug_setting_trace_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_trace_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint8_t value, uint32_t *err);

/* warn_enabled: switch of warning-level debug output */
LUMO_UI_TARN_API uint32_t *lumo_tarn_debug_setting_warn_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_warn_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_warn_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_warn_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_debug_setting_warn_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_warn_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint8_t value, uint32_t *err);

/* error_enabled: switch of error-level debug output */
LUMO_UI_TARN_API uint32_t *lumo_tarn_debug_setting_error_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_debug_setting_error_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_error_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_error_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_debug_setting_error_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_debug_setting_error_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_debug_setting *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
