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
 * | show_header        | boolean                 | whether to show the table's header |
 * | show_agg_list      | boolean                 | whether to show the aggregation class list |
 * | show_filter_list   | boolean                 | whether to show the filter class list |
 * | show_ll_header     | boolean                 | whether to show the header of the learn list |
 * | show_ll_list       | boolean                 | whether to show the learn list itself |
 * | display_all        | boolean                 | whether to show everything |
 * | display_tc         | boolean                 | whether to show the traffic classes |
 * | display_ll         | boolean                 | whether to show the learn lists |
 * | fdb_info           | lumo_tarn_fdb_mem_info  | fdb memory of the table |
 * | lumo_num           | uint8_t                 | number of the lumo processor that holds the table |
 * | state              | uint8_t                 | state of the table: a code of the data plane |
 * | learn_type         | uint8_t                 | how the table learns: a code of the data plane |
 * | agg_type           | uint8_t                 | how the table aggregates: a code of the data plane |
 * | min_mask           | uint8_t                 | minimum mask length |
 * | tt_bit_flags       | uint8_t                 | flags of the table |
 * | aging_type         | uint16_t                | how entries of the table age: a code of the data plane |
 * | num_prefixes       | uint32_t                | number of prefixes in the table |
 * | duration           | uint32_t                | duration, in the data plane's unit of time |
 * | start_time         | uint32_t                | start time, in the data plane's unit of time |
 * | end_time           | uint32_t                | end time, in the data plane's unit of time |
 * | agg_tc_list_ptr    | uint64_t                | location of the aggregation class list in the data plane |
 * | agg_tc_list        | lumo_tarn_dp_tc_list    | aggregation classes |
 * | filter_tc_list_ptr | uint64_t                | location of the filter class list in the data plane |
 * | filter_tc_list     | lumo_tarn_dp_tc_list    | filter classes |
 * | learn_list_ptr     | uint64_t                | location of the learn list in the data plane |
 * | learn_list         | lumo_tarn_dp_learn_list | learn list definitions of the table |
 * | key_mask           | uint32_t                | mask of the table's key |
 * | thruput_head_ptr   | uint64_t                | head of the throughput entries in the data plane |
 * | thruput_entries    | uint32_t                | number of throughput entries |
 * | delay_head_ptr     | uint64_t                | head of the delay entries in the data plane |
 * | delay_entries      | uint32_t                | number of delay entries |
 *
 * lumo_ui_tarn/families.h describes the operations. */
typedef struct lumo_tarn_dp_tt_table lumo_tarn_dp_tt_table;
/** The module's own type record of lumo_tarn_dp_tt_table: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_tt_table_type_info_internal;

/** @name Lifecycle
 *  @{ */
/** Allocates an instance with all members zero. Returns NULL if allocation fails, or if the domain look-up of an
 * enumeration member fails. The caller owns the instance and releases it with lumo_tarn_dp_tt_table_destroy(). */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_dp_tt_table_create(): returns a sentinel instead of NULL if allocation fails or last_error
 * is set already. Returns NULL, not the sentinel, if the domain look-up of an enumeration member fails; last_error may
 * then be 0. Only destroy operations, and sticky forms while last_error is set, accept the sentinel. */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_create_cr(mirk_handle *h);
/** Same as lumo_tarn_dp_tt_table_create(), but does not register the trace module of types. For callers that create
 * many instances. */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Initializes an instance in zeroed memory of the caller: header, usage counters, nested objects. type is normally
 * _lumo_tarn_dp_tt_table_type_info_internal. notify 0 suppresses write notifications, skip_count 1 suppresses usage
 * counting. flags are added to obj_flag. sttr_base is the address of the state area if the instance is nested in
 * another one. EINVAL if a nested instance on a tracking handle has none. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Returns the size of an instance in bytes: its members, everything nested in it and, on a tracking handle, its state
 * area. Blocks of arrays and strings are not counted. The size differs between tracking modes. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_sizeof(mirk_handle *h);
