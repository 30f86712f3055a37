/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_dp_tt_table.h - one traffic table of one processor. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_TT_TABLE_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_TT_TABLE_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_learn_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_tc_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_fdb_mem_info.h>

LUMO_UI_TARN_BEGIN

/** One traffic table of one processor.
 *
 * | member             | type                    | meaning |
 * |--------------------|-------------------------|---|
 * | show_header        | boolean                 | show: the table's header |
 * | show_agg_list      | boolean                 | show: the aggregation class list |
 * | show_filter_list   | boolean                 | show: the filter class list |
 * | show_ll_header     | boolean                 | show: the header of the learn list |
 * | show_ll_list       | boolean                 | show: the learn list itself |
 * | display_all        | boolean                 | show: all of it |
 * | display_tc         | boolean                 | show: the traffic classes |
 * | display_ll         | boolean                 | show: the learn lists |
 * | fdb_info           | lumo_tarn_fdb_mem_info  | fdb memory of the table |
 * | lumo_num           | uint8_t                 | number of the lumo processor that holds the table |
 * | state              | uint8_t                 | state of the table |
 * | learn_type         | uint8_t                 | type of learning |
 * | agg_type           | uint8_t                 | type of aggregation |
 * | min_mask           | uint8_t                 | minimum mask |
 * | tt_bit_flags       | uint8_t                 | flags of the table |
 * | aging_type         | uint16_t                | type of aging |
 * | num_prefixes       | uint32_t                | number of prefixes in the table |
 * | duration           | uint32_t                | duration |
 * | start_time         | uint32_t                | start time |
 * | end_time           | uint32_t                | end time |
 * | agg_tc_list_ptr    | uint64_t                | where the aggregation class list lies in the data plane |
 * | agg_tc_list        | lumo_tarn_dp_tc_list    | aggregation classes |
 * | filter_tc_list_ptr | uint64_t                | where the filter class list lies in the data plane |
 * | filter_tc_list     | lumo_tarn_dp_tc_list    | filter classes |
 * | learn_list_ptr     | uint64_t                | where the learn list lies in the data plane |
 * | learn_list         | lumo_tarn_dp_learn_list | learn list |
 * | key_mask           | uint32_t                | mask of the table's key |
 * | thruput_head_ptr   | uint64_t                | head of the throughput entries in the data plane |
 * | thruput_entries    | uint32_t                | number of throughput entries |
 * | delay_head_ptr     | uint64_t                | head of the delay entries in the data plane |
 * | delay_entries      | uint32_t                | number of delay entries |
 *
 * How the operations of all records behave is told in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_tt_table lumo_tarn_dp_tt_table;
/** The module's own type record of lumo_tarn_dp_tt_table: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_tt_table_type_info_internal;

/** @name Life
 *  @{ */
/** Makes an instance with all members zero, or null without memory. It belongs to the caller, who ends it with
 * lumo_tarn_dp_tt_table_destroy(). */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_dp_tt_table_create(): works under the handle's default_id, makes nothing while last_error
 * is set, and answers a sentinel instead of null, which only lumo_tarn_dp_tt_table_destroy() and sticky forms may be
 * given. */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_create_cr(mirk_handle *h);
/** As lumo_tarn_dp_tt_table_create(), without registering the trace module of types first: for whoever makes many. */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Sets up an instance in zeroed memory of the caller's: header, usage counter, and what it embeds. The type is
 * commonly _lumo_tarn_dp_tt_table_type_info_internal. With notify 0 the writes are not announced, with skip_count 1
 * nothing is counted; flags go into obj_flag, and sttr_base is where the state lies of an instance that is nested in
 * another. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Bytes of an instance with everything that it nests and, on a handle that tracks, its state. Differs between
 * handles. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_sizeof(mirk_handle *h);
