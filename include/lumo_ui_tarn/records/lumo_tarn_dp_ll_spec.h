/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_dp_ll_spec.h - definition of one learn list. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_LL_SPEC_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_LL_SPEC_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_tc_list.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/** Definition of one learn list.
 *
 * | member             | type                   | meaning |
 * |--------------------|------------------------|---|
 * | display_all        | boolean                | whether to show everything |
 * | display_tc         | boolean                | whether to show the traffic classes |
 * | display_appl       | boolean                | whether to show the applications |
 * | exmem_info         | lumo_tarn_exmem_info   | location of the definition in memory |
 * | id                 | uint32_t               | identifier of the definition |
 * | min_mask           | uint8_t                | minimum mask length |
 * | agg_type           | uint8_t                | how the list aggregates: a code of the data plane |
 * | learn_type         | uint8_t                | how the list learns: a code of the data plane |
 * | ll_type            | uint8_t                | kind of learn list: a code of the data plane |
 * | num_prefixes       | uint32_t               | number of prefixes |
 * | filter_tc_list_ptr | uint64_t               | location of the filter list in the data plane |
 * | filter_tc_list     | lumo_tarn_dp_tc_list   | filter traffic classes |
 * | acl_tc_list_ptr    | uint64_t               | location of the access-list classes in the data plane |
 * | acl_tc_list        | lumo_tarn_dp_tc_list   | access-list traffic classes |
 * | appl_list_ptr      | uint64_t               | location of the application list in the data plane |
 * | appl_list          | lumo_tarn_dp_appl_list | applications |
 * | next_ptr           | uint64_t               | link to the next definition |
 * | head_ptr           | uint64_t               | head of the entries that num_entries counts |
 * | num_entries        | uint32_t               | number of entries that start at head_ptr |
 * | heap_max_elements  | uint32_t               | capacity of the definition's heap |
 * | heap_size          | uint32_t               | current size of the heap |
 * | heap_compare_func  | uint64_t               | value of the heap's comparison routine as a 64-bit number |
 * | heap_elements_ptr  | uint64_t               | location of the heap's elements |
 * | show_ll_comm       | boolean                | selection flag of the show command |
 *
 * lumo_ui_tarn/families.h describes the operations. */
typedef struct lumo_tarn_dp_ll_spec lumo_tarn_dp_ll_spec;
/** The module's own type record of lumo_tarn_dp_ll_spec: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_ll_spec_type_info_internal;

/** @name Lifecycle
 *  @{ */
/** Allocates an instance with all members zero. Returns NULL if allocation fails, or if the domain look-up of an
 * enumeration member fails. The caller owns the instance and releases it with lumo_tarn_dp_ll_spec_destroy(). */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_dp_ll_spec_create(): returns a sentinel instead of NULL if allocation fails or last_error
 * is set already. Returns NULL, not the sentinel, if the domain look-up of an enumeration member fails; last_error may
 * then be 0. Only destroy operations, and sticky forms while last_error is set, accept the sentinel. */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_create_cr(mirk_handle *h);
/** Same as lumo_tarn_dp_ll_spec_create(), but does not register the trace module of types. For callers that create many
 * instances. */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Initializes an instance in zeroed memory of the caller: header, usage counters, nested objects. type is normally
 * _lumo_tarn_dp_ll_spec_type_info_internal. notify 0 suppresses write notifications, skip_count 1 suppresses usage
 * counting. flags are added to obj_flag. sttr_base is the address of the state area if the instance is nested in
 * another one. EINVAL if a nested instance on a tracking handle has none. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Returns the size of an instance in bytes: its members, everything nested in it and, on a tracking handle, its state
 * area. Blocks of arrays and strings are not counted. The size differs between tracking modes. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_sizeof(mirk_handle *h);
