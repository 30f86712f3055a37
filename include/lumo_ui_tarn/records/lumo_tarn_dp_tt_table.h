/* lumo_tarn_dp_tt_table.h - one traffic table of one processor.
 * Generated from the schema; edit the tables there and run tools/regenerate. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_TT_TABLE_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_TT_TABLE_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_learn_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_tc_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_fdb_mem_info.h>

LUMO_UI_TARN_BEGIN

/* lumo_tarn_dp_tt_table: one traffic table of one processor.
 *
 *   show_header         boolean                  show: the table's header
 *   show_agg_list       boolean                  show: the aggregation class list
 *   show_filter_list    boolean                  show: the filter class list
 *   show_ll_header      boolean                  show: the header of the learn list
 *   show_ll_list        boolean                  show: the learn list itself
 *   display_all         boolean                  show: all of it
 *   display_tc          boolean                  show: the traffic classes
 *   display_ll          boolean                  show: the learn lists
 *   fdb_info            lumo_tarn_fdb_mem_info   fdb memory of the table
 *   lumo_num            uint8_t                  number of the lumo processor that holds the table
 *   state               uint8_t                  state of the table
 *   learn_type          uint8_t                  type of learning
 *   agg_type            uint8_t                  type of aggregation
 *   min_mask            uint8_t                  minimum mask
 *   tt_bit_flags        uint8_t                  flags of the table
 *   aging_type          uint16_t                 type of aging
 *   num_prefixes        uint32_t                 number of prefixes in the table
 *   duration            uint32_t                 duration
 *   start_time          uint32_t                 start time
 *   end_time            uint32_t                 end time
 *   agg_tc_list_ptr     uint64_t                 where the aggregation class list lies in the data plane
 *   agg_tc_list         lumo_tarn_dp_tc_list     aggregation classes
 *   filter_tc_list_ptr  uint64_t                 where the filter class list lies in the data plane
 *   filter_tc_list      lumo_tarn_dp_tc_list     filter classes
 *   learn_list_ptr      uint64_t                 where the learn list lies in the data plane
 *   learn_list          lumo_tarn_dp_learn_list  learn list
 *   key_mask            uint32_t                 mask of the table's key
 *   thruput_head_ptr    uint64_t                 head of the throughput entries in the data plane
 *   thruput_entries     uint32_t                 number of throughput entries
 *   delay_head_ptr      uint64_t                 head of the delay entries in the data plane
 *   delay_entries       uint32_t                 number of delay entries
 *
 * How each operation behaves is told once for all records in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_tt_table lumo_tarn_dp_tt_table;
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_tt_table_type_info_internal;

/* Life */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_create(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_create_cr(mirk_handle *h);
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_create_internal(mirk_handle *h, uint32_t ctx_id);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_sizeof(mirk_handle *h);
LUMO_UI_TARN_API int8_t lumo_tarn_dp_tt_table_variant_data_index_cap(int8_t variant);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_destroy_cr(mirk_handle *h, lumo_tarn_dp_tt_table *object);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t free_it);

/* Whole record */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    uint8_t *show_header, uint8_t *show_agg_list, uint8_t *show_filter_list, uint8_t *show_ll_header,
    uint8_t *show_ll_list, uint8_t *display_all, uint8_t *display_tc, uint8_t *display_ll, uint8_t *lumo_num,
    uint8_t *state, uint8_t *learn_type, uint8_t *agg_type, uint8_t *min_mask, uint8_t *tt_bit_flags,
    uint16_t *aging_type, uint32_t *num_prefixes, uint32_t *duration, uint32_t *start_time, uint32_t *end_time,
    uint64_t *agg_tc_list_ptr, uint64_t *filter_tc_list_ptr, uint64_t *learn_list_ptr, uint32_t *key_mask,
    uint64_t *thruput_head_ptr, uint32_t *thruput_entries, uint64_t *delay_head_ptr, uint32_t *delay_entries,
    uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    uint8_t show_header, uint8_t show_agg_list, uint8_t show_filter_list, uint8_t show_ll_header, uint8_t show_ll_list,
    uint8_t display_all, uint8_t display_tc, uint8_t display_ll, uint8_t lumo_num, uint8_t state, uint8_t learn_type,
    uint8_t agg_type, uint8_t min_mask, uint8_t tt_bit_flags, uint16_t aging_type, uint32_t num_prefixes,
    uint32_t duration, uint32_t start_time, uint32_t end_time, uint64_t agg_tc_list_ptr, uint64_t filter_tc_list_ptr,
    uint64_t learn_list_ptr, uint32_t key_mask, uint64_t thruput_head_ptr, uint32_t thruput_entries,
    uint64_t delay_head_ptr, uint32_t delay_entries, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *destination,
    lumo_tarn_dp_tt_table *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *new_place, lumo_tarn_dp_tt_table *old_place, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_is_valid_cr(mirk_handle *h, lumo_tarn_dp_tt_table *object,
    uint32_t field_index);

