/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_dp_ll_spec.h - one learn list entry. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_LL_SPEC_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_LL_SPEC_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_tc_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/** One learn list entry.
 *
 * | member             | type                   | meaning |
 * |--------------------|------------------------|---|
 * | display_all        | boolean                | show: everything |
 * | display_tc         | boolean                | show: the traffic classes |
 * | display_appl       | boolean                | show: the applications |
 * | exmem_info         | lumo_tarn_exmem_info   | where the entry lies in memory |
 * | id                 | uint32_t               | identifier of the entry |
 * | min_mask           | uint8_t                | minimum mask length |
 * | agg_type           | uint8_t                | aggregation type |
 * | learn_type         | uint8_t                | learn type |
 * | ll_type            | uint8_t                | learn list type |
 * | num_prefixes       | uint32_t               | number of prefixes |
 * | filter_tc_list_ptr | uint64_t               | where the filter list lies in the data plane |
 * | filter_tc_list     | lumo_tarn_dp_tc_list   | filter traffic classes |
 * | acl_tc_list_ptr    | uint64_t               | where the access-list classes lie in the data plane |
 * | acl_tc_list        | lumo_tarn_dp_tc_list   | access-list traffic classes |
 * | appl_list_ptr      | uint64_t               | where the application list lies in the data plane |
 * | appl_list          | lumo_tarn_dp_appl_list | applications |
 * | next_ptr           | uint64_t               | link to the next entry |
 * | head_ptr           | uint64_t               | head of the entries that num_entries counts |
 * | num_entries        | uint32_t               | number of entries behind head_ptr |
 * | heap_max_elements  | uint32_t               | capacity of the entry's heap |
 * | heap_size          | uint32_t               | current size of the heap |
 * | heap_compare_func  | uint64_t               | value of the heap's comparison routine as a 64-bit number |
 * | heap_elements_ptr  | uint64_t               | where the heap's elements lie |
 * | show_ll_comm       | boolean                | selection flag of the show command |
 *
 * How the operations of all records behave is told in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_ll_spec lumo_tarn_dp_ll_spec;
/** The module's own type record of lumo_tarn_dp_ll_spec: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_ll_spec_type_info_internal;

/** @name Life
 *  @{ */
/** Makes an instance with all members zero, or null without memory. It belongs to the caller, who ends it with
 * lumo_tarn_dp_ll_spec_destroy(). */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_dp_ll_spec_create(): works under the handle's default_id, makes nothing while last_error is
 * set, and answers a sentinel instead of null, which only lumo_tarn_dp_ll_spec_destroy() and sticky forms may be
 * given. */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_create_cr(mirk_handle *h);
/** As lumo_tarn_dp_ll_spec_create(), without registering the trace module of types first: for whoever makes many. */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Sets up an instance in zeroed memory of the caller's: header, usage counter, and what it embeds. The type is
 * commonly _lumo_tarn_dp_ll_spec_type_info_internal. With notify 0 the writes are not announced, with skip_count 1
 * nothing is counted; flags go into obj_flag, and sttr_base is where the state lies of an instance that is nested in
 * another. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Bytes of an instance with everything that it nests and, on a handle that tracks, its state. Differs between
 * handles. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_sizeof(mirk_handle *h);
/** The variant itself, or the highest that this library knows if that is lower. */
LUMO_UI_TARN_API int8_t lumo_tarn_dp_ll_spec_variant_data_index_cap(int8_t variant);
/** Marks the instance, with the records, addresses and booleans in it, as lying in memory of another one
 * (MIRK_OBJ_EMBEDDED). */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object);