/** Returns the variant, limited to 0, the highest one that this library has. */
LUMO_UI_TARN_API int8_t lumo_tarn_dp_tt_table_variant_data_index_cap(int8_t variant);
/** Sets MIRK_OBJ_EMBEDDED in the instance and in the records, IP addresses and booleans nested in it. The caller
 * thereby states that the instance lies in memory of another object. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object);
/** Changes the instance to the variant that the handle's domain has for its type. Notifies if the variant changes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Destroys the instance: its arrays and strings, everything nested in it, and its memory. NULL and the sentinel are
 * ignored. An instance that other objects refer to is released with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object);
/** Sticky form of lumo_tarn_dp_tt_table_destroy(): works under the handle's default_id, also while last_error is
 * set. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_destroy_cr(mirk_handle *h, lumo_tarn_dp_tt_table *object);
/** Same as lumo_tarn_dp_tt_table_destroy(), but with free_it 0 the memory of the instance itself is not freed. For
 * instances that lie in memory of another object. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** Returns the instance itself, so that code can treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order; zeros if object is NULL. If the
 * instance has no body, nothing is written and no error is set. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    uint8_t *show_header, uint8_t *show_agg_list, uint8_t *show_filter_list, uint8_t *show_ll_header,
    uint8_t *show_ll_list, uint8_t *display_all, uint8_t *display_tc, uint8_t *display_ll, uint8_t *lumo_num,
    uint8_t *state, uint8_t *learn_type, uint8_t *agg_type, uint8_t *min_mask, uint8_t *tt_bit_flags,
    uint16_t *aging_type, uint32_t *num_prefixes, uint32_t *duration, uint32_t *start_time, uint32_t *end_time,
    uint64_t *agg_tc_list_ptr, uint64_t *filter_tc_list_ptr, uint64_t *learn_list_ptr, uint32_t *key_mask,
    uint64_t *thruput_head_ptr, uint32_t *thruput_entries, uint64_t *delay_head_ptr, uint32_t *delay_entries,
    uint32_t *err);
/** Adjusts the instance to the domain's variant, then stores all scalar members in table order, without counts and
 * lengths. If that variant has no body, nothing is stored and no error is set. Does not change state bytes, unlike the
 * setters of single members. EINVAL if object is NULL. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    uint8_t show_header, uint8_t show_agg_list, uint8_t show_filter_list, uint8_t show_ll_header, uint8_t show_ll_list,
    uint8_t display_all, uint8_t display_tc, uint8_t display_ll, uint8_t lumo_num, uint8_t state, uint8_t learn_type,
    uint8_t agg_type, uint8_t min_mask, uint8_t tt_bit_flags, uint16_t aging_type, uint32_t num_prefixes,
    uint32_t duration, uint32_t start_time, uint32_t end_time, uint64_t agg_tc_list_ptr, uint64_t filter_tc_list_ptr,
    uint64_t learn_list_ptr, uint32_t key_mask, uint64_t thruput_head_ptr, uint32_t thruput_entries,
    uint64_t delay_head_ptr, uint32_t delay_entries, uint32_t *err);
/** MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
 * source loses. What the destination owned before is not released. Moves even if err is already set. EINVAL if either
 * is NULL. On a tracking handle, EINVAL if either has no state bytes; arrays and strings are moved all the same. Use
 * lumo_tarn_dp_tt_table_copy_cr() to copy. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *destination,
    lumo_tarn_dp_tt_table *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy at the new location the only owner of arrays and
 * strings, and clears them at the old location. Acts even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *new_location, lumo_tarn_dp_tt_table *old_location, uint32_t *err);
/** Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
 * Elements of arrays in nested records are not filled. Leaks the blocks of element states: the elements of each array
 * then all have this state, and setting it for one of them has no effect. When such an array grows, the state of its
 * old elements becomes 0, and states can be set again. Has no effect without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value);
/** Returns 1 if the record has a member with this index, counted from 0 in table order, else 0. If the domain has a
 * variant above 0, every index gives 1. The instance is not read. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_is_valid_cr(mirk_handle *h, lumo_tarn_dp_tt_table *object,
    uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** Returns the number of object identifiers that the instance itself holds: 0 in this schema. EINVAL if object is
 * NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Writes up to size object identifiers that the instance itself holds: none in this schema. EINVAL if object is
 * NULL. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, void **oids, uint32_t size, uint32_t *err);
/** Stores in the runtime where the state of each nested record and IP address is. state_area is the address of the
 * instance's state area. For code that has moved the instance or its state. Acts even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, void *state_area, uint32_t *err);
/** Removes from the runtime the state locations that lumo_tarn_dp_tt_table_offset_update() stored, at every depth. Acts
 * even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Returns the buffer size in bytes that lumo_tarn_dp_tt_table_marshal() needs, without the guard byte. On a tracking
 * handle this is too large by one byte for each character and for each empty array or string. RA data is not counted:
 * add 9 bytes for each object that has it, including nested objects and elements. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *instance);
/** Sticky form of lumo_tarn_dp_tt_table_len(). Returns 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_len_cr(mirk_handle *h, lumo_tarn_dp_tt_table *instance);
/** Writes the instance as a frame into buffer, which must have remaining bytes and one guard byte after them. Returns
 * the number of bytes written; after an error the frame is not valid. EMSGSIZE or ENOMEM if the buffer is too small;
 * state bytes that do not fit are dropped without an error. EINVAL if instance is NULL. EIDRM if the domain does not
 * have the instance's variant. A lenient runtime then leaves err alone and the frame is written in the domain's
 * variant. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tt_table *instance, int32_t remaining, uint32_t *err);
/** Same as lumo_tarn_dp_tt_table_marshal(), but the outermost frame keeps the instance's own variant, whatever the
 * domain has. Nested records are still limited to the domain's variants. This is the frame of a deep copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tt_table *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes from buffer, which must have one guard byte after them, into an instance. Returns the
 * number of bytes consumed. It may exceed length without an error: check it before you advance. After an error it has
 * no meaning. With reuse 0 the instance must own no arrays or strings; they would be leaked. With reuse 1 its arrays
 * and strings are kept where the counts are equal; what the elements owned is leaked. The frame may come from an
 * untrusted peer. EMSGSIZE or ENOMEM if the frame is too short, ENOMEM if allocation fails, EINVAL if instance is NULL.
 * Calls abort() if the handle tracks state and the instance has none. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tt_table *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy through a frame in buffer, which must have size bytes and one guard byte after them. size: at
 * least lumo_tarn_dp_tt_table_len(), and 9 more for each object with RA data. *result is NULL after any error;
 * otherwise the caller owns it. ENOENT if source, result or buffer is NULL; other errors are those of
 * lumo_tarn_dp_tt_table_marshal() and lumo_tarn_dp_tt_table_unmarshal(). */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *source,
    lumo_tarn_dp_tt_table **result, void *buffer, uint32_t size, uint32_t *err);