/** The variant itself, or the highest that this library knows if that is lower. */
LUMO_UI_TARN_API int8_t lumo_tarn_dp_tt_table_variant_data_index_cap(int8_t variant);
/** Marks the instance, with the records, addresses and booleans in it, as lying in memory of another one
 * (MIRK_OBJ_EMBEDDED). */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object);
/** Brings the instance to the variant that the handle's domain has for its type; announced if that changes it. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Ends the instance: its arrays and strings, what it nests, and its memory. Null and the sentinel are passed over. An
 * instance that others refer to goes with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object);
/** lumo_tarn_dp_tt_table_destroy() under the handle's default_id. Works whatever last_error holds. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_destroy_cr(mirk_handle *h, lumo_tarn_dp_tt_table *object);
/** As lumo_tarn_dp_tt_table_destroy(); with free_it 0 the memory of the instance itself is left to its owner, as for an
 * instance that lies inside another. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** The instance itself: lets code treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order. Writes nothing for an instance
 * without body, and no error tells. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    uint8_t *show_header, uint8_t *show_agg_list, uint8_t *show_filter_list, uint8_t *show_ll_header,
    uint8_t *show_ll_list, uint8_t *display_all, uint8_t *display_tc, uint8_t *display_ll, uint8_t *lumo_num,
    uint8_t *state, uint8_t *learn_type, uint8_t *agg_type, uint8_t *min_mask, uint8_t *tt_bit_flags,
    uint16_t *aging_type, uint32_t *num_prefixes, uint32_t *duration, uint32_t *start_time, uint32_t *end_time,
    uint64_t *agg_tc_list_ptr, uint64_t *filter_tc_list_ptr, uint64_t *learn_list_ptr, uint32_t *key_mask,
    uint64_t *thruput_head_ptr, uint32_t *thruput_entries, uint64_t *delay_head_ptr, uint32_t *delay_entries,
    uint32_t *err);
/** Stores all scalar members, in table order; counts and lengths are not among them. State bytes stay as they are,
 * unlike with the setters of single members. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    uint8_t show_header, uint8_t show_agg_list, uint8_t show_filter_list, uint8_t show_ll_header, uint8_t show_ll_list,
    uint8_t display_all, uint8_t display_tc, uint8_t display_ll, uint8_t lumo_num, uint8_t state, uint8_t learn_type,
    uint8_t agg_type, uint8_t min_mask, uint8_t tt_bit_flags, uint16_t aging_type, uint32_t num_prefixes,
    uint32_t duration, uint32_t start_time, uint32_t end_time, uint64_t agg_tc_list_ptr, uint64_t filter_tc_list_ptr,
    uint64_t learn_list_ptr, uint32_t key_mask, uint64_t thruput_head_ptr, uint32_t thruput_entries,
    uint64_t delay_head_ptr, uint32_t delay_entries, uint32_t *err);
/** MOVES the source into the destination: members, state, and the ownership of arrays and strings, which the source
 * loses. What the destination owned before is not released. lumo_tarn_dp_tt_table_copy_cr() copies. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *destination,
    lumo_tarn_dp_tt_table *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy in the new place the one owner of arrays and strings,
 * and takes them from the old place. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *new_place, lumo_tarn_dp_tt_table *old_place, uint32_t *err);
/** Fills the whole state area with one byte, unannounced, and that of every array element too. Element states then read
 * as this value, and can no longer be set one by one. Does nothing without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value);
/** 1 if the handle's domain has a member of this index, counted from 0 in table order; the instance is not looked
 * at. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_is_valid_cr(mirk_handle *h, lumo_tarn_dp_tt_table *object,
    uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** How many object identifiers the instance holds of its own: 0 in this schema. EINVAL for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Would write up to size object identifiers that the instance holds of its own: writes none in this schema. EINVAL for
 * null. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, void **oids, uint32_t size, uint32_t *err);
/** Tells the runtime where in the state area at this address the state of each nested record and address lies: for
 * whoever has moved the instance or its state. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, void *state_area, uint32_t *err);
/** Has the runtime forget the places of states that lumo_tarn_dp_tt_table_offset_update() told it, at every depth. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Bytes that a buffer for lumo_tarn_dp_tt_table_marshal() needs, its spare byte aside. Says a little more than is
 * written: see families.h. RA data comes on top. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *instance);
/** Sticky form of lumo_tarn_dp_tt_table_len(): 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_len_cr(mirk_handle *h, lumo_tarn_dp_tt_table *instance);
/** Writes the instance as a frame into the remaining bytes at buffer, behind which one spare byte lies. Returns the
 * bytes written. Goes on after a failure, so that only err tells: ENOMEM or EMSGSIZE for too little room, EIDRM if the
 * domain has no place for the instance's variant, in which case the frame is written in the domain's. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tt_table *instance, int32_t remaining, uint32_t *err);
/** As lumo_tarn_dp_tt_table_marshal(), but in the instance's own variant whatever the domain has: the frame of a deep
 * copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tt_table *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes at buffer, behind which one spare byte lies, into an instance. Returns the bytes
 * consumed. With reuse 0 the instance owns nothing yet, and what it owned is lost; with reuse 1 its arrays and strings
 * are kept where the counts are equal. The frame is never trusted. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tt_table *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy by way of a frame in the buffer, which has size bytes, lumo_tarn_dp_tt_table_len() of them at
 * least, and one to spare. The result is null after any error; otherwise it belongs to the caller. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *source,
    lumo_tarn_dp_tt_table **result, void *buffer, uint32_t size, uint32_t *err);
/** Deep copy by way of the handle's workspace, null after any error. A record that is too large for the workspace needs
 * lumo_tarn_dp_tt_table_clone(). */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_clone_cr(mirk_handle *h, lumo_tarn_dp_tt_table *source);
