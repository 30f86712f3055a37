/* lumo_tarn_dp_appl.h - one application entry in the data plane.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_APPL_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_APPL_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_appl: one application entry in the data plane.
 *
 *   exmem_info    lumo_tarn_exmem_info  where the entry lies in memory
 *   type          uint8_t               type of the application entry
 *   id            uint16_t              identifier of the application entry
 *   tarn_kesh_id  uint16_t              tarn feature's identifier of the kesh application
 *   next_ptr      uint64_t              link to the next entry in the data plane
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_appl lumo_tarn_dp_appl;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_appl_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_appl *lumo_tarn_dp_appl_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_appl *lumo_tarn_dp_appl_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_appl *lumo_tarn_dp_appl_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_appl_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_destroy_cr(mirk_handle *h, lumo_tarn_dp_appl *object);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_destroy_internal(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_appl *lumo_tarn_dp_appl_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint8_t *type, uint16_t *id, uint16_t *tarn_kesh_id, uint64_t *next_ptr, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint8_t type, uint16_t id, uint16_t tarn_kesh_id, uint64_t next_ptr, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *destination,
    lumo_tarn_dp_appl *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *new_place, lumo_tarn_dp_appl *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_is_valid_cr(mirk_handle *h, lumo_tarn_dp_appl *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_get_oid_count(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_len_cr(mirk_handle *h, lumo_tarn_dp_appl *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *source,
    lumo_tarn_dp_appl **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_appl *lumo_tarn_dp_appl_clone_cr(mirk_handle *h, lumo_tarn_dp_appl *source);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_copy_cr(mirk_handle *h, lumo_tarn_dp_appl *source,
    lumo_tarn_dp_appl *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_appl *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_print_cr(mirk_handle *h, lumo_tarn_dp_appl *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_appl *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_toxml_cr(mirk_handle *h, lumo_tarn_dp_appl *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_appl *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_appl_compare(const lumo_tarn_dp_appl *a, const lumo_tarn_dp_appl *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_hash(const lumo_tarn_dp_appl *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *instance, void *word);

/* exmem_info: where the entry lies in memory */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_dp_appl_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_exmem_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_exmem_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_exmem_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint8_t value, uint32_t *err);

/* type: type of the application entry */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_appl_type_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_type_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_type_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_type_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint8_t value, uint32_t *err);

/* id: identifier of the application entry */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_id_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_id_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_id_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_id_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_id_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint8_t value, uint32_t *err);

/* tarn_kesh_id: tarn feature's identifier of the kesh application */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_tarn_kesh_id_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_tarn_kesh_id_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_tarn_kesh_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_tarn_kesh_id_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_tarn_kesh_id_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_tarn_kesh_id_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint8_t value, uint32_t *err);

/* next_ptr: link to the next entry in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_appl_next_ptr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_appl_next_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_next_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_next_ptr_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl *object,
    uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_next_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_appl_next_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