/* References */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, void **oids, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, void *state_area, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);

/* Wire */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_len_cr(mirk_handle *h, lumo_tarn_dp_tt_table *instance);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tt_table *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tt_table *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tt_table *instance, uint32_t length, uint32_t reuse, uint32_t *err);

/* Deep copy */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *source,
    lumo_tarn_dp_tt_table **result, void *buffer, uint32_t size, uint32_t *err);
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_clone_cr(mirk_handle *h, lumo_tarn_dp_tt_table *source);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_copy_cr(mirk_handle *h, lumo_tarn_dp_tt_table *source,
    lumo_tarn_dp_tt_table *destination);

/* Text */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_tt_table *instance, int32_t remaining, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_print_cr(mirk_handle *h, lumo_tarn_dp_tt_table *instance, char *buffer,
    int32_t remaining);

/* XML */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_tt_table *instance, int32_t remaining, uint8_t state, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_toxml_cr(mirk_handle *h, lumo_tarn_dp_tt_table *instance, char *buffer,
    int32_t remaining);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_tt_table *instance, uint32_t *err, char *message, uint32_t message_size);

/* Value */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_tt_table_compare(const lumo_tarn_dp_tt_table *a, const lumo_tarn_dp_tt_table *b);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_hash(const lumo_tarn_dp_tt_table *instance, uint32_t seed);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *instance, void *word);

/* show_header: show: the table's header */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_header_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_header_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_header_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_header_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_header_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_header_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* show_agg_list: show: the aggregation class list */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_agg_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_agg_list_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_agg_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_agg_list_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_agg_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_agg_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* show_filter_list: show: the filter class list */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_filter_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_filter_list_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_filter_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_filter_list_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_filter_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_filter_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* show_ll_header: show: the header of the learn list */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_ll_header_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_header_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_header_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_header_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_header_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_header_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* show_ll_list: show: the learn list itself */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_ll_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_list_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_list_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* display_all: show: all of it */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_all_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* display_tc: show: the traffic classes */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_display_tc_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_tc_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_tc_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_tc_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_tc_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_tc_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* display_ll: show: the learn lists */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_display_ll_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_ll_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_ll_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_ll_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_ll_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_ll_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* fdb_info: fdb memory of the table */
LUMO_UI_TARN_API lumo_tarn_fdb_mem_info *lumo_tarn_dp_tt_table_fdb_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_fdb_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    lumo_tarn_fdb_mem_info *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_fdb_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_fdb_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* lumo_num: number of the lumo processor that holds the table */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_lumo_num_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_lumo_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_lumo_num_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_lumo_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_lumo_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_lumo_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* state: state of the table */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_state_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_state_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_state_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_state_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_state_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_state_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* learn_type: type of learning */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_learn_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_type_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* agg_type: type of aggregation */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_agg_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* min_mask: minimum mask */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_min_mask_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_min_mask_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_min_mask_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_min_mask_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_min_mask_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_min_mask_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* tt_bit_flags: flags of the table */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_tt_bit_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_tt_bit_flags_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_tt_bit_flags_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint8_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_tt_bit_flags_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* aging_type: type of aging */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tt_table_aging_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tt_table_aging_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_aging_type_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint16_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_aging_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint16_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_aging_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_aging_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* num_prefixes: number of prefixes in the table */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_num_prefixes_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_num_prefixes_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_num_prefixes_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_num_prefixes_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_num_prefixes_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_num_prefixes_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* duration: duration */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_duration_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_duration_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_duration_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_duration_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_duration_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_duration_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* start_time: start time */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_start_time_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_start_time_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_start_time_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_start_time_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_start_time_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_start_time_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* end_time: end time */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_end_time_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_end_time_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_end_time_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_end_time_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_end_time_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_end_time_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* agg_tc_list_ptr: where the aggregation class list lies in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_agg_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_agg_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* agg_tc_list: aggregation classes */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_tt_table_agg_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* filter_tc_list_ptr: where the filter class list lies in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_filter_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_filter_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* filter_tc_list: filter classes */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_tt_table_filter_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_filter_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* learn_list_ptr: where the learn list lies in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_learn_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_learn_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* learn_list: learn list */
LUMO_UI_TARN_API lumo_tarn_dp_learn_list *lumo_tarn_dp_tt_table_learn_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, lumo_tarn_dp_learn_list *source, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* key_mask: mask of the table's key */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_key_mask_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_key_mask_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_key_mask_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_key_mask_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_key_mask_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_key_mask_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* thruput_head_ptr: head of the throughput entries in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_thruput_head_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_thruput_head_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_head_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_head_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* thruput_entries: number of throughput entries */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_thruput_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_thruput_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_thruput_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* delay_head_ptr: head of the delay entries in the data plane */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_delay_head_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_delay_head_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_head_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_head_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

/* delay_entries: number of delay entries */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_delay_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_delay_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_delay_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);

LUMO_UI_TARN_END

#endif