/** Deep copy into an existing instance, by way of the handle's workspace. What the destination owned is not released;
 * if reading fails, the destination is destroyed. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_copy_cr(mirk_handle *h, lumo_tarn_dp_tt_table *source,
    lumo_tarn_dp_tt_table *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as text for people, indent blanks in and headed by the name. Returns the characters written.
 * Clear the buffer first: bytes in front of closing braces are counted and not written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_tt_table *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_dp_tt_table_print(), without indent and headed by the record's name. 0xFFFFFFFF after an
 * error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_print_cr(mirk_handle *h, lumo_tarn_dp_tt_table *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name, one element in it for each member. A nonzero state shows as an
 * attribute. Returns the characters written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_tt_table *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_dp_tt_table_to_xml(), named as the record. 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_toxml_cr(mirk_handle *h, lumo_tarn_dp_tt_table *instance, char *buffer,
    int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members that are missing stay as they are;
 * a value that is none ends the reading, with a sentence in message if that is not null. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_tt_table *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign means something. Null comes first. Header and
 * state play no part. */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_tt_table_compare(const lumo_tarn_dp_tt_table *a, const lumo_tarn_dp_tt_table *b);
/** Mixes all members into the seed; equal instances give equal results in every process. The seed itself for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_hash(const lumo_tarn_dp_tt_table *instance, uint32_t seed);
/** 1 if the record, or a member up to the first that had one, bore a change mark. The record's own mark and that
 * member's are cleared. The word is handed to the runtime as it is. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *instance, void *word);
/** @} */

/** @name show_header: show: the table's header
 *  @{ */
/** Address of the member show_header inside the object: show: the table's header. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_header_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member show_header: show: the table's header. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_header_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as show_header: show: the table's header. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_header_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as show_header: show: the table's header. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_header_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of show_header. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_header_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of show_header, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_header_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name show_agg_list: show: the aggregation class list
 *  @{ */
/** Address of the member show_agg_list inside the object: show: the aggregation class list. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_agg_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member show_agg_list: show: the aggregation class list. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_agg_list_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as show_agg_list: show: the aggregation class list. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_agg_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as show_agg_list: show: the aggregation class list. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_agg_list_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of show_agg_list. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_agg_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of show_agg_list, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_agg_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name show_filter_list: show: the filter class list
 *  @{ */