/** Makes a deep copy through the handle's workspace, which has 65,536 bytes in the reference runtime. Returns NULL
 * after any error; otherwise the caller owns the copy. A larger record needs lumo_tarn_dp_tt_table_clone(). */
LUMO_UI_TARN_API lumo_tarn_dp_tt_table *lumo_tarn_dp_tt_table_clone_cr(mirk_handle *h, lumo_tarn_dp_tt_table *source);
/** Makes a deep copy in an existing instance, through the handle's workspace. What the destination owned before is not
 * released. After an error do not use or destroy it: it has been freed if the copy could not be read, and leaks if the
 * copy could not be written. A NULL destination leaks the copy. lumo_tarn_dp_tt_table_clone_cr() does not have these
 * problems. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_copy_cr(mirk_handle *h, lumo_tarn_dp_tt_table *source,
    lumo_tarn_dp_tt_table *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as readable text under this name, indented by indent blanks. Returns the length in bytes without
 * the final NUL. The indent of closing braces is counted but not written. Clear the buffer first, then replace NUL
 * bytes within the returned length by blanks. EMSGSIZE or ENOSPC if the text does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_tt_table *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_dp_tt_table_print(), under the type's own name. Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_print_cr(mirk_handle *h, lumo_tarn_dp_tt_table *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name with one element for each member. A nonzero state becomes an
 * attribute. Returns the length in bytes without the final NUL. EMSGSIZE if the text does not fit. EINVAL if the handle
 * tracks state and the instance has none. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_tt_table *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_dp_tt_table_to_xml(), under the type's own name. Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_toxml_cr(mirk_handle *h, lumo_tarn_dp_tt_table *instance, char *buffer,
    int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members without an element, and strings
 * with an empty one, keep their values. ENOENT if there is no element at the path. EINVAL for an invalid number, which
 * ends the reading. message, which may be NULL, gets a sentence only if reading an enumerator's element fails. Clear
 * its first byte before the call. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_tt_table *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign of the result has a meaning. NULL comes first.
 * Header and state are ignored. */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_tt_table_compare(const lumo_tarn_dp_tt_table *a, const lumo_tarn_dp_tt_table *b);