/** Brings the instance to the variant that the handle's domain has for its type; announced if that changes it. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t *err);
/** Ends the instance: its arrays and strings, what it nests, and its memory. Null and the sentinel are passed over. An
 * instance that others refer to goes with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object);
/** lumo_tarn_dp_ll_spec_destroy() under the handle's default_id. Works whatever last_error holds. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_destroy_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *object);
/** As lumo_tarn_dp_ll_spec_destroy(); with free_it 0 the memory of the instance itself is left to its owner, as for an
 * instance that lies inside another. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** The instance itself: lets code treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order. Writes nothing for an instance
 * without body, and no error tells. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint8_t *display_all, uint8_t *display_tc, uint8_t *display_appl, uint32_t *id, uint8_t *min_mask,
    uint8_t *agg_type, uint8_t *learn_type, uint8_t *ll_type, uint32_t *num_prefixes, uint64_t *filter_tc_list_ptr,
    uint64_t *acl_tc_list_ptr, uint64_t *appl_list_ptr, uint64_t *next_ptr, uint64_t *head_ptr, uint32_t *num_entries,
    uint32_t *heap_max_elements, uint32_t *heap_size, uint64_t *heap_compare_func, uint64_t *heap_elements_ptr,
    uint8_t *show_ll_comm, uint32_t *err);
/** Stores all scalar members, in table order; counts and lengths are not among them. State bytes stay as they are,
 * unlike with the setters of single members. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint8_t display_all, uint8_t display_tc, uint8_t display_appl, uint32_t id, uint8_t min_mask, uint8_t agg_type,
    uint8_t learn_type, uint8_t ll_type, uint32_t num_prefixes, uint64_t filter_tc_list_ptr, uint64_t acl_tc_list_ptr,
    uint64_t appl_list_ptr, uint64_t next_ptr, uint64_t head_ptr, uint32_t num_entries, uint32_t heap_max_elements,
    uint32_t heap_size, uint64_t heap_compare_func, uint64_t heap_elements_ptr, uint8_t show_ll_comm, uint32_t *err);
/** MOVES the source into the destination: members, state, and the ownership of arrays and strings, which the source
 * loses. What the destination owned before is not released. lumo_tarn_dp_ll_spec_copy_cr() copies. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *destination,
    lumo_tarn_dp_ll_spec *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy in the new place the one owner of arrays and strings,
 * and takes them from the old place. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *new_place, lumo_tarn_dp_ll_spec *old_place, uint32_t *err);
/** Fills the whole state area with one byte, unannounced, and that of every array element too. Element states then read
 * as this value, and can no longer be set one by one. Does nothing without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value);
/** 1 if the handle's domain has a member of this index, counted from 0 in table order; the instance is not looked
 * at. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_is_valid_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *object,
    uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** How many object identifiers the instance holds of its own: 0 in this schema. EINVAL for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Would write up to size object identifiers that the instance holds of its own: writes none in this schema. EINVAL for
 * null. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, void **oids, uint32_t size, uint32_t *err);
/** Tells the runtime where in the state area at this address the state of each nested record and address lies: for
 * whoever has moved the instance or its state. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    void *state_area, uint32_t *err);
/** Has the runtime forget the places of states that lumo_tarn_dp_ll_spec_offset_update() told it, at every depth. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Bytes that a buffer for lumo_tarn_dp_ll_spec_marshal() needs, its spare byte aside. Says a little more than is
 * written: see families.h. RA data comes on top. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *instance);
/** Sticky form of lumo_tarn_dp_ll_spec_len(): 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_len_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *instance);
/** Writes the instance as a frame into the remaining bytes at buffer, behind which one spare byte lies. Returns the
 * bytes written. Goes on after a failure, so that only err tells: ENOMEM or EMSGSIZE for too little room, EIDRM if the
 * domain has no place for the instance's variant, in which case the frame is written in the domain's. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint32_t *err);
/** As lumo_tarn_dp_ll_spec_marshal(), but in the instance's own variant whatever the domain has: the frame of a deep
 * copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes at buffer, behind which one spare byte lies, into an instance. Returns the bytes
 * consumed. With reuse 0 the instance owns nothing yet, and what it owned is lost; with reuse 1 its arrays and strings
 * are kept where the counts are equal. The frame is never trusted. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_ll_spec *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy by way of a frame in the buffer, which has size bytes, lumo_tarn_dp_ll_spec_len() of them at
 * least, and one to spare. The result is null after any error; otherwise it belongs to the caller. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *source,
    lumo_tarn_dp_ll_spec **result, void *buffer, uint32_t size, uint32_t *err);
/** Deep copy by way of the handle's workspace, null after any error. A record that is too large for the workspace needs
 * lumo_tarn_dp_ll_spec_clone(). */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_clone_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *source);
