/* lumo_tarn_dp_debug_setting.h - debug switches of one processor's data plane.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_DEBUG_SETTING_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_DEBUG_SETTING_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_debug_setting: debug switches of one processor's data plane.
 *
 *   lumo_num             uint8_t   number of the lumo processor that this entry describes
 *   mp_cache_enabled     uint32_t  debug switch of the data plane's mp (prefix) cache
 *   tt_cache_enabled     uint32_t  debug switch of the data plane's tt (traffic table) cache
 *   flow_cache_enabled   uint32_t  debug switch of the data plane's flow cache
 *   ager_enabled         uint32_t  debug switch of the data plane's ager
 *   exporter_enabled     uint32_t  debug switch of the exporter as a whole
 *   proxy_enabled        uint32_t  debug switch of the proxy
 *   exporter_tt_enabled  uint32_t  debug switch of the exporter for tt data
 *   exporter_mp_enabled  uint32_t  debug switch of the exporter for mp data
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_debug_setting lumo_tarn_dp_debug_setting;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_debug_setting_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting *lumo_tarn_dp_debug_setting_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting *lumo_tarn_dp_debug_setting_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting *lumo_tarn_dp_debug_setting_create_internal(mirk_handle *h,
    uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_initialize(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags,
    void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_debug_setting_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_destroy(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_destroy_cr(mirk_handle *h, lumo_tarn_dp_debug_setting *object);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting *lumo_tarn_dp_debug_setting_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_get_all(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t *lumo_num, uint32_t *mp_cache_enabled, uint32_t *tt_cache_enabled,
    uint32_t *flow_cache_enabled, uint32_t *ager_enabled, uint32_t *exporter_enabled, uint32_t *proxy_enabled,
    uint32_t *exporter_tt_enabled, uint32_t *exporter_mp_enabled, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_set_all(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t lumo_num, uint32_t mp_cache_enabled, uint32_t tt_cache_enabled,
    uint32_t flow_cache_enabled, uint32_t ager_enabled, uint32_t exporter_enabled, uint32_t proxy_enabled,
    uint32_t exporter_tt_enabled, uint32_t exporter_mp_enabled, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *destination, lumo_tarn_dp_debug_setting *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *new_place, lumo_tarn_dp_debug_setting *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_is_valid_cr(mirk_handle *h, lumo_tarn_dp_debug_setting *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_len(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_len_cr(mirk_handle *h, lumo_tarn_dp_debug_setting *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_debug_setting *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_debug_setting *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_debug_setting *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_clone(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *source, lumo_tarn_dp_debug_setting **result, void *buffer, uint32_t size,
    uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_debug_setting *lumo_tarn_dp_debug_setting_clone_cr(mirk_handle *h,
    lumo_tarn_dp_debug_setting *source);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_copy_cr(mirk_handle *h, lumo_tarn_dp_debug_setting *source,
    lumo_tarn_dp_debug_setting *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_print(mirk_handle *h, uint32_t ctx_id, char *buffer,
    uint32_t indent, const char *name, lumo_tarn_dp_debug_setting *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_print_cr(mirk_handle *h, lumo_tarn_dp_debug_setting *instance,
    char *buffer, int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name,
    char *buffer, lumo_tarn_dp_debug_setting *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_toxml_cr(mirk_handle *h, lumo_tarn_dp_debug_setting *instance,
    char *buffer, int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path,
    void *document, lumo_tarn_dp_debug_setting *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_debug_setting_compare(const lumo_tarn_dp_debug_setting *a,
    const lumo_tarn_dp_debug_setting *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_hash(const lumo_tarn_dp_debug_setting *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *instance, void *word);

/* lumo_num: number of the lumo processor that this entry describes */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_debug_setting_lumo_num_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_debug_setting_lumo_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_lumo_num_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_lumo_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_debug_setting_lumo_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_lumo_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value, uint32_t *err);

/* mp_cache_enabled: debug switch of the data plane's mp (prefix) cache */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_debug_setting_mp_cache_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_mp_cache_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_mp_cache_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_mp_cache_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_debug_setting_mp_cache_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_mp_cache_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value, uint32_t *err);

/* tt_cache_enabled: debug switch of the data plane's tt (traffic table) cache */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_debug_setting_tt_cache_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_tt_cache_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_tt_cache_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_tt_cache_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_debug_setting_tt_cache_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_tt_cache_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value, uint32_t *err);

/* flow_cache_enabled: debug switch of the data plane's flow cache */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_debug_setting_flow_cache_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_flow_cache_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_flow_cache_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_flow_cache_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_debug_setting_flow_cache_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_flow_cache_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value, uint32_t *err);

/* ager_enabled: debug switch of the data plane's ager */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_debug_setting_ager_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_ager_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_ager_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_ager_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_debug_setting_ager_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_ager_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value, uint32_t *err);

/* exporter_enabled: debug switch of the exporter as a whole */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_debug_setting_exporter_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_exporter_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_exporter_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_exporter_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_debug_setting_exporter_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_exporter_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value, uint32_t *err);

/* proxy_enabled: debug switch of the proxy */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_debug_setting_proxy_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_proxy_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_proxy_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_proxy_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_debug_setting_proxy_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_proxy_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value, uint32_t *err);

/* exporter_tt_enabled: debug switch of the exporter for tt data */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_debug_setting_exporter_tt_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_exporter_tt_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_exporter_tt_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_exporter_tt_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_debug_setting_exporter_tt_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_exporter_tt_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value, uint32_t *err);

/* exporter_mp_enabled: debug switch of the exporter for mp data */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_debug_setting_exporter_mp_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_debug_setting_exporter_mp_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_exporter_mp_enabled_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_exporter_mp_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_debug_setting_exporter_mp_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_debug_setting_exporter_mp_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_debug_setting *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