/** Mixes all members into the seed. Equal instances give equal results in every process. Returns the seed itself for
 * NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_hash(const lumo_tarn_dp_tt_table *instance, uint32_t seed);
/** Returns 1 if the record or one of its members has the modified mark. Clears the mark of the record and of the first
 * member that has one. Does not look into arrays: call it for each element. word is passed to the runtime unchanged.
 * NULL gives 0. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *instance, void *word);
/** @} */

/** @name show_header: whether to show the table's header
 *  @{ */
/** Returns the address of show_header in the object: whether to show the table's header. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_header_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of show_header: whether to show the table's header. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_header_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in show_header: whether to show the table's header. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_header_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in show_header: whether to show the table's header. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_header_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of show_header. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_header_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of show_header, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_header_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name show_agg_list: whether to show the aggregation class list
 *  @{ */
/** Returns the address of show_agg_list in the object: whether to show the aggregation class list. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_agg_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of show_agg_list: whether to show the aggregation class list. 0 for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_agg_list_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in show_agg_list: whether to show the aggregation class list. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_agg_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in show_agg_list: whether to show the aggregation class list. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_agg_list_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of show_agg_list. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_agg_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of show_agg_list, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_agg_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name show_filter_list: whether to show the filter class list
 *  @{ */
/** Returns the address of show_filter_list in the object: whether to show the filter class list. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_filter_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of show_filter_list: whether to show the filter class list. 0 for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_filter_list_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in show_filter_list: whether to show the filter class list. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_filter_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in show_filter_list: whether to show the filter class list. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_filter_list_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of show_filter_list. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_filter_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of show_filter_list, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_filter_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name show_ll_header: whether to show the header of the learn list
 *  @{ */
/** Returns the address of show_ll_header in the object: whether to show the header of the learn list. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_ll_header_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of show_ll_header: whether to show the header of the learn list. 0 for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_header_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in show_ll_header: whether to show the header of the learn list. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_header_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in show_ll_header: whether to show the header of the learn list. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_header_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of show_ll_header. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_header_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of show_ll_header, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_header_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name show_ll_list: whether to show the learn list itself
 *  @{ */
/** Returns the address of show_ll_list in the object: whether to show the learn list itself. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_show_ll_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of show_ll_list: whether to show the learn list itself. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_list_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in show_ll_list: whether to show the learn list itself. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in show_ll_list: whether to show the learn list itself. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_list_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of show_ll_list. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_show_ll_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of show_ll_list, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_show_ll_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_all: whether to show everything
 *  @{ */
/** Returns the address of display_all in the object: whether to show everything. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of display_all: whether to show everything. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in display_all: whether to show everything. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an
 * object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_all_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_all: whether to show everything. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_all. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of display_all, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_tc: whether to show the traffic classes
 *  @{ */