/** Returns the variant, limited to 0, the highest one that this library has. */
LUMO_UI_TARN_API int8_t lumo_tarn_dp_ll_spec_variant_data_index_cap(int8_t variant);
/** Sets MIRK_OBJ_EMBEDDED in the instance and in the records, IP addresses and booleans nested in it. The caller
 * thereby states that the instance lies in memory of another object. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object);
/** Changes the instance to the variant that the handle's domain has for its type. Notifies if the variant changes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t *err);
/** Destroys the instance: its arrays and strings, everything nested in it, and its memory. NULL and the sentinel are
 * ignored. An instance that other objects refer to is released with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object);
/** Sticky form of lumo_tarn_dp_ll_spec_destroy(): works under the handle's default_id, also while last_error is set. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_destroy_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *object);
/** Same as lumo_tarn_dp_ll_spec_destroy(), but with free_it 0 the memory of the instance itself is not freed. For
 * instances that lie in memory of another object. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** Returns the instance itself, so that code can treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order; zeros if object is NULL. If the
 * instance has no body, nothing is written and no error is set. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint8_t *display_all, uint8_t *display_tc, uint8_t *display_appl, uint32_t *id, uint8_t *min_mask,
    uint8_t *agg_type, uint8_t *learn_type, uint8_t *ll_type, uint32_t *num_prefixes, uint64_t *filter_tc_list_ptr,
    uint64_t *acl_tc_list_ptr, uint64_t *appl_list_ptr, uint64_t *next_ptr, uint64_t *head_ptr, uint32_t *num_entries,
    uint32_t *heap_max_elements, uint32_t *heap_size, uint64_t *heap_compare_func, uint64_t *heap_elements_ptr,
    uint8_t *show_ll_comm, uint32_t *err);
/** Adjusts the instance to the domain's variant, then stores all scalar members in table order, without counts and
 * lengths. If that variant has no body, nothing is stored and no error is set. Does not change state bytes, unlike the
 * setters of single members. EINVAL if object is NULL. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint8_t display_all, uint8_t display_tc, uint8_t display_appl, uint32_t id, uint8_t min_mask, uint8_t agg_type,
    uint8_t learn_type, uint8_t ll_type, uint32_t num_prefixes, uint64_t filter_tc_list_ptr, uint64_t acl_tc_list_ptr,
    uint64_t appl_list_ptr, uint64_t next_ptr, uint64_t head_ptr, uint32_t num_entries, uint32_t heap_max_elements,
    uint32_t heap_size, uint64_t heap_compare_func, uint64_t heap_elements_ptr, uint8_t show_ll_comm, uint32_t *err);
/** MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
 * source loses. What the destination owned before is not released. Moves even if err is already set. EINVAL if either
 * is NULL. On a tracking handle, EINVAL if either has no state bytes; arrays and strings are moved all the same. Use
 * lumo_tarn_dp_ll_spec_copy_cr() to copy. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *destination,
    lumo_tarn_dp_ll_spec *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy at the new location the only owner of arrays and
 * strings, and clears them at the old location. Acts even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *new_location, lumo_tarn_dp_ll_spec *old_location, uint32_t *err);
/** Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
 * Elements of arrays in nested records are not filled. Leaks the blocks of element states: the elements of each array
 * then all have this state, and setting it for one of them has no effect. When such an array grows, the state of its
 * old elements becomes 0, and states can be set again. Has no effect without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value);
/** Returns 1 if the record has a member with this index, counted from 0 in table order, else 0. If the domain has a
 * variant above 0, every index gives 1. The instance is not read. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_is_valid_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *object,
    uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** Returns the number of object identifiers that the instance itself holds: 0 in this schema. EINVAL if object is
 * NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Writes up to size object identifiers that the instance itself holds: none in this schema. EINVAL if object is
 * NULL. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, void **oids, uint32_t size, uint32_t *err);
/** Stores in the runtime where the state of each nested record and IP address is. state_area is the address of the
 * instance's state area. For code that has moved the instance or its state. Acts even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    void *state_area, uint32_t *err);
/** Removes from the runtime the state locations that lumo_tarn_dp_ll_spec_offset_update() stored, at every depth. Acts
 * even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Returns the buffer size in bytes that lumo_tarn_dp_ll_spec_marshal() needs, without the guard byte. On a tracking
 * handle this is too large by one byte for each character and for each empty array or string. RA data is not counted:
 * add 9 bytes for each object that has it, including nested objects and elements. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *instance);
/** Sticky form of lumo_tarn_dp_ll_spec_len(). Returns 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_len_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *instance);
/** Writes the instance as a frame into buffer, which must have remaining bytes and one guard byte after them. Returns
 * the number of bytes written; after an error the frame is not valid. EMSGSIZE or ENOMEM if the buffer is too small;
 * state bytes that do not fit are dropped without an error. EINVAL if instance is NULL. EIDRM if the domain does not
 * have the instance's variant. A lenient runtime then leaves err alone and the frame is written in the domain's
 * variant. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint32_t *err);
/** Same as lumo_tarn_dp_ll_spec_marshal(), but the outermost frame keeps the instance's own variant, whatever the
 * domain has. Nested records are still limited to the domain's variants. This is the frame of a deep copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes from buffer, which must have one guard byte after them, into an instance. Returns the
 * number of bytes consumed. It may exceed length without an error: check it before you advance. After an error it has
 * no meaning. With reuse 0 the instance must own no arrays or strings; they would be leaked. With reuse 1 its arrays
 * and strings are kept where the counts are equal; what the elements owned is leaked. The frame may come from an
 * untrusted peer. EMSGSIZE or ENOMEM if the frame is too short, ENOMEM if allocation fails, EINVAL if instance is NULL.
 * Calls abort() if the handle tracks state and the instance has none. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_ll_spec *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy through a frame in buffer, which must have size bytes and one guard byte after them. size: at
 * least lumo_tarn_dp_ll_spec_len(), and 9 more for each object with RA data. *result is NULL after any error; otherwise
 * the caller owns it. ENOENT if source, result or buffer is NULL; other errors are those of
 * lumo_tarn_dp_ll_spec_marshal() and lumo_tarn_dp_ll_spec_unmarshal(). */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *source,
    lumo_tarn_dp_ll_spec **result, void *buffer, uint32_t size, uint32_t *err);
