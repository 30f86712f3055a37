/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_static_exmem_info.h - block that a processor holds for the whole of its life, by kind of memory. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_STATIC_EXMEM_INFO_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_STATIC_EXMEM_INFO_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/enumerations/lumo_tarn_mem_desc_e.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/** Block that a processor holds for the whole of its life, by kind of memory.
 *
 * | member            | type                 | meaning |
 * |-------------------|----------------------|---|
 * | mem_type          | lumo_tarn_mem_desc_e | what the block is used for |
 * | num_hash_elements | uint32_t             | number of hash elements in the block |
 * | exmem             | lumo_tarn_exmem_info | block itself |
 *
 * How the operations of all records behave is told in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_static_exmem_info lumo_tarn_static_exmem_info;
/** The module's own type record of lumo_tarn_static_exmem_info: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_static_exmem_info_type_info_internal;

/** @name Life
 *  @{ */
/** Makes an instance with all members zero, or null without memory. It belongs to the caller, who ends it with
 * lumo_tarn_static_exmem_info_destroy(). */
LUMO_UI_TARN_API lumo_tarn_static_exmem_info *lumo_tarn_static_exmem_info_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_static_exmem_info_create(): works under the handle's default_id, makes nothing while
 * last_error is set, and answers a sentinel instead of null, which only lumo_tarn_static_exmem_info_destroy() and
 * sticky forms may be given. */
LUMO_UI_TARN_API lumo_tarn_static_exmem_info *lumo_tarn_static_exmem_info_create_cr(mirk_handle *h);
/** As lumo_tarn_static_exmem_info_create(), without registering the trace module of types first: for whoever makes
 * many. */
LUMO_UI_TARN_API lumo_tarn_static_exmem_info *lumo_tarn_static_exmem_info_create_internal(mirk_handle *h,
    uint32_t ctx_id);
/** Sets up an instance in zeroed memory of the caller's: header, usage counter, and what it embeds. The type is
 * commonly _lumo_tarn_static_exmem_info_type_info_internal. With notify 0 the writes are not announced, with skip_count
 * 1 nothing is counted; flags go into obj_flag, and sttr_base is where the state lies of an instance that is nested in
 * another. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_initialize(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags,
    void *sttr_base, uint32_t *err);
/** Bytes of an instance with everything that it nests and, on a handle that tracks, its state. Differs between
 * handles. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_sizeof(mirk_handle *h);
/** The variant itself, or the highest that this library knows if that is lower. */
LUMO_UI_TARN_API int8_t lumo_tarn_static_exmem_info_variant_data_index_cap(int8_t variant);
/** Marks the instance, with the records, addresses and booleans in it, as lying in memory of another one
 * (MIRK_OBJ_EMBEDDED). */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object);
/** Brings the instance to the variant that the handle's domain has for its type; announced if that changes it. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** Ends the instance: its arrays and strings, what it nests, and its memory. Null and the sentinel are passed over. An
 * instance that others refer to goes with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_destroy(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object);
/** lumo_tarn_static_exmem_info_destroy() under the handle's default_id. Works whatever last_error holds. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_destroy_cr(mirk_handle *h, lumo_tarn_static_exmem_info *object);
/** As lumo_tarn_static_exmem_info_destroy(); with free_it 0 the memory of the instance itself is left to its owner, as
 * for an instance that lies inside another. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** The instance itself: lets code treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_static_exmem_info *lumo_tarn_static_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order. Writes nothing for an instance
 * without body, and no error tells. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_get_all(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *mem_type, uint32_t *num_hash_elements, uint32_t *err);
/** Stores all scalar members, in table order; counts and lengths are not among them. State bytes stay as they are,
 * unlike with the setters of single members. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_set_all(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t mem_type, uint32_t num_hash_elements, uint32_t *err);
/** MOVES the source into the destination: members, state, and the ownership of arrays and strings, which the source
 * loses. What the destination owned before is not released. lumo_tarn_static_exmem_info_copy_cr() copies. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *destination, lumo_tarn_static_exmem_info *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy in the new place the one owner of arrays and strings,
 * and takes them from the old place. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *new_place, lumo_tarn_static_exmem_info *old_place, uint32_t *err);
/** Fills the whole state area with one byte, unannounced, and that of every array element too. Element states then read
 * as this value, and can no longer be set one by one. Does nothing without tracking. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint8_t value);
/** 1 if the handle's domain has a member of this index, counted from 0 in table order; the instance is not looked
 * at. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_is_valid_cr(mirk_handle *h, lumo_tarn_static_exmem_info *object,
    uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** How many object identifiers the instance holds of its own: 0 in this schema. EINVAL for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** Would write up to size object identifiers that the instance holds of its own: writes none in this schema. EINVAL for
 * null. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, void **oids, uint32_t size, uint32_t *err);
/** Tells the runtime where in the state area at this address the state of each nested record and address lies: for
 * whoever has moved the instance or its state. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, void *state_area, uint32_t *err);
/** Has the runtime forget the places of states that lumo_tarn_static_exmem_info_offset_update() told it, at every
 * depth. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Bytes that a buffer for lumo_tarn_static_exmem_info_marshal() needs, its spare byte aside. Says a little more than
 * is written: see families.h. RA data comes on top. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_len(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *instance);
/** Sticky form of lumo_tarn_static_exmem_info_len(): 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_len_cr(mirk_handle *h, lumo_tarn_static_exmem_info *instance);
/** Writes the instance as a frame into the remaining bytes at buffer, behind which one spare byte lies. Returns the
 * bytes written. Goes on after a failure, so that only err tells: ENOMEM or EMSGSIZE for too little room, EIDRM if the
 * domain has no place for the instance's variant, in which case the frame is written in the domain's. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_static_exmem_info *instance, int32_t remaining, uint32_t *err);
/** As lumo_tarn_static_exmem_info_marshal(), but in the instance's own variant whatever the domain has: the frame of a
 * deep copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_static_exmem_info *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes at buffer, behind which one spare byte lies, into an instance. Returns the bytes
 * consumed. With reuse 0 the instance owns nothing yet, and what it owned is lost; with reuse 1 its arrays and strings
 * are kept where the counts are equal. The frame is never trusted. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_static_exmem_info *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy by way of a frame in the buffer, which has size bytes, lumo_tarn_static_exmem_info_len() of them
 * at least, and one to spare. The result is null after any error; otherwise it belongs to the caller. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_clone(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *source, lumo_tarn_static_exmem_info **result, void *buffer, uint32_t size,
    uint32_t *err);
/** Deep copy by way of the handle's workspace, null after any error. A record that is too large for the workspace needs
 * lumo_tarn_static_exmem_info_clone(). */
