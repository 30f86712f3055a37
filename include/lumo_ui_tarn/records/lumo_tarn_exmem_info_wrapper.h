/* lumo_tarn_exmem_info_wrapper.h - one block of a list of blocks that grows.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_EXMEM_INFO_WRAPPER_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_EXMEM_INFO_WRAPPER_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_exmem_info_wrapper: one block of a list of blocks that grows.
 *
 *   exmem  lumo_tarn_exmem_info  wrapped block description
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_exmem_info_wrapper lumo_tarn_exmem_info_wrapper;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_exmem_info_wrapper_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_exmem_info_wrapper *lumo_tarn_exmem_info_wrapper_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_exmem_info_wrapper *lumo_tarn_exmem_info_wrapper_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_exmem_info_wrapper *lumo_tarn_exmem_info_wrapper_create_internal(mirk_handle *h,
    uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_initialize(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags,
    void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_exmem_info_wrapper_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_destroy(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_destroy_cr(mirk_handle *h, lumo_tarn_exmem_info_wrapper *object);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_exmem_info_wrapper *lumo_tarn_exmem_info_wrapper_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_get_all(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_set_all(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *destination, lumo_tarn_exmem_info_wrapper *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *new_place, lumo_tarn_exmem_info_wrapper *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_is_valid_cr(mirk_handle *h, lumo_tarn_exmem_info_wrapper *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_len(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_len_cr(mirk_handle *h, lumo_tarn_exmem_info_wrapper *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_exmem_info_wrapper *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_exmem_info_wrapper *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_exmem_info_wrapper *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_clone(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *source, lumo_tarn_exmem_info_wrapper **result, void *buffer, uint32_t size,
    uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_exmem_info_wrapper *lumo_tarn_exmem_info_wrapper_clone_cr(mirk_handle *h,
    lumo_tarn_exmem_info_wrapper *source);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_copy_cr(mirk_handle *h, lumo_tarn_exmem_info_wrapper *source,
    lumo_tarn_exmem_info_wrapper *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_print(mirk_handle *h, uint32_t ctx_id, char *buffer,
    uint32_t indent, const char *name, lumo_tarn_exmem_info_wrapper *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_print_cr(mirk_handle *h, lumo_tarn_exmem_info_wrapper *instance,
    char *buffer, int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name,
    char *buffer, lumo_tarn_exmem_info_wrapper *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_toxml_cr(mirk_handle *h, lumo_tarn_exmem_info_wrapper *instance,
    char *buffer, int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path,
    void *document, lumo_tarn_exmem_info_wrapper *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_exmem_info_wrapper_compare(const lumo_tarn_exmem_info_wrapper *a,
    const lumo_tarn_exmem_info_wrapper *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_hash(const lumo_tarn_exmem_info_wrapper *instance,
    uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_wrapper_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *instance, void *word);

/* exmem: wrapped block description */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_exmem_info_wrapper_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_exmem_info_wrapper_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_wrapper_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info_wrapper *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