/** Makes a deep copy through the handle's workspace, which has 65,536 bytes in the reference runtime. Returns NULL
 * after any error; otherwise the caller owns the copy. A larger record needs lumo_tarn_dp_ll_spec_clone(). */
LUMO_UI_TARN_API lumo_tarn_dp_ll_spec *lumo_tarn_dp_ll_spec_clone_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *source);
/** Makes a deep copy in an existing instance, through the handle's workspace. What the destination owned before is not
 * released. After an error do not use or destroy it: it has been freed if the copy could not be read, and leaks if the
 * copy could not be written. A NULL destination leaks the copy. lumo_tarn_dp_ll_spec_clone_cr() does not have these
 * problems. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_copy_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *source,
    lumo_tarn_dp_ll_spec *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as readable text under this name, indented by indent blanks. Returns the length in bytes without
 * the final NUL. The indent of closing braces is counted but not written. Clear the buffer first, then replace NUL
 * bytes within the returned length by blanks. EMSGSIZE or ENOSPC if the text does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_dp_ll_spec_print(), under the type's own name. Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_print_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name with one element for each member. A nonzero state becomes an
 * attribute. Returns the length in bytes without the final NUL. EMSGSIZE if the text does not fit. EINVAL if the handle
 * tracks state and the instance has none. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_ll_spec *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_dp_ll_spec_to_xml(), under the type's own name. Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_toxml_cr(mirk_handle *h, lumo_tarn_dp_ll_spec *instance, char *buffer,
    int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members without an element, and strings
 * with an empty one, keep their values. ENOENT if there is no element at the path. EINVAL for an invalid number, which
 * ends the reading. message, which may be NULL, gets a sentence only if reading an enumerator's element fails. Clear
 * its first byte before the call. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_ll_spec *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign of the result has a meaning. NULL comes first.
 * Header and state are ignored. */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_ll_spec_compare(const lumo_tarn_dp_ll_spec *a, const lumo_tarn_dp_ll_spec *b);