LUMO_UI_TARN_API lumo_tarn_static_exmem_info *lumo_tarn_static_exmem_info_clone_cr(mirk_handle *h,
    lumo_tarn_static_exmem_info *source);
/** Deep copy into an existing instance, by way of the handle's workspace. What the destination owned is not released;
 * if reading fails, the destination is destroyed. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_copy_cr(mirk_handle *h, lumo_tarn_static_exmem_info *source,
    lumo_tarn_static_exmem_info *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as text for people, indent blanks in and headed by the name. Returns the characters written.
 * Clear the buffer first: bytes in front of closing braces are counted and not written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_print(mirk_handle *h, uint32_t ctx_id, char *buffer,
    uint32_t indent, const char *name, lumo_tarn_static_exmem_info *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_static_exmem_info_print(), without indent and headed by the record's name. 0xFFFFFFFF after
 * an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_print_cr(mirk_handle *h, lumo_tarn_static_exmem_info *instance,
    char *buffer, int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name, one element in it for each member. A nonzero state shows as an
 * attribute. Returns the characters written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name,
    char *buffer, lumo_tarn_static_exmem_info *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_static_exmem_info_to_xml(), named as the record. 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_toxml_cr(mirk_handle *h, lumo_tarn_static_exmem_info *instance,
    char *buffer, int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members that are missing stay as they are;
 * a value that is none ends the reading, with a sentence in message if that is not null. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path,
    void *document, lumo_tarn_static_exmem_info *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign means something. Null comes first. Header and
 * state play no part. */
LUMO_UI_TARN_API int32_t lumo_tarn_static_exmem_info_compare(const lumo_tarn_static_exmem_info *a,
    const lumo_tarn_static_exmem_info *b);
/** Mixes all members into the seed; equal instances give equal results in every process. The seed itself for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_hash(const lumo_tarn_static_exmem_info *instance, uint32_t seed);
/** 1 if the record, or a member up to the first that had one, bore a change mark. The record's own mark and that
 * member's are cleared. The word is handed to the runtime as it is. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *instance, void *word);
/** @} */

/** @name mem_type: what the block is used for
 *  @{ */
/** Address of the member mem_type inside the object: what the block is used for. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_mem_desc_e *lumo_tarn_static_exmem_info_mem_type_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** Value of the member mem_type: what the block is used for. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_mem_type_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** Stores what the source holds as mem_type: what the block is used for. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_mem_type_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, lumo_tarn_mem_desc_e *source, uint32_t *err);
/** Stores an enumerator of lumo_tarn_mem_desc_e as mem_type: what the block is used for. A number beyond the
 * enumerators is refused with EIDRM, and counts as written all the same. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_mem_type_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t value, uint32_t *err);
/** State byte of mem_type. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_static_exmem_info_mem_type_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** Stores the state byte of mem_type, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_mem_type_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_hash_elements: number of hash elements in the block
 *  @{ */
/** Address of the member num_hash_elements inside the object: number of hash elements in the block. Null after an
 * error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_static_exmem_info_num_hash_elements_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** Value of the member num_hash_elements: number of hash elements in the block. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_static_exmem_info_num_hash_elements_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** Stores what the source holds as num_hash_elements: number of hash elements in the block. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_num_hash_elements_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as num_hash_elements: number of hash elements in the block. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_num_hash_elements_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t value, uint32_t *err);
/** State byte of num_hash_elements. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_static_exmem_info_num_hash_elements_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** Stores the state byte of num_hash_elements, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_num_hash_elements_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name exmem: block itself
 *  @{ */
/** Address of the member exmem inside the object: block itself. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_static_exmem_info_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** MOVES a record into exmem: block itself. The source loses its arrays and strings; what exmem owned before is not
 * released. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, lumo_tarn_exmem_info *source, uint32_t *err);
/** State byte of exmem. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_static_exmem_info_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint32_t *err);
/** Stores the state byte of exmem, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_static_exmem_info_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_static_exmem_info *object, uint8_t value, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
