/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_cl_cfg_data.h - state of the client side as a whole. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_CL_CFG_DATA_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_CL_CFG_DATA_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_global_info.h>

LUMO_UI_TARN_BEGIN

/** State of the client side as a whole.
 *
 * | member                         | type                  | meaning |
 * |--------------------------------|-----------------------|---|
 * | display_all                    | boolean               | whether to show everything |
 * | display_smc                    | boolean               | whether to show the smc part |
 * | global_info                    | lumo_tarn_global_info | global record |
 * | tarn_smc_queue_initialized     | uint32_t              | flag word, set if the smc queue is initialized |
 * | tarn_smc_queue_size            | uint64_t              | size of the smc queue, in the unit of the client process |
 * | tarn_smc_blocked_flags         | uint32_t              | blocked flags of the smc queue |
 * | tarn_smc_queue_size_warn_count | uint64_t              | number of warnings on the queue's size |
 *
 * lumo_ui_tarn/families.h describes the operations. */
typedef struct lumo_tarn_cl_cfg_data lumo_tarn_cl_cfg_data;
/** The module's own type record of lumo_tarn_cl_cfg_data: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_cl_cfg_data_type_info_internal;

/** @name Lifecycle
 *  @{ */
/** Allocates an instance with all members zero. Returns NULL if allocation fails, or if the domain look-up of an
 * enumeration member fails. The caller owns the instance and releases it with lumo_tarn_cl_cfg_data_destroy(). */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_data_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_cl_cfg_data_create(): returns a sentinel instead of NULL if allocation fails or last_error
 * is set already. Returns NULL, not the sentinel, if the domain look-up of an enumeration member fails; last_error may
 * then be 0. Only destroy operations, and sticky forms while last_error is set, accept the sentinel. */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_data_create_cr(mirk_handle *h);
/** Same as lumo_tarn_cl_cfg_data_create(), but does not register the trace module of types. For callers that create
 * many instances. */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_data_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Initializes an instance in zeroed memory of the caller: header, usage counters, nested objects. type is normally
 * _lumo_tarn_cl_cfg_data_type_info_internal. notify 0 suppresses write notifications, skip_count 1 suppresses usage
 * counting. flags are added to obj_flag. sttr_base is the address of the state area if the instance is nested in
 * another one. EINVAL if a nested instance on a tracking handle has none. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Returns the size of an instance in bytes: its members, everything nested in it and, on a tracking handle, its state
 * area. Blocks of arrays and strings are not counted. The size differs between tracking modes. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_sizeof(mirk_handle *h);