/** Address of the member show_filter_list inside the object: show: the filter class list. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_filter_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member show_filter_list: show: the filter class list. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_filter_list_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as show_filter_list: show: the filter class list. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_filter_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as show_filter_list: show: the filter class list. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_filter_list_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of show_filter_list. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_filter_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of show_filter_list, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_filter_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name show_ll_header: show: the header of the learn list
 *  @{ */
/** Address of the member show_ll_header inside the object: show: the header of the learn list. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_ll_header_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member show_ll_header: show: the header of the learn list. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_header_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as show_ll_header: show: the header of the learn list. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_header_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as show_ll_header: show: the header of the learn list. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_header_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of show_ll_header. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_header_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of show_ll_header, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_header_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name show_ll_list: show: the learn list itself
 *  @{ */
/** Address of the member show_ll_list inside the object: show: the learn list itself. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_ll_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member show_ll_list: show: the learn list itself. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_list_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as show_ll_list: show: the learn list itself. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as show_ll_list: show: the learn list itself. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_list_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of show_ll_list. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of show_ll_list, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_all: show: all of it
 *  @{ */
/** Address of the member display_all inside the object: show: all of it. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member display_all: show: all of it. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as display_all: show: all of it. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_all_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_all: show: all of it. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of display_all. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of display_all, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_tc: show: the traffic classes
 *  @{ */
/** Address of the member display_tc inside the object: show: the traffic classes. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_display_tc_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member display_tc: show: the traffic classes. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_tc_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as display_tc: show: the traffic classes. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_tc_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_tc: show: the traffic classes. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_tc_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of display_tc. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_tc_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of display_tc, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_tc_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_ll: show: the learn lists
 *  @{ */
/** Address of the member display_ll inside the object: show: the learn lists. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_display_ll_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member display_ll: show: the learn lists. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_ll_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as display_ll: show: the learn lists. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_ll_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_ll: show: the learn lists. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_ll_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of display_ll. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_ll_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of display_ll, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_ll_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name fdb_info: fdb memory of the table
 *  @{ */
/** Address of the member fdb_info inside the object: fdb memory of the table. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_fdb_mem_info *lumo_tarn_dp_tt_table_fdb_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** MOVES a record into fdb_info: fdb memory of the table. The source loses its arrays and strings; what fdb_info owned
 * before is not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_fdb_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    lumo_tarn_fdb_mem_info *source, uint32_t *err);
/** State byte of fdb_info. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_fdb_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of fdb_info, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_fdb_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name lumo_num: number of the lumo processor that holds the table
 *  @{ */
/** Address of the member lumo_num inside the object: number of the lumo processor that holds the table. Null after an
 * error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_lumo_num_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member lumo_num: number of the lumo processor that holds the table. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_lumo_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as lumo_num: number of the lumo processor that holds the table. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_lumo_num_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as lumo_num: number of the lumo processor that holds the table. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_lumo_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of lumo_num. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_lumo_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of lumo_num, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_lumo_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name state: state of the table
 *  @{ */
/** Address of the member state inside the object: state of the table. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_state_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member state: state of the table. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_state_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as state: state of the table. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_state_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as state: state of the table. Announced, marked as modified and, on a handle that tracks, with state
 * byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_state_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of state. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_state_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of state, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_state_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name learn_type: type of learning
 *  @{ */
/** Address of the member learn_type inside the object: type of learning. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_learn_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member learn_type: type of learning. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as learn_type: type of learning. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_type_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint8_t *source, uint32_t *err);
/** Stores a value as learn_type: type of learning. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of learn_type. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of learn_type, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name agg_type: type of aggregation
 *  @{ */
