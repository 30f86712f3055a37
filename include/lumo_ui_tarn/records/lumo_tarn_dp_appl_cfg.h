/* lumo_tarn_dp_appl_cfg.h - signatures of one processor.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_APPL_CFG_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_APPL_CFG_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl_sig.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_appl_cfg: signatures of one processor.
 *
 *   show_header      boolean                  show: print the header
 *   lumo_num         uint8_t                  number of the lumo processor
 *   hash_exmem_info  lumo_tarn_exmem_info     block of the processor's signature hash
 *   num_sigs         uint32_t count           elements in sig_list
 *   sig_list         lumo_tarn_dp_appl_sig[]  signatures
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_appl_cfg lumo_tarn_dp_appl_cfg;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_appl_cfg_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_appl_cfg *lumo_tarn_dp_appl_cfg_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_appl_cfg *lumo_tarn_dp_appl_cfg_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_appl_cfg *lumo_tarn_dp_appl_cfg_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_cfg *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_appl_cfg_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_cfg *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_destroy_cr(mirk_handle *h, lumo_tarn_dp_appl_cfg *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_appl_cfg *lumo_tarn_dp_appl_cfg_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_cfg *object,
    uint8_t *show_header, uint8_t *lumo_num, uint32_t *num_sigs, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_cfg *object,
    uint8_t show_header, uint8_t lumo_num, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_cfg *destination,
    lumo_tarn_dp_appl_cfg *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *new_place, lumo_tarn_dp_appl_cfg *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_is_valid_cr(mirk_handle *h, lumo_tarn_dp_appl_cfg *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_cfg *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_len_cr(mirk_handle *h, lumo_tarn_dp_appl_cfg *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_cfg *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_cfg *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_cfg *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_cfg *source,
    lumo_tarn_dp_appl_cfg **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_appl_cfg *lumo_tarn_dp_appl_cfg_clone_cr(mirk_handle *h, lumo_tarn_dp_appl_cfg *source);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_copy_cr(mirk_handle *h, lumo_tarn_dp_appl_cfg *source,
    lumo_tarn_dp_appl_cfg *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_appl_cfg *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_print_cr(mirk_handle *h, lumo_tarn_dp_appl_cfg *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_appl_cfg *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_toxml_cr(mirk_handle *h, lumo_tarn_dp_appl_cfg *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_appl_cfg *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_appl_cfg_compare(const lumo_tarn_dp_appl_cfg *a, const lumo_tarn_dp_appl_cfg *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_hash(const lumo_tarn_dp_appl_cfg *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *instance, void *word);

/* show_header: show: print the header */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_appl_cfg_show_header_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_cfg_show_header_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_show_header_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_show_header_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_cfg_show_header_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_show_header_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint8_t value, uint32_t *err);

/* lumo_num: number of the lumo processor */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_appl_cfg_lumo_num_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_cfg_lumo_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_lumo_num_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_cfg *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_lumo_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_cfg_lumo_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_lumo_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint8_t value, uint32_t *err);

/* hash_exmem_info: block of the processor's signature hash */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_dp_appl_cfg_hash_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_hash_exmem_info_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_cfg_hash_exmem_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_hash_exmem_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint8_t value, uint32_t *err);

/* num_sigs: elements in sig_list */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_appl_cfg_num_sigs_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_num_sigs_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);

/* sig_list: signatures */
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_cfg_sig_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t index, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_sig_list_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_cfg *object,
    uint32_t index, lumo_tarn_dp_appl_sig *value, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_cfg_sig_list_set_cr(mirk_handle *h, lumo_tarn_dp_appl_cfg *object,
    uint32_t index, lumo_tarn_dp_appl_sig *value, uint32_t copy_mode);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_cfg_sig_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t index, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_sig_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t index, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_cfg_sig_list_state_flag_whole_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_sig_list_state_flag_whole_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_sig_list_state_flag_get_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, uint8_t **out, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_cfg_sig_list_state_flag_set_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_cfg *object, const uint8_t *source, uint32_t length, uint32_t *err);

LUMO_UI_TARN_END

#endif
