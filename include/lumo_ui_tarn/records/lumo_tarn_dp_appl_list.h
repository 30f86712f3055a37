/* lumo_tarn_dp_appl_list.h - counted list of application entries.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_APPL_LIST_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_APPL_LIST_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_appl_list: counted list of application entries.
 *
 *   num_appls  uint32_t count       elements in appl_list
 *   appl_list  lumo_tarn_dp_appl[]  application entries
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_appl_list lumo_tarn_dp_appl_list;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_appl_list_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_appl_list *lumo_tarn_dp_appl_list_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_appl_list *lumo_tarn_dp_appl_list_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_appl_list *lumo_tarn_dp_appl_list_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_list *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_appl_list_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_list *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_destroy_cr(mirk_handle *h, lumo_tarn_dp_appl_list *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_appl_list *lumo_tarn_dp_appl_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_list *object,
    uint32_t *num_appls, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_list *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_list *destination,
    lumo_tarn_dp_appl_list *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *new_place, lumo_tarn_dp_appl_list *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_is_valid_cr(mirk_handle *h, lumo_tarn_dp_appl_list *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_list *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_len_cr(mirk_handle *h, lumo_tarn_dp_appl_list *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_list *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_list *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_list *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_list *source,
    lumo_tarn_dp_appl_list **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_appl_list *lumo_tarn_dp_appl_list_clone_cr(mirk_handle *h,
    lumo_tarn_dp_appl_list *source);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_copy_cr(mirk_handle *h, lumo_tarn_dp_appl_list *source,
    lumo_tarn_dp_appl_list *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_appl_list *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_print_cr(mirk_handle *h, lumo_tarn_dp_appl_list *instance,
    char *buffer, int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_appl_list *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_toxml_cr(mirk_handle *h, lumo_tarn_dp_appl_list *instance,
    char *buffer, int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_appl_list *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_appl_list_compare(const lumo_tarn_dp_appl_list *a,
    const lumo_tarn_dp_appl_list *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_hash(const lumo_tarn_dp_appl_list *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *instance, void *word);

/* num_appls: elements in appl_list */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_appl_list_num_appls_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_num_appls_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t *err);

/* appl_list: application entries */
LUMO_UI_TARN_API lumo_tarn_dp_appl *lumo_tarn_dp_appl_list_appl_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t index, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_appl_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t index, lumo_tarn_dp_appl *value, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_list_appl_list_set_cr(mirk_handle *h, lumo_tarn_dp_appl_list *object,
    uint32_t index, lumo_tarn_dp_appl *value, uint32_t copy_mode);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_list_appl_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t index, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_appl_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t index, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_list_appl_list_state_flag_whole_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_appl_list_state_flag_whole_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_appl_list_state_flag_get_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, uint8_t **out, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_list_appl_list_state_flag_set_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_list *object, const uint8_t *source, uint32_t length, uint32_t *err);

LUMO_UI_TARN_END

#endif