/** Returns the address of display_tc in the object: whether to show the traffic classes. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_display_tc_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of display_tc: whether to show the traffic classes. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_tc_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in display_tc: whether to show the traffic classes. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_tc_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_tc: whether to show the traffic classes. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_tc_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_tc. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_tc_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of display_tc, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_tc_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_ll: whether to show the learn lists
 *  @{ */
/** Returns the address of display_ll in the object: whether to show the learn lists. NULL for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_tt_table_display_ll_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of display_ll: whether to show the learn lists. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_ll_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in display_ll: whether to show the learn lists. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_ll_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_ll: whether to show the learn lists. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_ll_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_ll. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_display_ll_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of display_ll, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_display_ll_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name fdb_info: fdb memory of the table
 *  @{ */
/** Returns the address of fdb_info in the object: fdb memory of the table. NULL for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API lumo_tarn_fdb_mem_info *lumo_tarn_dp_tt_table_fdb_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** MOVES a record into fdb_info: fdb memory of the table. The source loses its arrays and strings. What fdb_info owned
 * before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM
 * for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_fdb_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    lumo_tarn_fdb_mem_info *source, uint32_t *err);
/** Returns the state byte of fdb_info. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_fdb_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of fdb_info, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_fdb_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name lumo_num: number of the lumo processor that holds the table
 *  @{ */
/** Returns the address of lumo_num in the object: number of the lumo processor that holds the table. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_lumo_num_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of lumo_num: number of the lumo processor that holds the table. 0 for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_lumo_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in lumo_num: number of the lumo processor that holds the table. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_lumo_num_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value in lumo_num: number of the lumo processor that holds the table. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_lumo_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of lumo_num. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_lumo_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of lumo_num, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_lumo_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name state: state of the table: a code of the data plane
 *  @{ */
/** Returns the address of state in the object: state of the table: a code of the data plane. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_state_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of state: state of the table: a code of the data plane. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_state_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in state: state of the table: a code of the data plane. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_state_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value in state: state of the table: a code of the data plane. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_state_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of state. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_state_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of state, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_state_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name learn_type: how the table learns: a code of the data plane
 *  @{ */
/** Returns the address of learn_type in the object: how the table learns: a code of the data plane. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_learn_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of learn_type: how the table learns: a code of the data plane. 0 for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in learn_type: how the table learns: a code of the data plane. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_type_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint8_t *source, uint32_t *err);
/** Stores a value in learn_type: how the table learns: a code of the data plane. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of learn_type. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of learn_type, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name agg_type: how the table aggregates: a code of the data plane
 *  @{ */
/** Returns the address of agg_type in the object: how the table aggregates: a code of the data plane. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_agg_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of agg_type: how the table aggregates: a code of the data plane. 0 for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in agg_type: how the table aggregates: a code of the data plane. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value in agg_type: how the table aggregates: a code of the data plane. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of agg_type. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of agg_type, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name min_mask: minimum mask length
 *  @{ */
/** Returns the address of min_mask in the object: minimum mask length. NULL for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_min_mask_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of min_mask: minimum mask length. 0 for a NULL object, and with EIDRM for an object without a
 * body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_min_mask_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in min_mask: minimum mask length. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_min_mask_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value in min_mask: minimum mask length. Notifies, marks the object as modified and, on a tracking handle,
 * sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes; EIDRM
 * for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_min_mask_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of min_mask. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_min_mask_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of min_mask, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_min_mask_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_bit_flags: flags of the table
 *  @{ */
/** Returns the address of tt_bit_flags in the object: flags of the table. NULL for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tt_table_tt_bit_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of tt_bit_flags: flags of the table. 0 for a NULL object, and with EIDRM for an object without a
 * body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_tt_bit_flags_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in tt_bit_flags: flags of the table. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_tt_bit_flags_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint8_t *source, uint32_t *err);
/** Stores a value in tt_bit_flags: flags of the table. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_tt_bit_flags_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** Returns the state byte of tt_bit_flags. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of tt_bit_flags, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_tt_bit_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name aging_type: how entries of the table age: a code of the data plane
 *  @{ */
