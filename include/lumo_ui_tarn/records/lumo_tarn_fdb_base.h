/* lumo_tarn_fdb_base.h - versions and lengths of the header and the footer of the fdb.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_FDB_BASE_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_FDB_BASE_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_fdb_base: versions and lengths of the header and the footer of the fdb.
 *
 *   hdr_ver    uint8_t   version of the header
 *   hdr_len    uint8_t   length of the header
 *   hdr_flags  uint16_t  header flags
 *   ftr_ver    uint16_t  version of the footer
 *   ftr_len    uint16_t  length of the footer
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_fdb_base lumo_tarn_fdb_base;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_fdb_base_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_fdb_base *lumo_tarn_fdb_base_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_fdb_base *lumo_tarn_fdb_base_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_fdb_base *lumo_tarn_fdb_base_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_fdb_base_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_destroy_cr(mirk_handle *h, lumo_tarn_fdb_base *object);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_destroy_internal(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_fdb_base *lumo_tarn_fdb_base_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint8_t *hdr_ver, uint8_t *hdr_len, uint16_t *hdr_flags, uint16_t *ftr_ver, uint16_t *ftr_len, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint8_t hdr_ver, uint8_t hdr_len, uint16_t hdr_flags, uint16_t ftr_ver, uint16_t ftr_len, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *destination,
    lumo_tarn_fdb_base *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *new_place, lumo_tarn_fdb_base *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_is_valid_cr(mirk_handle *h, lumo_tarn_fdb_base *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_get_oid_count(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_len_cr(mirk_handle *h, lumo_tarn_fdb_base *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_fdb_base *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_fdb_base *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_fdb_base *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_fdb_base_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *source,
    lumo_tarn_fdb_base **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_fdb_base *lumo_tarn_fdb_base_clone_cr(mirk_handle *h, lumo_tarn_fdb_base *source);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_copy_cr(mirk_handle *h, lumo_tarn_fdb_base *source,
    lumo_tarn_fdb_base *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_fdb_base *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_print_cr(mirk_handle *h, lumo_tarn_fdb_base *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_fdb_base *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_toxml_cr(mirk_handle *h, lumo_tarn_fdb_base *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_fdb_base *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_fdb_base_compare(const lumo_tarn_fdb_base *a, const lumo_tarn_fdb_base *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_hash(const lumo_tarn_fdb_base *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_fdb_base_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *instance, void *word);

/* hdr_ver: version of the header */
LUMO_UI_TARN_API uint8_t *lumo_tarn_fdb_base_hdr_ver_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_fdb_base_hdr_ver_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_hdr_ver_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_hdr_ver_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_fdb_base_hdr_ver_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_hdr_ver_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint8_t value, uint32_t *err);

/* hdr_len: length of the header */
LUMO_UI_TARN_API uint8_t *lumo_tarn_fdb_base_hdr_len_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_fdb_base_hdr_len_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_hdr_len_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_hdr_len_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_fdb_base_hdr_len_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_hdr_len_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint8_t value, uint32_t *err);

/* hdr_flags: header flags */
LUMO_UI_TARN_API uint16_t *lumo_tarn_fdb_base_hdr_flags_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_fdb_base_hdr_flags_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_hdr_flags_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_hdr_flags_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_fdb_base_hdr_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_hdr_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint8_t value, uint32_t *err);

/* ftr_ver: version of the footer */
LUMO_UI_TARN_API uint16_t *lumo_tarn_fdb_base_ftr_ver_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_fdb_base_ftr_ver_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_ftr_ver_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_ftr_ver_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_fdb_base_ftr_ver_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_ftr_ver_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint8_t value, uint32_t *err);

/* ftr_len: length of the footer */
LUMO_UI_TARN_API uint16_t *lumo_tarn_fdb_base_ftr_len_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_fdb_base_ftr_len_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_ftr_len_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_ftr_len_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_fdb_base *object,
    uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_fdb_base_ftr_len_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_fdb_base_ftr_len_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_fdb_base *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