/** Deep copy into an existing instance, by way of the handle's workspace. What the destination owned is not released;
 * if reading fails, the destination is destroyed. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_copy_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *source,
    lumo_tarn_dp_ll_spec *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as text for people, indent blanks in and headed by the name. Returns the characters written.
 * Clear the buffer first: bytes in front of closing braces are counted and not written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_dp_ll_spec_print(), without indent and headed by the record's name. 0xFFFFFFFF after an
 * error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_print_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name, one element in it for each member. A nonzero state shows as an
 * attribute. Returns the characters written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_dp_ll_spec_to_xml(), named as the record. 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_toxml_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *instance, char *buffer,
    int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members that are missing stay as they are;
 * a value that is none ends the reading, with a sentence in message if that is not null. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_ll_spec *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign means something. Null comes first. Header and
 * state play no part. */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_ll_spec_compare(const lumo_tarn_dp_ll_spec *a, const lumo_tarn_dp_ll_spec *b);
/** Mixes all members into the seed; equal instances give equal results in every process. The seed itself for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_hash(const lumo_tarn_dp_ll_spec *instance, uint32_t seed);
/** 1 if the record, or a member up to the first that had one, bore a change mark. The record's own mark and that
 * member's are cleared. The word is handed to the runtime as it is. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *instance, void *word);
/** @} */

/** @name display_all: show: everything
 *  @{ */
/** Address of the member display_all inside the object: show: everything. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member display_all: show: everything. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as display_all: show: everything. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_all_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_all: show: everything. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** State byte of display_all. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of display_all, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_tc: show: the traffic classes
 *  @{ */
/** Address of the member display_tc inside the object: show: the traffic classes. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_display_tc_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member display_tc: show: the traffic classes. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_tc_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as display_tc: show: the traffic classes. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_tc_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_tc: show: the traffic classes. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_tc_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** State byte of display_tc. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_tc_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of display_tc, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_tc_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_appl: show: the applications
 *  @{ */
/** Address of the member display_appl inside the object: show: the applications. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_display_appl_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member display_appl: show: the applications. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_appl_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as display_appl: show: the applications. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_appl_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_appl: show: the applications. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_appl_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** State byte of display_appl. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_appl_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of display_appl, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_appl_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name exmem_info: where the entry lies in memory
 *  @{ */
/** Address of the member exmem_info inside the object: where the entry lies in memory. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_dp_ll_spec_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** MOVES a record into exmem_info: where the entry lies in memory. The source loses its arrays and strings; what
 * exmem_info owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_exmem_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    lumo_tarn_exmem_info *source, uint32_t *err);
/** State byte of exmem_info. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_exmem_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of exmem_info, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_exmem_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name id: identifier of the entry
 *  @{ */
/** Address of the member id inside the object: identifier of the entry. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_id_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t *err);
/** Value of the member id: identifier of the entry. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_id_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as id: identifier of the entry. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as id: identifier of the entry. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_id_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t value, uint32_t *err);
/** State byte of id. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_id_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of id, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_id_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name min_mask: minimum mask length
 *  @{ */
/** Address of the member min_mask inside the object: minimum mask length. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_min_mask_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member min_mask: minimum mask length. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_min_mask_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as min_mask: minimum mask length. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_min_mask_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as min_mask: minimum mask length. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_min_mask_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** State byte of min_mask. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_min_mask_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of min_mask, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_min_mask_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name agg_type: aggregation type
 *  @{ */
