/* lumo_tarn_global_info.h - what holds for the whole client process.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_GLOBAL_INFO_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_GLOBAL_INFO_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_lumo_info_list.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_global_info: what holds for the whole client process.
 *
 *   display_all           boolean                   show: everything
 *   display_plat_cfg      boolean                   show: the platform configuration
 *   display_proc_ctx      boolean                   show: the process context
 *   platform_cfg_set      uint32_t                  flag word: the platform configuration has been set
 *   max_tt_cache_entries  uint32_t                  maximum number of tt cache entries
 *   max_mp_cache_entries  uint32_t                  maximum number of mp cache entries
 *   lumo_evctx_p          uint64_t                  event context of the lumo side
 *   smc_evctx_p           uint64_t                  event context of the smc side
 *   listen_chan           uint64_t                  the listening channel
 *   ha_init               uint32_t                  flag word: high availability initialised
 *   mdr                   uint32_t                  flag word named mdr
 *   num_lumos             uint8_t                   number of processors
 *   num_complexes         uint8_t                   number of complexes
 *   lumo_info_list        lumo_tarn_lumo_info_list  per-processor records
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_global_info lumo_tarn_global_info;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_global_info_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_global_info_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_global_info_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_global_info_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_global_info_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_global_info_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_global_info_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object);
LUMO_UI_TARN_API void lumo_tarn_global_info_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object);
LUMO_UI_TARN_API void lumo_tarn_global_info_destroy_cr(mirk_handle *h, lumo_tarn_global_info *object);
LUMO_UI_TARN_API void lumo_tarn_global_info_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_global_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    uint8_t *display_all, uint8_t *display_plat_cfg, uint8_t *display_proc_ctx, uint32_t *platform_cfg_set,
    uint32_t *max_tt_cache_entries, uint32_t *max_mp_cache_entries, uint64_t *lumo_evctx_p, uint64_t *smc_evctx_p,
    uint64_t *listen_chan, uint32_t *ha_init, uint32_t *mdr, uint8_t *num_lumos, uint8_t *num_complexes, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    uint8_t display_all, uint8_t display_plat_cfg, uint8_t display_proc_ctx, uint32_t platform_cfg_set,
    uint32_t max_tt_cache_entries, uint32_t max_mp_cache_entries, uint64_t lumo_evctx_p, uint64_t smc_evctx_p,
    uint64_t listen_chan, uint32_t ha_init, uint32_t mdr, uint8_t num_lumos, uint8_t num_complexes, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *destination,
    lumo_tarn_global_info *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *new_place, lumo_tarn_global_info *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_is_valid_cr(mirk_handle *h, lumo_tarn_global_info *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_len_cr(mirk_handle *h, lumo_tarn_global_info *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_global_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_global_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_global_info *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_global_info_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *source,
    lumo_tarn_global_info **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_global_info_clone_cr(mirk_handle *h, lumo_tarn_global_info *source);
LUMO_UI_TARN_API void lumo_tarn_global_info_copy_cr(mirk_handle *h, lumo_tarn_global_info *source,
    lumo_tarn_global_info *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_global_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_print_cr(mirk_handle *h, lumo_tarn_global_info *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_global_info *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_toxml_cr(mirk_handle *h, lumo_tarn_global_info *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_global_info_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_global_info *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_global_info_compare(const lumo_tarn_global_info *a, const lumo_tarn_global_info *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_hash(const lumo_tarn_global_info *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *instance, void *word);

/* display_all: show: everything */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_global_info_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_display_all_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* display_plat_cfg: show: the platform configuration */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_global_info_display_plat_cfg_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_plat_cfg_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_display_plat_cfg_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_display_plat_cfg_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_plat_cfg_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_display_plat_cfg_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* display_proc_ctx: show: the process context */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_global_info_display_proc_ctx_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_proc_ctx_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_display_proc_ctx_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_display_proc_ctx_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_proc_ctx_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_display_proc_ctx_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* platform_cfg_set: flag word: the platform configuration has been set */
LUMO_UI_TARN_API uint32_t *lumo_tarn_global_info_platform_cfg_set_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_platform_cfg_set_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_platform_cfg_set_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_platform_cfg_set_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_platform_cfg_set_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_platform_cfg_set_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* max_tt_cache_entries: maximum number of tt cache entries */
LUMO_UI_TARN_API uint32_t *lumo_tarn_global_info_max_tt_cache_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_max_tt_cache_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_max_tt_cache_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_max_tt_cache_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_max_tt_cache_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_max_tt_cache_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* max_mp_cache_entries: maximum number of mp cache entries */
LUMO_UI_TARN_API uint32_t *lumo_tarn_global_info_max_mp_cache_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_max_mp_cache_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_max_mp_cache_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_max_mp_cache_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_max_mp_cache_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_max_mp_cache_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* lumo_evctx_p: event context of the lumo side */
LUMO_UI_TARN_API uint64_t *lumo_tarn_global_info_lumo_evctx_p_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_global_info_lumo_evctx_p_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_lumo_evctx_p_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_lumo_evctx_p_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_lumo_evctx_p_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_lumo_evctx_p_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* smc_evctx_p: event context of the smc side */
LUMO_UI_TARN_API uint64_t *lumo_tarn_global_info_smc_evctx_p_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_global_info_smc_evctx_p_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_smc_evctx_p_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_smc_evctx_p_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_smc_evctx_p_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_smc_evctx_p_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* listen_chan: the listening channel */
LUMO_UI_TARN_API uint64_t *lumo_tarn_global_info_listen_chan_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_global_info_listen_chan_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_listen_chan_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_listen_chan_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_listen_chan_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_listen_chan_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* ha_init: flag word: high availability initialised */
LUMO_UI_TARN_API uint32_t *lumo_tarn_global_info_ha_init_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_ha_init_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_ha_init_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_ha_init_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_ha_init_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_ha_init_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* mdr: flag word named mdr */
LUMO_UI_TARN_API uint32_t *lumo_tarn_global_info_mdr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_mdr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_mdr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_mdr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_mdr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_mdr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* num_lumos: number of processors */
LUMO_UI_TARN_API uint8_t *lumo_tarn_global_info_num_lumos_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_num_lumos_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_num_lumos_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_num_lumos_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_num_lumos_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_num_lumos_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* num_complexes: number of complexes */
LUMO_UI_TARN_API uint8_t *lumo_tarn_global_info_num_complexes_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_num_complexes_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_num_complexes_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_num_complexes_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_num_complexes_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_num_complexes_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

/* lumo_info_list: per-processor records */
LUMO_UI_TARN_API lumo_tarn_lumo_info_list *lumo_tarn_global_info_lumo_info_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_lumo_info_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, lumo_tarn_lumo_info_list *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_lumo_info_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_global_info_lumo_info_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
