/* lumo_tarn_cl_cfg_data.h - state of the client side as a whole.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_CL_CFG_DATA_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_CL_CFG_DATA_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_global_info.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_cl_cfg_data: state of the client side as a whole.
 *
 *   display_all                     boolean                show: everything
 *   display_smc                     boolean                show: the smc part
 *   global_info                     lumo_tarn_global_info  global record
 *   tarn_smc_queue_initialized      uint32_t               flag word: the smc queue is initialised
 *   tarn_smc_queue_size             uint64_t               size of the smc queue
 *   tarn_smc_blocked_flags          uint32_t               blocked flags of the smc queue
 *   tarn_smc_queue_size_warn_count  uint64_t               number of warnings on the queue's size
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_cl_cfg_data lumo_tarn_cl_cfg_data;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_cl_cfg_data_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_data_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_data_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_data_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_cl_cfg_data_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *object);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_destroy_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *object);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_data_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *object,
    uint8_t *display_all, uint8_t *display_smc, uint32_t *tarn_smc_queue_initialized, uint64_t *tarn_smc_queue_size,
    uint32_t *tarn_smc_blocked_flags, uint64_t *tarn_smc_queue_size_warn_count, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *object,
    uint8_t display_all, uint8_t display_smc, uint32_t tarn_smc_queue_initialized, uint64_t tarn_smc_queue_size,
    uint32_t tarn_smc_blocked_flags, uint64_t tarn_smc_queue_size_warn_count, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *destination,
    lumo_tarn_cl_cfg_data *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *new_place, lumo_tarn_cl_cfg_data *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_is_valid_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_len_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_cfg_data *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_cfg_data *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_cfg_data *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *source,
    lumo_tarn_cl_cfg_data **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_data_clone_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *source);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_copy_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *source,
    lumo_tarn_cl_cfg_data *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_cl_cfg_data *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_print_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_cl_cfg_data *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_toxml_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_cl_cfg_data *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_cl_cfg_data_compare(const lumo_tarn_cl_cfg_data *a, const lumo_tarn_cl_cfg_data *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_hash(const lumo_tarn_cl_cfg_data *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *instance, void *word);

/* display_all: show: everything */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_cl_cfg_data_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_all_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);

/* display_smc: show: the smc part */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_cl_cfg_data_display_smc_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_display_smc_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_smc_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_smc_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_display_smc_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_smc_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);

/* global_info: global record */
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_cl_cfg_data_global_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_global_info_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, lumo_tarn_global_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_global_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_global_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);

/* tarn_smc_queue_initialized: flag word: the smc queue is initialised */
LUMO_UI_TARN_API uint32_t *lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_state_flag_get(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);

/* tarn_smc_queue_size: size of the smc queue */
LUMO_UI_TARN_API uint64_t *lumo_tarn_cl_cfg_data_tarn_smc_queue_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_cl_cfg_data_tarn_smc_queue_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_tarn_smc_queue_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);

/* tarn_smc_blocked_flags: blocked flags of the smc queue */
LUMO_UI_TARN_API uint32_t *lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);

/* tarn_smc_queue_size_warn_count: number of warnings on the queue's size */
LUMO_UI_TARN_API uint64_t *lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_get_value(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_state_flag_get(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_cl_cfg_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_state_flag_set(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
