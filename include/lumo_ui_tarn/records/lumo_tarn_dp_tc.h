/* lumo_tarn_dp_tc.h - one traffic class.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_TC_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_TC_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_tc: one traffic class.
 *
 *   exmem_info     lumo_tarn_exmem_info  where the traffic class lies in memory
 *   src_prefix     address               source prefix of the class
 *   dst_prefix     address               destination prefix of the class
 *   proto          uint8_t               protocol number to match
 *   tos            uint8_t               type-of-service value to match
 *   flags          uint16_t              flags of the class, sixteen bits
 *   bit_flags      uint8_t               second, separate set of flags, eight bits
 *   src_port_min   uint16_t              low end of the source port range
 *   src_port_max   uint16_t              high end of the source port range
 *   dst_port_min   uint16_t              low end of the destination port range
 *   dst_port_max   uint16_t              high end of the destination port range
 *   src_port_opr   uint16_t              operator applied to the source port range
 *   dst_port_opr   uint16_t              operator applied to the destination port range
 *   next_ptr       uint64_t              link to the next class in the data plane
 *   appl_data_ptr  uint64_t              where the application data lies in the data plane
 *   appl           lumo_tarn_dp_appl     class's application entry
 *   id             uint32_t              identifier of the class
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_tc lumo_tarn_dp_tc;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_tc_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_tc *lumo_tarn_dp_tc_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_tc *lumo_tarn_dp_tc_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_tc *lumo_tarn_dp_tc_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_tc_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_set_instance_embedded(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_destroy_cr(mirk_handle *h, lumo_tarn_dp_tc *object);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_destroy_internal(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_tc *lumo_tarn_dp_tc_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object, uint8_t *proto,
    uint8_t *tos, uint16_t *flags, uint8_t *bit_flags, uint16_t *src_port_min, uint16_t *src_port_max,
    uint16_t *dst_port_min, uint16_t *dst_port_max, uint16_t *src_port_opr, uint16_t *dst_port_opr, uint64_t *next_ptr,
    uint64_t *appl_data_ptr, uint32_t *id, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object, uint8_t proto,
    uint8_t tos, uint16_t flags, uint8_t bit_flags, uint16_t src_port_min, uint16_t src_port_max, uint16_t dst_port_min,
    uint16_t dst_port_max, uint16_t src_port_opr, uint16_t dst_port_opr, uint64_t next_ptr, uint64_t appl_data_ptr,
    uint32_t id, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *destination,
    lumo_tarn_dp_tc *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *new_place,
    lumo_tarn_dp_tc *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_is_valid_cr(mirk_handle *h, lumo_tarn_dp_tc *object, uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_get_oid_count(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_get_object_references(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_len_cr(mirk_handle *h, lumo_tarn_dp_tc *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tc *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tc *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tc *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *source,
    lumo_tarn_dp_tc **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_tc *lumo_tarn_dp_tc_clone_cr(mirk_handle *h, lumo_tarn_dp_tc *source);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_copy_cr(mirk_handle *h, lumo_tarn_dp_tc *source, lumo_tarn_dp_tc *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_tc *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_print_cr(mirk_handle *h, lumo_tarn_dp_tc *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_tc *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_toxml_cr(mirk_handle *h, lumo_tarn_dp_tc *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_tc *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_tc_compare(const lumo_tarn_dp_tc *a, const lumo_tarn_dp_tc *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_hash(const lumo_tarn_dp_tc *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *instance, void *word);

/* exmem_info: where the traffic class lies in memory */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_dp_tc_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_exmem_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_exmem_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_exmem_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);

/* src_prefix: source prefix of the class */
LUMO_UI_TARN_API ip_address *lumo_tarn_dp_tc_src_prefix_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_prefix_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    ip_address *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_src_prefix_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_prefix_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);

/* dst_prefix: destination prefix of the class */
LUMO_UI_TARN_API ip_address *lumo_tarn_dp_tc_dst_prefix_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_prefix_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    ip_address *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_dst_prefix_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_prefix_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);

/* proto: protocol number to match */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tc_proto_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_proto_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_proto_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_proto_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_proto_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_proto_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);

/* tos: type-of-service value to match */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tc_tos_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_tos_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_tos_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_tos_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_tos_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_tos_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);

/* flags: flags of the class, sixteen bits */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_flags_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_flags_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_flags_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_flags_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);

/* bit_flags: second, separate set of flags, eight bits */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tc_bit_flags_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_bit_flags_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_bit_flags_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_bit_flags_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_bit_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_bit_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);

/* src_port_min: low end of the source port range */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_src_port_min_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_src_port_min_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_min_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_min_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_src_port_min_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_min_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);

/* src_port_max: high end of the source port range */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_src_port_max_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_src_port_max_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_max_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_max_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_src_port_max_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_max_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);

/* dst_port_min: low end of the destination port range */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_dst_port_min_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_dst_port_min_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_min_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_min_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_dst_port_min_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_min_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);

/* dst_port_max: high end of the destination port range */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_dst_port_max_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_dst_port_max_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_max_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_max_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_dst_port_max_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_max_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);

/* src_port_opr: operator applied to the source port range */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_src_port_opr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_src_port_opr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_opr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_opr_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_src_port_opr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_opr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);

/* dst_port_opr: operator applied to the destination port range */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_dst_port_opr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_dst_port_opr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_opr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_opr_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_dst_port_opr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_opr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);

/* next_ptr: link to the next class in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tc_next_ptr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tc_next_ptr_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_next_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_next_ptr_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_next_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_next_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);

/* appl_data_ptr: where the application data lies in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tc_appl_data_ptr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tc_appl_data_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_appl_data_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_appl_data_ptr_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_appl_data_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_appl_data_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);

/* appl: class's application entry */
LUMO_UI_TARN_API lumo_tarn_dp_appl *lumo_tarn_dp_tc_appl_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_appl_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    lumo_tarn_dp_appl *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_appl_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_appl_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);

/* id: identifier of the class */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tc_id_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_id_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_id_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_id_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tc_id_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