/** Address of the member agg_type inside the object: aggregation type. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_agg_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member agg_type: aggregation type. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_agg_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as agg_type: aggregation type. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_agg_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as agg_type: aggregation type. Announced, marked as modified and, on a handle that tracks, with state
 * byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_agg_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** State byte of agg_type. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_agg_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of agg_type, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_agg_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name learn_type: learn type
 *  @{ */
/** Address of the member learn_type inside the object: learn type. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_learn_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member learn_type: learn type. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_learn_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as learn_type: learn type. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_learn_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as learn_type: learn type. Announced, marked as modified and, on a handle that tracks, with state
 * byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_learn_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** State byte of learn_type. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_learn_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of learn_type, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_learn_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ll_type: learn list type
 *  @{ */
/** Address of the member ll_type inside the object: learn list type. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_ll_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member ll_type: learn list type. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_ll_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as ll_type: learn list type. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_ll_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as ll_type: learn list type. Announced, marked as modified and, on a handle that tracks, with state
 * byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_ll_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** State byte of ll_type. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_ll_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of ll_type, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_ll_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_prefixes: number of prefixes
 *  @{ */
/** Address of the member num_prefixes inside the object: number of prefixes. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_num_prefixes_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member num_prefixes: number of prefixes. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_num_prefixes_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as num_prefixes: number of prefixes. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_prefixes_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint32_t *source, uint32_t *err);
/** Stores a value as num_prefixes: number of prefixes. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_prefixes_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
/** State byte of num_prefixes. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_num_prefixes_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of num_prefixes, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_prefixes_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name filter_tc_list_ptr: where the filter list lies in the data plane
 *  @{ */
/** Address of the member filter_tc_list_ptr inside the object: where the filter list lies in the data plane. Null after
 * an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_filter_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member filter_tc_list_ptr: where the filter list lies in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_filter_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as filter_tc_list_ptr: where the filter list lies in the data plane. Announced, marked
 * as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
/** Stores a value as filter_tc_list_ptr: where the filter list lies in the data plane. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** State byte of filter_tc_list_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of filter_tc_list_ptr, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name filter_tc_list: filter traffic classes
 *  @{ */
/** Address of the member filter_tc_list inside the object: filter traffic classes. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_ll_spec_filter_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** MOVES a record into filter_tc_list: filter traffic classes. The source loses its arrays and strings; what
 * filter_tc_list owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
/** State byte of filter_tc_list. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of filter_tc_list, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name acl_tc_list_ptr: where the access-list classes lie in the data plane
 *  @{ */
/** Address of the member acl_tc_list_ptr inside the object: where the access-list classes lie in the data plane. Null
 * after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_acl_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member acl_tc_list_ptr: where the access-list classes lie in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_acl_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as acl_tc_list_ptr: where the access-list classes lie in the data plane. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
/** Stores a value as acl_tc_list_ptr: where the access-list classes lie in the data plane. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** State byte of acl_tc_list_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of acl_tc_list_ptr, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name acl_tc_list: access-list traffic classes
 *  @{ */
/** Address of the member acl_tc_list inside the object: access-list traffic classes. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_ll_spec_acl_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** MOVES a record into acl_tc_list: access-list traffic classes. The source loses its arrays and strings; what
 * acl_tc_list owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
/** State byte of acl_tc_list. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of acl_tc_list, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_list_ptr: where the application list lies in the data plane
 *  @{ */
/** Address of the member appl_list_ptr inside the object: where the application list lies in the data plane. Null after
 * an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_appl_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member appl_list_ptr: where the application list lies in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_appl_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as appl_list_ptr: where the application list lies in the data plane. Announced, marked
 * as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
/** Stores a value as appl_list_ptr: where the application list lies in the data plane. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** State byte of appl_list_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of appl_list_ptr, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_list: applications
 *  @{ */
