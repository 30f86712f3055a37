/* lumo_tarn_dp_ll_spec.h - one learn list entry.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_LL_SPEC_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_LL_SPEC_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_tc_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_ll_spec: one learn list entry.
 *
 *   display_all         boolean                 show: everything
 *   display_tc          boolean                 show: the traffic classes
 *   display_appl        boolean                 show: the applications
 *   exmem_info          lumo_tarn_exmem_info    where the entry lies in memory
 *   id                  uint32_t                identifier of the entry
 *   min_mask            uint8_t                 minimum mask length
 *   agg_type            uint8_t                 aggregation type
 *   learn_type          uint8_t                 learn type
 *   ll_type             uint8_t                 learn list type
 *   num_prefixes        uint32_t                number of prefixes
 *   filter_tc_list_ptr  uint64_t                where the filter list lies in the data plane
 *   filter_tc_list      lumo_tarn_dp_tc_list    filter traffic classes
 *   acl_tc_list_ptr     uint64_t                where the access-list classes lie in the data plane
 *   acl_tc_list         lumo_tarn_dp_tc_list    access-list traffic classes
 *   appl_list_ptr       uint64_t                where the application list lies in the data plane
 *   appl_list           lumo_tarn_dp_appl_list  applications
 *   next_ptr            uint64_t                link to the next entry
 *   head_ptr            uint64_t                head of the entries that num_entries counts
 *   num_entries         uint32_t                number of entries behind head_ptr
 *   heap_max_elements   uint32_t                capacity of the entry's heap
 *   heap_size           uint32_t                current size of the heap
 *   heap_compare_func   uint64_t                value of the heap's comparison routine as a 64-bit number
 *   heap_elements_ptr   uint64_t                where the heap's elements lie
 *   show_ll_comm        boolean                 selection flag of the show command
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_ll_spec lumo_tarn_dp_ll_spec;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_ll_spec_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_ll_spec_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_destroy_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *object);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint8_t *display_all, uint8_t *display_tc, uint8_t *display_appl, uint32_t *id, uint8_t *min_mask,
    uint8_t *agg_type, uint8_t *learn_type, uint8_t *ll_type, uint32_t *num_prefixes, uint64_t *filter_tc_list_ptr,
    uint64_t *acl_tc_list_ptr, uint64_t *appl_list_ptr, uint64_t *next_ptr, uint64_t *head_ptr, uint32_t *num_entries,
    uint32_t *heap_max_elements, uint32_t *heap_size, uint64_t *heap_compare_func, uint64_t *heap_elements_ptr,
    uint8_t *show_ll_comm, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint8_t display_all, uint8_t display_tc, uint8_t display_appl, uint32_t id, uint8_t min_mask, uint8_t agg_type,
    uint8_t learn_type, uint8_t ll_type, uint32_t num_prefixes, uint64_t filter_tc_list_ptr, uint64_t acl_tc_list_ptr,
    uint64_t appl_list_ptr, uint64_t next_ptr, uint64_t head_ptr, uint32_t num_entries, uint32_t heap_max_elements,
    uint32_t heap_size, uint64_t heap_compare_func, uint64_t heap_elements_ptr, uint8_t show_ll_comm, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *destination,
    lumo_tarn_dp_ll_spec *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *new_place, lumo_tarn_dp_ll_spec *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_is_valid_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_len_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_ll_spec *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *source,
    lumo_tarn_dp_ll_spec **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_clone_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *source);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_copy_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *source,
    lumo_tarn_dp_ll_spec *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_print_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_toxml_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_ll_spec *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_ll_spec_compare(const lumo_tarn_dp_ll_spec *a, const lumo_tarn_dp_ll_spec *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_hash(const lumo_tarn_dp_ll_spec *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *instance, void *word);

/* display_all: show: everything */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_all_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* display_tc: show: the traffic classes */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_display_tc_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_tc_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_tc_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_tc_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_tc_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_tc_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* display_appl: show: the applications */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_display_appl_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_appl_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_appl_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_appl_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_appl_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_appl_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* exmem_info: where the entry lies in memory */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_dp_ll_spec_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_exmem_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    lumo_tarn_exmem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_exmem_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_exmem_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* id: identifier of the entry */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_id_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_id_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_id_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_id_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_id_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* min_mask: minimum mask length */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_min_mask_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_min_mask_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_min_mask_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_min_mask_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_min_mask_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_min_mask_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* agg_type: aggregation type */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_agg_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_agg_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_agg_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_agg_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_agg_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_agg_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* learn_type: learn type */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_learn_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_learn_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_learn_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_learn_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_learn_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_learn_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* ll_type: learn list type */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_ll_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_ll_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_ll_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_ll_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_ll_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_ll_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* num_prefixes: number of prefixes */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_num_prefixes_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_num_prefixes_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_prefixes_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_prefixes_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_num_prefixes_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_prefixes_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* filter_tc_list_ptr: where the filter list lies in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_filter_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_filter_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* filter_tc_list: filter traffic classes */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_ll_spec_filter_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* acl_tc_list_ptr: where the access-list classes lie in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_acl_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_acl_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* acl_tc_list: access-list traffic classes */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_ll_spec_acl_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* appl_list_ptr: where the application list lies in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_appl_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_appl_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* appl_list: applications */
LUMO_UI_TARN_API lumo_tarn_dp_appl_list *lumo_tarn_dp_ll_spec_appl_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    lumo_tarn_dp_appl_list *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_appl_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* next_ptr: link to the next entry */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_next_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_next_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_next_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_next_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_next_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_next_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* head_ptr: head of the entries that num_entries counts */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_head_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_head_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_head_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_head_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_head_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_head_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* num_entries: number of entries behind head_ptr */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_num_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_num_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_num_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* heap_max_elements: capacity of the entry's heap */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_heap_max_elements_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_heap_max_elements_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_max_elements_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_max_elements_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* heap_size: current size of the heap */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_heap_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_heap_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_size_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* heap_compare_func: value of the heap's comparison routine as a 64-bit number */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_heap_compare_func_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_heap_compare_func_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_compare_func_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_compare_func_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* heap_elements_ptr: where the heap's elements lie */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_heap_elements_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_heap_elements_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_elements_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_elements_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

/* show_ll_comm: selection flag of the show command */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_show_ll_comm_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_show_ll_comm_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_show_ll_comm_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_show_ll_comm_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
