/* lumo_tarn_cl_appl_data.h - applications of the client.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_CL_APPL_DATA_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_CL_APPL_DATA_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_cl_kesh_appl.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_cl_appl_data: applications of the client.
 *
 *   show_header     boolean                   show: print the header
 *   num_kesh_appls  uint32_t count            elements in kesh_appl
 *   kesh_appl       lumo_tarn_cl_kesh_appl[]  applications
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_cl_appl_data lumo_tarn_cl_appl_data;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_cl_appl_data_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_cl_appl_data *lumo_tarn_cl_appl_data_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_cl_appl_data *lumo_tarn_cl_appl_data_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_cl_appl_data *lumo_tarn_cl_appl_data_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_appl_data *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_cl_appl_data_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_appl_data *object);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_destroy_cr(mirk_handle *h, lumo_tarn_cl_appl_data *object);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_cl_appl_data *lumo_tarn_cl_appl_data_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_appl_data *object,
    uint8_t *show_header, uint32_t *num_kesh_appls, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_appl_data *object,
    uint8_t show_header, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_appl_data *destination,
    lumo_tarn_cl_appl_data *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *new_place, lumo_tarn_cl_appl_data *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_is_valid_cr(mirk_handle *h, lumo_tarn_cl_appl_data *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_appl_data *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_len_cr(mirk_handle *h, lumo_tarn_cl_appl_data *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_appl_data *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_appl_data *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_appl_data *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_appl_data *source,
    lumo_tarn_cl_appl_data **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_cl_appl_data *lumo_tarn_cl_appl_data_clone_cr(mirk_handle *h,
    lumo_tarn_cl_appl_data *source);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_copy_cr(mirk_handle *h, lumo_tarn_cl_appl_data *source,
    lumo_tarn_cl_appl_data *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_cl_appl_data *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_print_cr(mirk_handle *h, lumo_tarn_cl_appl_data *instance,
    char *buffer, int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_cl_appl_data *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_toxml_cr(mirk_handle *h, lumo_tarn_cl_appl_data *instance,
    char *buffer, int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_cl_appl_data *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_cl_appl_data_compare(const lumo_tarn_cl_appl_data *a,
    const lumo_tarn_cl_appl_data *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_hash(const lumo_tarn_cl_appl_data *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *instance, void *word);

/* show_header: show: print the header */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_cl_appl_data_show_header_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_appl_data_show_header_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_show_header_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_show_header_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_appl_data_show_header_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_show_header_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint8_t value, uint32_t *err);

/* num_kesh_appls: elements in kesh_appl */
LUMO_UI_TARN_API uint32_t *lumo_tarn_cl_appl_data_num_kesh_appls_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_num_kesh_appls_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t *err);

/* kesh_appl: applications */
LUMO_UI_TARN_API lumo_tarn_cl_kesh_appl *lumo_tarn_cl_appl_data_kesh_appl_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t index, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_kesh_appl_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t index, lumo_tarn_cl_kesh_appl *value, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_appl_data_kesh_appl_set_cr(mirk_handle *h, lumo_tarn_cl_appl_data *object,
    uint32_t index, lumo_tarn_cl_kesh_appl *value, uint32_t copy_mode);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_appl_data_kesh_appl_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t index, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_kesh_appl_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t index, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_appl_data_kesh_appl_state_flag_whole_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_kesh_appl_state_flag_whole_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_kesh_appl_state_flag_get_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, uint8_t **out, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_appl_data_kesh_appl_state_flag_set_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_appl_data *object, const uint8_t *source, uint32_t length, uint32_t *err);

LUMO_UI_TARN_END

#endif