/** Address of the member agg_type inside the object: type of aggregation. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_agg_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member agg_type: type of aggregation. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as agg_type: type of aggregation. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as agg_type: type of aggregation. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of agg_type. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of agg_type, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name min_mask: minimum mask
 *  @{ */
/** Address of the member min_mask inside the object: minimum mask. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_min_mask_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member min_mask: minimum mask. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_min_mask_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as min_mask: minimum mask. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_min_mask_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as min_mask: minimum mask. Announced, marked as modified and, on a handle that tracks, with state
 * byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_min_mask_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of min_mask. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_min_mask_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of min_mask, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_min_mask_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_bit_flags: flags of the table
 *  @{ */
/** Address of the member tt_bit_flags inside the object: flags of the table. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_tt_bit_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member tt_bit_flags: flags of the table. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_tt_bit_flags_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as tt_bit_flags: flags of the table. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_tt_bit_flags_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint8_t *source, uint32_t *err);
/** Stores a value as tt_bit_flags: flags of the table. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_tt_bit_flags_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** State byte of tt_bit_flags. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of tt_bit_flags, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name aging_type: type of aging
 *  @{ */
/** Address of the member aging_type inside the object: type of aging. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tt_table_aging_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member aging_type: type of aging. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tt_table_aging_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as aging_type: type of aging. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_aging_type_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint16_t *source, uint32_t *err);
/** Stores a value as aging_type: type of aging. Announced, marked as modified and, on a handle that tracks, with state
 * byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_aging_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint16_t value, uint32_t *err);
/** State byte of aging_type. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_aging_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of aging_type, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_aging_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_prefixes: number of prefixes in the table
 *  @{ */
/** Address of the member num_prefixes inside the object: number of prefixes in the table. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_num_prefixes_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member num_prefixes: number of prefixes in the table. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_num_prefixes_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as num_prefixes: number of prefixes in the table. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_num_prefixes_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
/** Stores a value as num_prefixes: number of prefixes in the table. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_num_prefixes_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** State byte of num_prefixes. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_num_prefixes_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of num_prefixes, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_num_prefixes_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name duration: duration
 *  @{ */
/** Address of the member duration inside the object: duration. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_duration_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member duration: duration. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_duration_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as duration: duration. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_duration_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as duration: duration. Announced, marked as modified and, on a handle that tracks, with state byte
 * 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_duration_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** State byte of duration. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_duration_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of duration, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_duration_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name start_time: start time
 *  @{ */
/** Address of the member start_time inside the object: start time. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_start_time_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member start_time: start time. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_start_time_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as start_time: start time. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_start_time_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
/** Stores a value as start_time: start time. Announced, marked as modified and, on a handle that tracks, with state
 * byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_start_time_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** State byte of start_time. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_start_time_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of start_time, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_start_time_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name end_time: end time
 *  @{ */
/** Address of the member end_time inside the object: end time. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_end_time_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member end_time: end time. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_end_time_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as end_time: end time. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_end_time_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as end_time: end time. Announced, marked as modified and, on a handle that tracks, with state byte
 * 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_end_time_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** State byte of end_time. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_end_time_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of end_time, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_end_time_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name agg_tc_list_ptr: where the aggregation class list lies in the data plane
 *  @{ */
/** Address of the member agg_tc_list_ptr inside the object: where the aggregation class list lies in the data plane.
 * Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_agg_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member agg_tc_list_ptr: where the aggregation class list lies in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_agg_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as agg_tc_list_ptr: where the aggregation class list lies in the data plane. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
/** Stores a value as agg_tc_list_ptr: where the aggregation class list lies in the data plane. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
/** State byte of agg_tc_list_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of agg_tc_list_ptr, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name agg_tc_list: aggregation classes
 *  @{ */
/** Address of the member agg_tc_list inside the object: aggregation classes. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_tt_table_agg_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** MOVES a record into agg_tc_list: aggregation classes. The source loses its arrays and strings; what agg_tc_list
 * owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
/** State byte of agg_tc_list. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of agg_tc_list, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name filter_tc_list_ptr: where the filter class list lies in the data plane
 *  @{ */