/** Mixes all members into the seed. Equal instances give equal results in every process. Returns the seed itself for
 * NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_hash(const lumo_tarn_dp_ll_spec *instance, uint32_t seed);
/** Returns 1 if the record or one of its members has the modified mark. Clears the mark of the record and of the first
 * member that has one. Does not look into arrays: call it for each element. word is passed to the runtime unchanged.
 * NULL gives 0. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *instance, void *word);
/** @} */

/** @name display_all: whether to show everything
 *  @{ */
/** Returns the address of display_all in the object: whether to show everything. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of display_all: whether to show everything. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in display_all: whether to show everything. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an
 * object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_all_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_all: whether to show everything. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_all. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of display_all, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_tc: whether to show the traffic classes
 *  @{ */
/** Returns the address of display_tc in the object: whether to show the traffic classes. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_display_tc_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of display_tc: whether to show the traffic classes. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_tc_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in display_tc: whether to show the traffic classes. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_tc_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_tc: whether to show the traffic classes. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_tc_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_tc. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_tc_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of display_tc, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_tc_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_appl: whether to show the applications
 *  @{ */
/** Returns the address of display_appl in the object: whether to show the applications. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_display_appl_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of display_appl: whether to show the applications. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_appl_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in display_appl: whether to show the applications. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_appl_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_appl: whether to show the applications. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_appl_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_appl. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_display_appl_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of display_appl, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_display_appl_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name exmem_info: location of the definition in memory
 *  @{ */
/** Returns the address of exmem_info in the object: location of the definition in memory. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_dp_ll_spec_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** MOVES a record into exmem_info: location of the definition in memory. The source loses its arrays and strings. What
 * exmem_info owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_exmem_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    lumo_tarn_exmem_info *source, uint32_t *err);
/** Returns the state byte of exmem_info. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_exmem_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of exmem_info, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_exmem_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name id: identifier of the definition
 *  @{ */
/** Returns the address of id in the object: identifier of the definition. NULL for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_id_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t *err);
/** Returns the value of id: identifier of the definition. 0 for a NULL object, and with EIDRM for an object without a
 * body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_id_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in id: identifier of the definition. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value in id: identifier of the definition. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_id_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    uint32_t value, uint32_t *err);
/** Returns the state byte of id. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_id_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of id, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is OFF
 * or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_id_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name min_mask: minimum mask length
 *  @{ */
/** Returns the address of min_mask in the object: minimum mask length. NULL for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_min_mask_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of min_mask: minimum mask length. 0 for a NULL object, and with EIDRM for an object without a
 * body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_min_mask_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in min_mask: minimum mask length. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_min_mask_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value in min_mask: minimum mask length. Notifies, marks the object as modified and, on a tracking handle,
 * sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes; EIDRM
 * for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_min_mask_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** Returns the state byte of min_mask. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_min_mask_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of min_mask, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_min_mask_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name agg_type: how the list aggregates: a code of the data plane
 *  @{ */
/** Returns the address of agg_type in the object: how the list aggregates: a code of the data plane. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_agg_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of agg_type: how the list aggregates: a code of the data plane. 0 for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_agg_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in agg_type: how the list aggregates: a code of the data plane. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_agg_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value in agg_type: how the list aggregates: a code of the data plane. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_agg_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** Returns the state byte of agg_type. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_agg_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of agg_type, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_agg_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name learn_type: how the list learns: a code of the data plane
 *  @{ */
/** Returns the address of learn_type in the object: how the list learns: a code of the data plane. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_learn_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of learn_type: how the list learns: a code of the data plane. 0 for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_learn_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in learn_type: how the list learns: a code of the data plane. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_learn_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value in learn_type: how the list learns: a code of the data plane. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_learn_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** Returns the state byte of learn_type. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_learn_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of learn_type, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_learn_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ll_type: kind of learn list: a code of the data plane
 *  @{ */
