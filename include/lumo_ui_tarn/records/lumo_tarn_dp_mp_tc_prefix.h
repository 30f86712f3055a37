/* lumo_tarn_dp_mp_tc_prefix.h - traffic classes of one prefix on one processor.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_MP_TC_PREFIX_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_MP_TC_PREFIX_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_tc_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_mp_tc_prefix: traffic classes of one prefix on one processor.
 *
 *   lumo_num           uint8_t               number of the lumo processor that this entry describes
 *   cl_addr            uint64_t              the entry's address on the client side
 *   tc_list_head       lumo_tarn_exmem_info  where the head of the class list lies in memory
 *   tc_list_head_next  uint64_t              link of the list head to what follows it in the data plane
 *   tc_list            lumo_tarn_dp_tc_list  traffic classes
 *   show_pfx_comm      boolean               selection flag of the show request
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_mp_tc_prefix lumo_tarn_dp_mp_tc_prefix;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_mp_tc_prefix_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_mp_tc_prefix *lumo_tarn_dp_mp_tc_prefix_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_mp_tc_prefix *lumo_tarn_dp_mp_tc_prefix_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_mp_tc_prefix *lumo_tarn_dp_mp_tc_prefix_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_initialize(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags,
    void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_mp_tc_prefix_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_destroy(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_destroy_cr(mirk_handle *h, lumo_tarn_dp_mp_tc_prefix *object);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_mp_tc_prefix *lumo_tarn_dp_mp_tc_prefix_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_get_all(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t *lumo_num, uint64_t *cl_addr, uint64_t *tc_list_head_next,
    uint8_t *show_pfx_comm, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_set_all(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t lumo_num, uint64_t cl_addr, uint64_t tc_list_head_next,
    uint8_t show_pfx_comm, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *destination, lumo_tarn_dp_mp_tc_prefix *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *new_place, lumo_tarn_dp_mp_tc_prefix *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_is_valid_cr(mirk_handle *h, lumo_tarn_dp_mp_tc_prefix *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_len(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_len_cr(mirk_handle *h, lumo_tarn_dp_mp_tc_prefix *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_mp_tc_prefix *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_mp_tc_prefix *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_mp_tc_prefix *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_clone(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *source, lumo_tarn_dp_mp_tc_prefix **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_mp_tc_prefix *lumo_tarn_dp_mp_tc_prefix_clone_cr(mirk_handle *h,
    lumo_tarn_dp_mp_tc_prefix *source);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_copy_cr(mirk_handle *h, lumo_tarn_dp_mp_tc_prefix *source,
    lumo_tarn_dp_mp_tc_prefix *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_print(mirk_handle *h, uint32_t ctx_id, char *buffer,
    uint32_t indent, const char *name, lumo_tarn_dp_mp_tc_prefix *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_print_cr(mirk_handle *h, lumo_tarn_dp_mp_tc_prefix *instance,
    char *buffer, int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name,
    char *buffer, lumo_tarn_dp_mp_tc_prefix *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_toxml_cr(mirk_handle *h, lumo_tarn_dp_mp_tc_prefix *instance,
    char *buffer, int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path,
    void *document, lumo_tarn_dp_mp_tc_prefix *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_mp_tc_prefix_compare(const lumo_tarn_dp_mp_tc_prefix *a,
    const lumo_tarn_dp_mp_tc_prefix *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_hash(const lumo_tarn_dp_mp_tc_prefix *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_mp_tc_prefix_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *instance, void *word);

/* lumo_num: number of the lumo processor that this entry describes */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_mp_tc_prefix_lumo_num_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_tc_prefix_lumo_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_lumo_num_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_lumo_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_tc_prefix_lumo_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_lumo_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t value, uint32_t *err);

/* cl_addr: the entry's address on the client side */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_mp_tc_prefix_cl_addr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_mp_tc_prefix_cl_addr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_cl_addr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_cl_addr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_tc_prefix_cl_addr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_cl_addr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t value, uint32_t *err);

/* tc_list_head: where the head of the class list lies in memory */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_dp_mp_tc_prefix_tc_list_head_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_tc_list_head_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_tc_prefix_tc_list_head_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_tc_list_head_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t value, uint32_t *err);

/* tc_list_head_next: link of the list head to what follows it in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_tc_list_head_next_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t value, uint32_t *err);

/* tc_list: traffic classes */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_mp_tc_prefix_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_tc_prefix_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t value, uint32_t *err);

/* show_pfx_comm: selection flag of the show request */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_mp_tc_prefix_show_pfx_comm_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_mp_tc_prefix *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
