/* lumo_tarn_exmem_info.h - one block of external memory, under its three addresses, with its size.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_EXMEM_INFO_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_EXMEM_INFO_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_exmem_info: one block of external memory, under its three addresses, with its size.
 *
 *   cl_addr     uint64_t  block's address on the client side
 *   exmem_addr  uint64_t  block's address in external memory
 *   ppe_addr    uint64_t  block's address as the ppe side uses it
 *   size        uint32_t  size of the block
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_exmem_info lumo_tarn_exmem_info;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_exmem_info_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_exmem_info_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_exmem_info_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_exmem_info_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_exmem_info_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_destroy_cr(mirk_handle *h, lumo_tarn_exmem_info *object);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    uint64_t *cl_addr, uint64_t *exmem_addr, uint64_t *ppe_addr, uint32_t *size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    uint64_t cl_addr, uint64_t exmem_addr, uint64_t ppe_addr, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *destination,
    lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *new_place, lumo_tarn_exmem_info *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_is_valid_cr(mirk_handle *h, lumo_tarn_exmem_info *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_len_cr(mirk_handle *h, lumo_tarn_exmem_info *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_exmem_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_exmem_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_exmem_info *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_exmem_info_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *source,
    lumo_tarn_exmem_info **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_exmem_info_clone_cr(mirk_handle *h, lumo_tarn_exmem_info *source);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_copy_cr(mirk_handle *h, lumo_tarn_exmem_info *source,
    lumo_tarn_exmem_info *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_exmem_info *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_print_cr(mirk_handle *h, lumo_tarn_exmem_info *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_exmem_info *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_toxml_cr(mirk_handle *h, lumo_tarn_exmem_info *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_exmem_info *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_exmem_info_compare(const lumo_tarn_exmem_info *a, const lumo_tarn_exmem_info *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_hash(const lumo_tarn_exmem_info *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *instance, void *word);

/* cl_addr: block's address on the client side */
LUMO_UI_TARN_API uint64_t *lumo_tarn_exmem_info_cl_addr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_exmem_info_cl_addr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_cl_addr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_cl_addr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_exmem_info_cl_addr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_cl_addr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint8_t value, uint32_t *err);

/* exmem_addr: block's address in external memory */
LUMO_UI_TARN_API uint64_t *lumo_tarn_exmem_info_exmem_addr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_exmem_info_exmem_addr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_exmem_addr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_exmem_addr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_exmem_info_exmem_addr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_exmem_addr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint8_t value, uint32_t *err);

/* ppe_addr: block's address as the ppe side uses it */
LUMO_UI_TARN_API uint64_t *lumo_tarn_exmem_info_ppe_addr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_exmem_info_ppe_addr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_ppe_addr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_ppe_addr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_exmem_info_ppe_addr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_ppe_addr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint8_t value, uint32_t *err);

/* size: size of the block */
LUMO_UI_TARN_API uint32_t *lumo_tarn_exmem_info_size_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_exmem_info_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_size_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_size_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_exmem_info *object,
    uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_exmem_info_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_exmem_info_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_exmem_info *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