/** Returns the variant, limited to 0, the highest one that this library has. */
LUMO_UI_TARN_API int8_t lumo_tarn_cl_cfg_data_variant_data_index_cap(int8_t variant);
/** Sets MIRK_OBJ_EMBEDDED in the instance and in the records, IP addresses and booleans nested in it. The caller
 * thereby states that the instance lies in memory of another object. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object);
/** Changes the instance to the variant that the handle's domain has for its type. Notifies if the variant changes. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Destroys the instance: its arrays and strings, everything nested in it, and its memory. NULL and the sentinel are
 * ignored. An instance that other objects refer to is released with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *object);
/** Sticky form of lumo_tarn_cl_cfg_data_destroy(): works under the handle's default_id, also while last_error is
 * set. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_destroy_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *object);
/** Same as lumo_tarn_cl_cfg_data_destroy(), but with free_it 0 the memory of the instance itself is not freed. For
 * instances that lie in memory of another object. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** Returns the instance itself, so that code can treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_data_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order; zeros if object is NULL. If the
 * instance has no body, nothing is written and no error is set. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *object,
    uint8_t *display_all, uint8_t *display_smc, uint32_t *tarn_smc_queue_initialized, uint64_t *tarn_smc_queue_size,
    uint32_t *tarn_smc_blocked_flags, uint64_t *tarn_smc_queue_size_warn_count, uint32_t *err);
/** Adjusts the instance to the domain's variant, then stores all scalar members in table order, without counts and
 * lengths. If that variant has no body, nothing is stored and no error is set. Does not change state bytes, unlike the
 * setters of single members. EINVAL if object is NULL. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *object,
    uint8_t display_all, uint8_t display_smc, uint32_t tarn_smc_queue_initialized, uint64_t tarn_smc_queue_size,
    uint32_t tarn_smc_blocked_flags, uint64_t tarn_smc_queue_size_warn_count, uint32_t *err);
/** MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
 * source loses. What the destination owned before is not released. Moves even if err is already set. EINVAL if either
 * is NULL. On a tracking handle, EINVAL if either has no state bytes; arrays and strings are moved all the same. Use
 * lumo_tarn_cl_cfg_data_copy_cr() to copy. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *destination,
    lumo_tarn_cl_cfg_data *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy at the new location the only owner of arrays and
 * strings, and clears them at the old location. Acts even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *new_location, lumo_tarn_cl_cfg_data *old_location, uint32_t *err);
/** Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
 * Elements of arrays in nested records are not filled. Leaks the blocks of element states: the elements of each array
 * then all have this state, and setting it for one of them has no effect. When such an array grows, the state of its
 * old elements becomes 0, and states can be set again. Has no effect without tracking. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value);
/** Returns 1 if the record has a member with this index, counted from 0 in table order, else 0. If the domain has a
 * variant above 0, every index gives 1. The instance is not read. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_is_valid_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *object,
    uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** Returns the number of object identifiers that the instance itself holds: 0 in this schema. EINVAL if object is
 * NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Writes up to size object identifiers that the instance itself holds: none in this schema. EINVAL if object is
 * NULL. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, void **oids, uint32_t size, uint32_t *err);
/** Stores in the runtime where the state of each nested record and IP address is. state_area is the address of the
 * instance's state area. For code that has moved the instance or its state. Acts even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, void *state_area, uint32_t *err);
/** Removes from the runtime the state locations that lumo_tarn_cl_cfg_data_offset_update() stored, at every depth. Acts
 * even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Returns the buffer size in bytes that lumo_tarn_cl_cfg_data_marshal() needs, without the guard byte. On a tracking
 * handle this is too large by one byte for each character and for each empty array or string. RA data is not counted:
 * add 9 bytes for each object that has it, including nested objects and elements. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *instance);
/** Sticky form of lumo_tarn_cl_cfg_data_len(). Returns 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_len_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *instance);
/** Writes the instance as a frame into buffer, which must have remaining bytes and one guard byte after them. Returns
 * the number of bytes written; after an error the frame is not valid. EMSGSIZE or ENOMEM if the buffer is too small;
 * state bytes that do not fit are dropped without an error. EINVAL if instance is NULL. EIDRM if the domain does not
 * have the instance's variant. A lenient runtime then leaves err alone and the frame is written in the domain's
 * variant. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_cfg_data *instance, int32_t remaining, uint32_t *err);
/** Same as lumo_tarn_cl_cfg_data_marshal(), but the outermost frame keeps the instance's own variant, whatever the
 * domain has. Nested records are still limited to the domain's variants. This is the frame of a deep copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_cfg_data *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes from buffer, which must have one guard byte after them, into an instance. Returns the
 * number of bytes consumed. It may exceed length without an error: check it before you advance. After an error it has
 * no meaning. With reuse 0 the instance must own no arrays or strings; they would be leaked. With reuse 1 its arrays
 * and strings are kept where the counts are equal; what the elements owned is leaked. The frame may come from an
 * untrusted peer. EMSGSIZE or ENOMEM if the frame is too short, ENOMEM if allocation fails, EINVAL if instance is NULL.
 * Calls abort() if the handle tracks state and the instance has none. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_cl_cfg_data *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy through a frame in buffer, which must have size bytes and one guard byte after them. size: at
 * least lumo_tarn_cl_cfg_data_len(), and 9 more for each object with RA data. *result is NULL after any error;
 * otherwise the caller owns it. ENOENT if source, result or buffer is NULL; other errors are those of
 * lumo_tarn_cl_cfg_data_marshal() and lumo_tarn_cl_cfg_data_unmarshal(). */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_cl_cfg_data *source,
    lumo_tarn_cl_cfg_data **result, void *buffer, uint32_t size, uint32_t *err);
