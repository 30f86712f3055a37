/* lumo_tarn_cl_kesh_appl.h - one application.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_CL_KESH_APPL_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_CL_KESH_APPL_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_cl_kesh_appl: one application.
 *
 *   proto_name_len      uint16_t length  length of proto_name in bytes
 *   proto_name          string           name of the protocol
 *   sub_proto_name_len  uint16_t length  length of sub_proto_name in bytes
 *   sub_proto_name      string           name of the sub-protocol
 *   protocol_id         uint16_t         identifier of the protocol
 *   tarn_id             uint16_t         identifier of the application within the tarn feature
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_cl_kesh_appl lumo_tarn_cl_kesh_appl;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_cl_kesh_appl_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_cl_kesh_appl *lumo_tarn_cl_kesh_appl_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_cl_kesh_appl *lumo_tarn_cl_kesh_appl_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_cl_kesh_appl *lumo_tarn_cl_kesh_appl_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_kesh_appl *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_cl_kesh_appl_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_kesh_appl *object);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_destroy_cr(mirk_handle *h, lumo_tarn_cl_kesh_appl *object);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_cl_kesh_appl *lumo_tarn_cl_kesh_appl_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_kesh_appl *object,
    uint16_t *proto_name_len, uint16_t *sub_proto_name_len, uint16_t *protocol_id, uint16_t *tarn_id, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_kesh_appl *object,
    uint16_t protocol_id, uint16_t tarn_id, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_kesh_appl *destination,
    lumo_tarn_cl_kesh_appl *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *new_place, lumo_tarn_cl_kesh_appl *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_is_valid_cr(mirk_handle *h, lumo_tarn_cl_kesh_appl *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_kesh_appl *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_len_cr(mirk_handle *h, lumo_tarn_cl_kesh_appl *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_kesh_appl *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_kesh_appl *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_kesh_appl *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_kesh_appl *source,
    lumo_tarn_cl_kesh_appl **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_cl_kesh_appl *lumo_tarn_cl_kesh_appl_clone_cr(mirk_handle *h,
    lumo_tarn_cl_kesh_appl *source);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_copy_cr(mirk_handle *h, lumo_tarn_cl_kesh_appl *source,
    lumo_tarn_cl_kesh_appl *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_cl_kesh_appl *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_print_cr(mirk_handle *h, lumo_tarn_cl_kesh_appl *instance,
    char *buffer, int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_cl_kesh_appl *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_toxml_cr(mirk_handle *h, lumo_tarn_cl_kesh_appl *instance,
    char *buffer, int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_cl_kesh_appl *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_cl_kesh_appl_compare(const lumo_tarn_cl_kesh_appl *a,
    const lumo_tarn_cl_kesh_appl *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_hash(const lumo_tarn_cl_kesh_appl *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *instance, void *word);

/* proto_name_len: length of proto_name in bytes */
LUMO_UI_TARN_API uint16_t *lumo_tarn_cl_kesh_appl_proto_name_len_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_cl_kesh_appl_proto_name_len_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);

/* proto_name: name of the protocol */
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_proto_name_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, char *destination, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_proto_name_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, const char *text, uint32_t length, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_proto_name_set_cr(mirk_handle *h, lumo_tarn_cl_kesh_appl *object,
    const char *text, uint32_t length);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_kesh_appl_proto_name_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_proto_name_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint8_t value, uint32_t *err);

/* sub_proto_name_len: length of sub_proto_name in bytes */
LUMO_UI_TARN_API uint16_t *lumo_tarn_cl_kesh_appl_sub_proto_name_len_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_cl_kesh_appl_sub_proto_name_len_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);

/* sub_proto_name: name of the sub-protocol */
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_sub_proto_name_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, char *destination, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_sub_proto_name_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, const char *text, uint32_t length, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_kesh_appl_sub_proto_name_set_cr(mirk_handle *h, lumo_tarn_cl_kesh_appl *object,
    const char *text, uint32_t length);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_kesh_appl_sub_proto_name_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_sub_proto_name_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint8_t value, uint32_t *err);

/* protocol_id: identifier of the protocol */
LUMO_UI_TARN_API uint16_t *lumo_tarn_cl_kesh_appl_protocol_id_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_cl_kesh_appl_protocol_id_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_protocol_id_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_protocol_id_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_kesh_appl_protocol_id_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_protocol_id_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint8_t value, uint32_t *err);

/* tarn_id: identifier of the application within the tarn feature */
LUMO_UI_TARN_API uint16_t *lumo_tarn_cl_kesh_appl_tarn_id_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_cl_kesh_appl_tarn_id_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_tarn_id_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_tarn_id_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_kesh_appl_tarn_id_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_cl_kesh_appl_tarn_id_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_kesh_appl *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