/** Address of the member filter_tc_list_ptr inside the object: where the filter class list lies in the data plane. Null
 * after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_filter_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member filter_tc_list_ptr: where the filter class list lies in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_filter_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as filter_tc_list_ptr: where the filter class list lies in the data plane. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
/** Stores a value as filter_tc_list_ptr: where the filter class list lies in the data plane. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
/** State byte of filter_tc_list_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of filter_tc_list_ptr, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name filter_tc_list: filter classes
 *  @{ */
/** Address of the member filter_tc_list inside the object: filter classes. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_tt_table_filter_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** MOVES a record into filter_tc_list: filter classes. The source loses its arrays and strings; what filter_tc_list
 * owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
/** State byte of filter_tc_list. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_filter_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of filter_tc_list, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name learn_list_ptr: where the learn list lies in the data plane
 *  @{ */
/** Address of the member learn_list_ptr inside the object: where the learn list lies in the data plane. Null after an
 * error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_learn_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member learn_list_ptr: where the learn list lies in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_learn_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as learn_list_ptr: where the learn list lies in the data plane. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
/** Stores a value as learn_list_ptr: where the learn list lies in the data plane. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
/** State byte of learn_list_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of learn_list_ptr, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name learn_list: learn list
 *  @{ */
/** Address of the member learn_list inside the object: learn list. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_dp_learn_list *lumo_tarn_dp_tt_table_learn_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** MOVES a record into learn_list: learn list. The source loses its arrays and strings; what learn_list owned before is
 * not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, lumo_tarn_dp_learn_list *source, uint32_t *err);
/** State byte of learn_list. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of learn_list, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name key_mask: mask of the table's key
 *  @{ */
/** Address of the member key_mask inside the object: mask of the table's key. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_key_mask_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member key_mask: mask of the table's key. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_key_mask_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as key_mask: mask of the table's key. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_key_mask_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as key_mask: mask of the table's key. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_key_mask_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** State byte of key_mask. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_key_mask_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of key_mask, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_key_mask_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name thruput_head_ptr: head of the throughput entries in the data plane
 *  @{ */
/** Address of the member thruput_head_ptr inside the object: head of the throughput entries in the data plane. Null
 * after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_thruput_head_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member thruput_head_ptr: head of the throughput entries in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_thruput_head_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as thruput_head_ptr: head of the throughput entries in the data plane. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_head_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
/** Stores a value as thruput_head_ptr: head of the throughput entries in the data plane. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_head_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
/** State byte of thruput_head_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of thruput_head_ptr, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name thruput_entries: number of throughput entries
 *  @{ */
/** Address of the member thruput_entries inside the object: number of throughput entries. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_thruput_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member thruput_entries: number of throughput entries. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_thruput_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as thruput_entries: number of throughput entries. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
/** Stores a value as thruput_entries: number of throughput entries. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** State byte of thruput_entries. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_thruput_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of thruput_entries, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name delay_head_ptr: head of the delay entries in the data plane
 *  @{ */
/** Address of the member delay_head_ptr inside the object: head of the delay entries in the data plane. Null after an
 * error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_delay_head_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member delay_head_ptr: head of the delay entries in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_delay_head_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as delay_head_ptr: head of the delay entries in the data plane. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_head_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
/** Stores a value as delay_head_ptr: head of the delay entries in the data plane. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_head_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
/** State byte of delay_head_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of delay_head_ptr, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name delay_entries: number of delay entries
 *  @{ */
/** Address of the member delay_entries inside the object: number of delay entries. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_delay_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Value of the member delay_entries: number of delay entries. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_delay_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores what the source holds as delay_entries: number of delay entries. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
/** Stores a value as delay_entries: number of delay entries. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** State byte of delay_entries. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_delay_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the state byte of delay_entries, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