/** Returns the address of ll_type in the object: kind of learn list: a code of the data plane. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_ll_spec_ll_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of ll_type: kind of learn list: a code of the data plane. 0 for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_ll_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in ll_type: kind of learn list: a code of the data plane. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_ll_type_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value in ll_type: kind of learn list: a code of the data plane. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_ll_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** Returns the state byte of ll_type. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_ll_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of ll_type, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_ll_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_prefixes: number of prefixes
 *  @{ */
/** Returns the address of num_prefixes in the object: number of prefixes. NULL for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_num_prefixes_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of num_prefixes: number of prefixes. 0 for a NULL object, and with EIDRM for an object without a
 * body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_num_prefixes_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in num_prefixes: number of prefixes. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_prefixes_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint32_t *source, uint32_t *err);
/** Stores a value in num_prefixes: number of prefixes. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_prefixes_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
/** Returns the state byte of num_prefixes. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_num_prefixes_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of num_prefixes, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_prefixes_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name filter_tc_list_ptr: location of the filter list in the data plane
 *  @{ */
/** Returns the address of filter_tc_list_ptr in the object: location of the filter list in the data plane. NULL for a
 * NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_filter_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of filter_tc_list_ptr: location of the filter list in the data plane. 0 for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_filter_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in filter_tc_list_ptr: location of the filter list in the data plane. Notifies, marks
 * the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
/** Stores a value in filter_tc_list_ptr: location of the filter list in the data plane. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** Returns the state byte of filter_tc_list_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of filter_tc_list_ptr, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name filter_tc_list: filter traffic classes
 *  @{ */
/** Returns the address of filter_tc_list in the object: filter traffic classes. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_ll_spec_filter_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** MOVES a record into filter_tc_list: filter traffic classes. The source loses its arrays and strings. What
 * filter_tc_list owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
/** Returns the state byte of filter_tc_list. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of filter_tc_list, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_filter_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name acl_tc_list_ptr: location of the access-list classes in the data plane
 *  @{ */
/** Returns the address of acl_tc_list_ptr in the object: location of the access-list classes in the data plane. NULL
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_acl_tc_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of acl_tc_list_ptr: location of the access-list classes in the data plane. 0 for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_acl_tc_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in acl_tc_list_ptr: location of the access-list classes in the data plane. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
/** Stores a value in acl_tc_list_ptr: location of the access-list classes in the data plane. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle,
 * EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** Returns the state byte of acl_tc_list_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of acl_tc_list_ptr, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name acl_tc_list: access-list traffic classes
 *  @{ */
/** Returns the address of acl_tc_list in the object: access-list traffic classes. NULL for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_dp_tc_list *lumo_tarn_dp_ll_spec_acl_tc_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** MOVES a record into acl_tc_list: access-list traffic classes. The source loses its arrays and strings. What
 * acl_tc_list owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, lumo_tarn_dp_tc_list *source, uint32_t *err);
/** Returns the state byte of acl_tc_list. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of acl_tc_list, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_acl_tc_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_list_ptr: location of the application list in the data plane
 *  @{ */
/** Returns the address of appl_list_ptr in the object: location of the application list in the data plane. NULL for a
 * NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_appl_list_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of appl_list_ptr: location of the application list in the data plane. 0 for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_appl_list_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in appl_list_ptr: location of the application list in the data plane. Notifies, marks
 * the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
/** Stores a value in appl_list_ptr: location of the application list in the data plane. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** Returns the state byte of appl_list_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of appl_list_ptr, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_list: applications
 *  @{ */
/** Returns the address of appl_list in the object: applications. NULL for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API lumo_tarn_dp_appl_list *lumo_tarn_dp_ll_spec_appl_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** MOVES a record into appl_list: applications. The source loses its arrays and strings. What appl_list owned before is
 * not released. EINVAL for a NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one
 * without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    lumo_tarn_dp_appl_list *source, uint32_t *err);
/** Returns the state byte of appl_list. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_appl_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of appl_list, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_appl_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name next_ptr: link to the next definition
 *  @{ */