/** Makes a deep copy through the handle's workspace, which has 65,536 bytes in the reference runtime. Returns NULL
 * after any error; otherwise the caller owns the copy. A larger record needs lumo_tarn_cl_cfg_data_clone(). */
LUMO_UI_TARN_API lumo_tarn_cl_cfg_data *lumo_tarn_cl_cfg_data_clone_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *source);
/** Makes a deep copy in an existing instance, through the handle's workspace. What the destination owned before is not
 * released. After an error do not use or destroy it: it has been freed if the copy could not be read, and leaks if the
 * copy could not be written. A NULL destination leaks the copy. lumo_tarn_cl_cfg_data_clone_cr() does not have these
 * problems. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_copy_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *source,
    lumo_tarn_cl_cfg_data *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as readable text under this name, indented by indent blanks. Returns the length in bytes without
 * the final NUL. The indent of closing braces is counted but not written. Clear the buffer first, then replace NUL
 * bytes within the returned length by blanks. EMSGSIZE or ENOSPC if the text does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_cl_cfg_data *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_cl_cfg_data_print(), under the type's own name. Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_print_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name with one element for each member. A nonzero state becomes an
 * attribute. Returns the length in bytes without the final NUL. EMSGSIZE if the text does not fit. EINVAL if the handle
 * tracks state and the instance has none. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_cl_cfg_data *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_cl_cfg_data_to_xml(), under the type's own name. Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_toxml_cr(mirk_handle *h, lumo_tarn_cl_cfg_data *instance, char *buffer,
    int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members without an element, and strings
 * with an empty one, keep their values. ENOENT if there is no element at the path. EINVAL for an invalid number, which
 * ends the reading. message, which may be NULL, gets a sentence only if reading an enumerator's element fails. Clear
 * its first byte before the call. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_cl_cfg_data *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign of the result has a meaning. NULL comes first.
 * Header and state are ignored. */
LUMO_UI_TARN_API int32_t lumo_tarn_cl_cfg_data_compare(const lumo_tarn_cl_cfg_data *a, const lumo_tarn_cl_cfg_data *b);
/** Mixes all members into the seed. Equal instances give equal results in every process. Returns the seed itself for
 * NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_hash(const lumo_tarn_cl_cfg_data *instance, uint32_t seed);
/** Returns 1 if the record or one of its members has the modified mark. Clears the mark of the record and of the first
 * member that has one. Does not look into arrays: call it for each element. word is passed to the runtime unchanged.
 * NULL gives 0. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *instance, void *word);
/** @} */

/** @name display_all: whether to show everything
 *  @{ */
/** Returns the address of display_all in the object: whether to show everything. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_cl_cfg_data_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Returns the value of display_all: whether to show everything. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Stores the value of the source in display_all: whether to show everything. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an
 * object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_all_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_all: whether to show everything. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_all. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Sets the state byte of display_all, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_smc: whether to show the smc part
 *  @{ */
/** Returns the address of display_smc in the object: whether to show the smc part. NULL for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_cl_cfg_data_display_smc_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Returns the value of display_smc: whether to show the smc part. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_display_smc_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Stores the value of the source in display_smc: whether to show the smc part. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an
 * object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_smc_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_smc: whether to show the smc part. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_smc_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_smc. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_display_smc_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Sets the state byte of display_smc, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_display_smc_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
/** @} */

/** @name global_info: global record
 *  @{ */