/** Address of the member appl_list inside the object: applications. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_dp_appl_list *lumo_tarn_dp_ll_spec_appl_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** MOVES a record into appl_list: applications. The source loses its arrays and strings; what appl_list owned before is
 * not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    lumo_tarn_dp_appl_list *source, uint32_t *err);
/** State byte of appl_list. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_appl_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of appl_list, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name next_ptr: link to the next entry
 *  @{ */
/** Address of the member next_ptr inside the object: link to the next entry. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_next_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member next_ptr: link to the next entry. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_next_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as next_ptr: link to the next entry. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_next_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as next_ptr: link to the next entry. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_next_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** State byte of next_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_next_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of next_ptr, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_next_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name head_ptr: head of the entries that num_entries counts
 *  @{ */
/** Address of the member head_ptr inside the object: head of the entries that num_entries counts. Null after an
 * error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_head_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member head_ptr: head of the entries that num_entries counts. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_head_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as head_ptr: head of the entries that num_entries counts. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_head_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as head_ptr: head of the entries that num_entries counts. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_head_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** State byte of head_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_head_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of head_ptr, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_head_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_entries: number of entries behind head_ptr
 *  @{ */
/** Address of the member num_entries inside the object: number of entries behind head_ptr. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_num_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member num_entries: number of entries behind head_ptr. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_num_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as num_entries: number of entries behind head_ptr. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint32_t *source, uint32_t *err);
/** Stores a value as num_entries: number of entries behind head_ptr. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
/** State byte of num_entries. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_num_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of num_entries, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name heap_max_elements: capacity of the entry's heap
 *  @{ */
/** Address of the member heap_max_elements inside the object: capacity of the entry's heap. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_heap_max_elements_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member heap_max_elements: capacity of the entry's heap. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_heap_max_elements_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as heap_max_elements: capacity of the entry's heap. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_max_elements_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint32_t *source, uint32_t *err);
/** Stores a value as heap_max_elements: capacity of the entry's heap. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_max_elements_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
/** State byte of heap_max_elements. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of heap_max_elements, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name heap_size: current size of the heap
 *  @{ */
/** Address of the member heap_size inside the object: current size of the heap. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_heap_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member heap_size: current size of the heap. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_heap_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as heap_size: current size of the heap. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_size_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as heap_size: current size of the heap. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
/** State byte of heap_size. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of heap_size, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name heap_compare_func: value of the heap's comparison routine as a 64-bit number
 *  @{ */
/** Address of the member heap_compare_func inside the object: value of the heap's comparison routine as a 64-bit
 * number. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_heap_compare_func_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member heap_compare_func: value of the heap's comparison routine as a 64-bit number. 0 after an
 * error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_heap_compare_func_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as heap_compare_func: value of the heap's comparison routine as a 64-bit number.
 * Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_compare_func_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
/** Stores a value as heap_compare_func: value of the heap's comparison routine as a 64-bit number. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_compare_func_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** State byte of heap_compare_func. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of heap_compare_func, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name heap_elements_ptr: where the heap's elements lie
 *  @{ */
/** Address of the member heap_elements_ptr inside the object: where the heap's elements lie. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_heap_elements_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member heap_elements_ptr: where the heap's elements lie. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_heap_elements_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as heap_elements_ptr: where the heap's elements lie. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_elements_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
/** Stores a value as heap_elements_ptr: where the heap's elements lie. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_elements_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** State byte of heap_elements_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of heap_elements_ptr, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name show_ll_comm: selection flag of the show command
 *  @{ */
/** Address of the member show_ll_comm inside the object: selection flag of the show command. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_show_ll_comm_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Value of the member show_ll_comm: selection flag of the show command. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_show_ll_comm_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores what the source holds as show_ll_comm: selection flag of the show command. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_show_ll_comm_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as show_ll_comm: selection flag of the show command. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_show_ll_comm_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** State byte of show_ll_comm. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the state byte of show_ll_comm, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