/** Returns the address of aging_type in the object: how entries of the table age: a code of the data plane. NULL for a
 * NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tt_table_aging_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of aging_type: how entries of the table age: a code of the data plane. 0 for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tt_table_aging_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in aging_type: how entries of the table age: a code of the data plane. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_aging_type_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint16_t *source, uint32_t *err);
/** Stores a value in aging_type: how entries of the table age: a code of the data plane. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_aging_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint16_t value, uint32_t *err);
/** Returns the state byte of aging_type. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_aging_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of aging_type, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_aging_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_prefixes: number of prefixes in the table
 *  @{ */
/** Returns the address of num_prefixes in the object: number of prefixes in the table. NULL for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_num_prefixes_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of num_prefixes: number of prefixes in the table. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_num_prefixes_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in num_prefixes: number of prefixes in the table. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_num_prefixes_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
/** Stores a value in num_prefixes: number of prefixes in the table. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_num_prefixes_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** Returns the state byte of num_prefixes. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_num_prefixes_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of num_prefixes, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_num_prefixes_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name duration: duration, in the data plane's unit of time
 *  @{ */
/** Returns the address of duration in the object: duration, in the data plane's unit of time. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_duration_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of duration: duration, in the data plane's unit of time. 0 for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_duration_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in duration: duration, in the data plane's unit of time. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_duration_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value in duration: duration, in the data plane's unit of time. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_duration_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** Returns the state byte of duration. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_duration_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of duration, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_duration_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name start_time: start time, in the data plane's unit of time
 *  @{ */
/** Returns the address of start_time in the object: start time, in the data plane's unit of time. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_start_time_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of start_time: start time, in the data plane's unit of time. 0 for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_start_time_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in start_time: start time, in the data plane's unit of time. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_start_time_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
/** Stores a value in start_time: start time, in the data plane's unit of time. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_start_time_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** Returns the state byte of start_time. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_start_time_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of start_time, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_start_time_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name end_time: end time, in the data plane's unit of time
 *  @{ */
/** Returns the address of end_time in the object: end time, in the data plane's unit of time. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_end_time_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of end_time: end time, in the data plane's unit of time. 0 for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_end_time_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in end_time: end time, in the data plane's unit of time. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_end_time_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value in end_time: end time, in the data plane's unit of time. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_end_time_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** Returns the state byte of end_time. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_end_time_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of end_time, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_end_time_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name agg_tc_list_ptr: location of the aggregation class list in the data plane
 *  @{ */
/** Returns the address of agg_tc_list_ptr in the object: location of the aggregation class list in the data plane. NULL
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_agg_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of agg_tc_list_ptr: location of the aggregation class list in the data plane. 0 for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_agg_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in agg_tc_list_ptr: location of the aggregation class list in the data plane.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer
 * and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
/** Stores a value in agg_tc_list_ptr: location of the aggregation class list in the data plane. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking
 * handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
/** Returns the state byte of agg_tc_list_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of agg_tc_list_ptr, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name agg_tc_list: aggregation classes
 *  @{ */
/** Returns the address of agg_tc_list in the object: aggregation classes. NULL for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_tt_table_agg_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** MOVES a record into agg_tc_list: aggregation classes. The source loses its arrays and strings. What agg_tc_list
 * owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
/** Returns the state byte of agg_tc_list. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_agg_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of agg_tc_list, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_agg_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name filter_tc_list_ptr: location of the filter class list in the data plane
 *  @{ */
/** Returns the address of filter_tc_list_ptr in the object: location of the filter class list in the data plane. NULL
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_filter_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of filter_tc_list_ptr: location of the filter class list in the data plane. 0 for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_filter_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in filter_tc_list_ptr: location of the filter class list in the data plane. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
/** Stores a value in filter_tc_list_ptr: location of the filter class list in the data plane. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking
 * handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
/** Returns the state byte of filter_tc_list_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of filter_tc_list_ptr, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name filter_tc_list: filter classes
 *  @{ */