/** Returns the address of next_ptr in the object: link to the next definition. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_next_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of next_ptr: link to the next definition. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_next_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in next_ptr: link to the next definition. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_next_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value in next_ptr: link to the next definition. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_next_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** Returns the state byte of next_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_next_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of next_ptr, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_next_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name head_ptr: head of the entries that num_entries counts
 *  @{ */
/** Returns the address of head_ptr in the object: head of the entries that num_entries counts. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_head_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of head_ptr: head of the entries that num_entries counts. 0 for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_head_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in head_ptr: head of the entries that num_entries counts. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_head_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value in head_ptr: head of the entries that num_entries counts. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_head_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** Returns the state byte of head_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_head_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of head_ptr, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_head_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_entries: number of entries that start at head_ptr
 *  @{ */
/** Returns the address of num_entries in the object: number of entries that start at head_ptr. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_num_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of num_entries: number of entries that start at head_ptr. 0 for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_num_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in num_entries: number of entries that start at head_ptr. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint32_t *source, uint32_t *err);
/** Stores a value in num_entries: number of entries that start at head_ptr. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
/** Returns the state byte of num_entries. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_num_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of num_entries, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_num_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name heap_max_elements: capacity of the definition's heap
 *  @{ */
/** Returns the address of heap_max_elements in the object: capacity of the definition's heap. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_heap_max_elements_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of heap_max_elements: capacity of the definition's heap. 0 for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_heap_max_elements_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in heap_max_elements: capacity of the definition's heap. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_max_elements_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint32_t *source, uint32_t *err);
/** Stores a value in heap_max_elements: capacity of the definition's heap. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_max_elements_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
/** Returns the state byte of heap_max_elements. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of heap_max_elements, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_max_elements_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name heap_size: current size of the heap
 *  @{ */
/** Returns the address of heap_size in the object: current size of the heap. NULL for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_ll_spec_heap_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of heap_size: current size of the heap. 0 for a NULL object, and with EIDRM for an object without
 * a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_ll_spec_heap_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in heap_size: current size of the heap. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_size_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_ll_spec *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value in heap_size: current size of the heap. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t value, uint32_t *err);
/** Returns the state byte of heap_size. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of heap_size, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name heap_compare_func: value of the heap's comparison routine as a 64-bit number
 *  @{ */
/** Returns the address of heap_compare_func in the object: value of the heap's comparison routine as a 64-bit number.
 * NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_heap_compare_func_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of heap_compare_func: value of the heap's comparison routine as a 64-bit number. 0 for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_heap_compare_func_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in heap_compare_func: value of the heap's comparison routine as a 64-bit number.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer
 * and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_compare_func_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
/** Stores a value in heap_compare_func: value of the heap's comparison routine as a 64-bit number. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking
 * handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_compare_func_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** Returns the state byte of heap_compare_func. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of heap_compare_func, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_compare_func_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name heap_elements_ptr: location of the heap's elements
 *  @{ */
/** Returns the address of heap_elements_ptr in the object: location of the heap's elements. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_ll_spec_heap_elements_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of heap_elements_ptr: location of the heap's elements. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_ll_spec_heap_elements_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in heap_elements_ptr: location of the heap's elements. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_elements_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const uint64_t *source, uint32_t *err);
/** Stores a value in heap_elements_ptr: location of the heap's elements. Notifies, marks the object as modified and, on
 * a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_elements_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint64_t value, uint32_t *err);
/** Returns the state byte of heap_elements_ptr. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of heap_elements_ptr, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_heap_elements_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

/** @name show_ll_comm: selection flag of the show command
 *  @{ */
/** Returns the address of show_ll_comm in the object: selection flag of the show command. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_dp_ll_spec_show_ll_comm_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Returns the value of show_ll_comm: selection flag of the show command. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_show_ll_comm_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Stores the value of the source in show_ll_comm: selection flag of the show command. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_show_ll_comm_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in show_ll_comm: selection flag of the show command. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_show_ll_comm_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** Returns the state byte of show_ll_comm. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint32_t *err);
/** Sets the state byte of show_ll_comm, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_ll_spec_show_ll_comm_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_ll_spec *object, uint8_t value, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