/** Returns the address of global_info in the object: global record. NULL for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_cl_cfg_data_global_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** MOVES a record into global_info: global record. The source loses its arrays and strings. What global_info owned
 * before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM
 * for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_global_info_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, lumo_tarn_global_info *source, uint32_t *err);
/** Returns the state byte of global_info. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_global_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Sets the state byte of global_info, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_global_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tarn_smc_queue_initialized: flag word, set if the smc queue is initialized
 *  @{ */
/** Returns the address of tarn_smc_queue_initialized in the object: flag word, set if the smc queue is initialized.
 * NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Returns the value of tarn_smc_queue_initialized: flag word, set if the smc queue is initialized. 0 for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Stores the value of the source in tarn_smc_queue_initialized: flag word, set if the smc queue is initialized.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer
 * and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const uint32_t *source, uint32_t *err);
/** Stores a value in tarn_smc_queue_initialized: flag word, set if the smc queue is initialized. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking
 * handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t value, uint32_t *err);
/** Returns the state byte of tarn_smc_queue_initialized. EINVAL if the handle's tracking mode is OFF or the object has
 * no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_state_flag_get(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Sets the state byte of tarn_smc_queue_initialized, notifies, and marks the object as modified. EINVAL if the
 * handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tarn_smc_queue_size: size of the smc queue, in the unit of the client process
 *  @{ */
/** Returns the address of tarn_smc_queue_size in the object: size of the smc queue, in the unit of the client process.
 * NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_cl_cfg_data_tarn_smc_queue_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Returns the value of tarn_smc_queue_size: size of the smc queue, in the unit of the client process. 0 for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_cl_cfg_data_tarn_smc_queue_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Stores the value of the source in tarn_smc_queue_size: size of the smc queue, in the unit of the client process.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer
 * and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const uint64_t *source, uint32_t *err);
/** Stores a value in tarn_smc_queue_size: size of the smc queue, in the unit of the client process. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking
 * handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint64_t value, uint32_t *err);
/** Returns the state byte of tarn_smc_queue_size. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_tarn_smc_queue_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Sets the state byte of tarn_smc_queue_size, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tarn_smc_blocked_flags: blocked flags of the smc queue
 *  @{ */
/** Returns the address of tarn_smc_blocked_flags in the object: blocked flags of the smc queue. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Returns the value of tarn_smc_blocked_flags: blocked flags of the smc queue. 0 for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Stores the value of the source in tarn_smc_blocked_flags: blocked flags of the smc queue. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const uint32_t *source, uint32_t *err);
/** Stores a value in tarn_smc_blocked_flags: blocked flags of the smc queue. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t value, uint32_t *err);
/** Returns the state byte of tarn_smc_blocked_flags. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Sets the state byte of tarn_smc_blocked_flags, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_blocked_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tarn_smc_queue_size_warn_count: number of warnings on the queue's size
 *  @{ */
/** Returns the address of tarn_smc_queue_size_warn_count in the object: number of warnings on the queue's size. NULL
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Returns the value of tarn_smc_queue_size_warn_count: number of warnings on the queue's size. 0 for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_get_value(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Stores the value of the source in tarn_smc_queue_size_warn_count: number of warnings on the queue's size. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, const uint64_t *source, uint32_t *err);
/** Stores a value in tarn_smc_queue_size_warn_count: number of warnings on the queue's size. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle,
 * EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_cl_cfg_data *object, uint64_t value, uint32_t *err);
/** Returns the state byte of tarn_smc_queue_size_warn_count. EINVAL if the handle's tracking mode is OFF or the object
 * has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_state_flag_get(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_cl_cfg_data *object, uint32_t *err);
/** Sets the state byte of tarn_smc_queue_size_warn_count, notifies, and marks the object as modified. EINVAL if the
 * handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_cl_cfg_data_tarn_smc_queue_size_warn_count_state_flag_set(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_cl_cfg_data *object, uint8_t value, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