/** Returns the address of filter_tc_list in the object: filter classes. NULL for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_tt_table_filter_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** MOVES a record into filter_tc_list: filter classes. The source loses its arrays and strings. What filter_tc_list
 * owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
/** Returns the state byte of filter_tc_list. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_filter_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of filter_tc_list, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_filter_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name learn_list_ptr: location of the learn list in the data plane
 *  @{ */
/** Returns the address of learn_list_ptr in the object: location of the learn list in the data plane. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_learn_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of learn_list_ptr: location of the learn list in the data plane. 0 for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_learn_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in learn_list_ptr: location of the learn list in the data plane. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
/** Stores a value in learn_list_ptr: location of the learn list in the data plane. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
/** Returns the state byte of learn_list_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of learn_list_ptr, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name learn_list: learn list definitions of the table
 *  @{ */
/** Returns the address of learn_list in the object: learn list definitions of the table. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_dp_learn_list *lumo_tarn_dp_tt_table_learn_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** MOVES a record into learn_list: learn list definitions of the table. The source loses its arrays and strings. What
 * learn_list owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, lumo_tarn_dp_learn_list *source, uint32_t *err);
/** Returns the state byte of learn_list. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_learn_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of learn_list, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_learn_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name key_mask: mask of the table's key
 *  @{ */
/** Returns the address of key_mask in the object: mask of the table's key. NULL for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_key_mask_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of key_mask: mask of the table's key. 0 for a NULL object, and with EIDRM for an object without a
 * body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_key_mask_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in key_mask: mask of the table's key. Notifies, marks the object as modified and, on
 * a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_key_mask_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tt_table *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value in key_mask: mask of the table's key. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_key_mask_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** Returns the state byte of key_mask. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_key_mask_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of key_mask, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_key_mask_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name thruput_head_ptr: head of the throughput entries in the data plane
 *  @{ */
/** Returns the address of thruput_head_ptr in the object: head of the throughput entries in the data plane. NULL for a
 * NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_thruput_head_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of thruput_head_ptr: head of the throughput entries in the data plane. 0 for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_thruput_head_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in thruput_head_ptr: head of the throughput entries in the data plane. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_head_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
/** Stores a value in thruput_head_ptr: head of the throughput entries in the data plane. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_head_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
/** Returns the state byte of thruput_head_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of thruput_head_ptr, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_head_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name thruput_entries: number of throughput entries
 *  @{ */
/** Returns the address of thruput_entries in the object: number of throughput entries. NULL for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_thruput_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of thruput_entries: number of throughput entries. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_thruput_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in thruput_entries: number of throughput entries. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
/** Stores a value in thruput_entries: number of throughput entries. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** Returns the state byte of thruput_entries. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_thruput_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of thruput_entries, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_thruput_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name delay_head_ptr: head of the delay entries in the data plane
 *  @{ */
/** Returns the address of delay_head_ptr in the object: head of the delay entries in the data plane. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tt_table_delay_head_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of delay_head_ptr: head of the delay entries in the data plane. 0 for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tt_table_delay_head_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in delay_head_ptr: head of the delay entries in the data plane. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_head_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint64_t *source, uint32_t *err);
/** Stores a value in delay_head_ptr: head of the delay entries in the data plane. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_head_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint64_t value, uint32_t *err);
/** Returns the state byte of delay_head_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of delay_head_ptr, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_head_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

/** @name delay_entries: number of delay entries
 *  @{ */
/** Returns the address of delay_entries in the object: number of delay entries. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tt_table_delay_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Returns the value of delay_entries: number of delay entries. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tt_table_delay_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Stores the value of the source in delay_entries: number of delay entries. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an
 * object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, const uint32_t *source, uint32_t *err);
/** Stores a value in delay_entries: number of delay entries. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t value, uint32_t *err);
/** Returns the state byte of delay_entries. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tt_table_delay_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint32_t *err);
/** Sets the state byte of delay_entries, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_tt_table_delay_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tt_table *object, uint8_t value, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
