/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_dp_appl_sig.h - one signature. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_APPL_SIG_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_APPL_SIG_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/** One signature.
 *
 * | member         | type                 | meaning |
 * |----------------|----------------------|---|
 * | exmem_info     | lumo_tarn_exmem_info | where the signature lies in memory |
 * | dp_hash_bucket | uint32_t             | bucket of the data plane's hash in which the signature lies |
 * | pal_id         | uint32_t             | identifier of the signature in the adaptation layer |
 * | appl_name_len  | uint16_t length      | length of appl_name in bytes |
 * | appl_name      | string               | name of the application |
 * | appl_id        | uint16_t             | identifier of the application |
 * | protocol       | uint8_t              | protocol number to match |
 * | tos            | uint8_t              | type-of-service value to match |
 * | flags          | uint32_t             | flags of the signature |
 * | dport_min      | uint16_t             | low end of the destination port range |
 * | dport_max      | uint16_t             | high end of the destination port range |
 * | sport_min      | uint16_t             | low end of the source port range |
 * | sport_max      | uint16_t             | high end of the source port range |
 * | next_ptr       | uint64_t             | link to the next signature in the bucket |
 *
 * How the operations of all records behave is told in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_appl_sig lumo_tarn_dp_appl_sig;
/** The module's own type record of lumo_tarn_dp_appl_sig: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_appl_sig_type_info_internal;

/** @name Life
 *  @{ */
/** Makes an instance with all members zero, or null without memory. It belongs to the caller, who ends it with
 * lumo_tarn_dp_appl_sig_destroy(). */
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_sig_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_dp_appl_sig_create(): works under the handle's default_id, makes nothing while last_error
 * is set, and answers a sentinel instead of null, which only lumo_tarn_dp_appl_sig_destroy() and sticky forms may be
 * given. */
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_sig_create_cr(mirk_handle *h);
/** As lumo_tarn_dp_appl_sig_create(), without registering the trace module of types first: for whoever makes many. */
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_sig_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Sets up an instance in zeroed memory of the caller's: header, usage counter, and what it embeds. The type is
 * commonly _lumo_tarn_dp_appl_sig_type_info_internal. With notify 0 the writes are not announced, with skip_count 1
 * nothing is counted; flags go into obj_flag, and sttr_base is where the state lies of an instance that is nested in
 * another. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Bytes of an instance with everything that it nests and, on a handle that tracks, its state. Differs between
 * handles. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_sizeof(mirk_handle *h);
/** The variant itself, or the highest that this library knows if that is lower. */
LUMO_UI_TARN_API int8_t lumo_tarn_dp_appl_sig_variant_data_index_cap(int8_t variant);
/** Marks the instance, with the records, addresses and booleans in it, as lying in memory of another one
 * (MIRK_OBJ_EMBEDDED). */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object);
/** Brings the instance to the variant that the handle's domain has for its type; announced if that changes it. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Ends the instance: its arrays and strings, what it nests, and its memory. Null and the sentinel are passed over. An
 * instance that others refer to goes with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object);
/** lumo_tarn_dp_appl_sig_destroy() under the handle's default_id. Works whatever last_error holds. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_destroy_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *object);
/** As lumo_tarn_dp_appl_sig_destroy(); with free_it 0 the memory of the instance itself is left to its owner, as for an
 * instance that lies inside another. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** The instance itself: lets code treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_sig_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order. Writes nothing for an instance
 * without body, and no error tells. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    uint32_t *dp_hash_bucket, uint32_t *pal_id, uint16_t *appl_name_len, uint16_t *appl_id, uint8_t *protocol,
    uint8_t *tos, uint32_t *flags, uint16_t *dport_min, uint16_t *dport_max, uint16_t *sport_min, uint16_t *sport_max,
    uint64_t *next_ptr, uint32_t *err);
/** Stores all scalar members, in table order; counts and lengths are not among them. State bytes stay as they are,
 * unlike with the setters of single members. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    uint32_t dp_hash_bucket, uint32_t pal_id, uint16_t appl_id, uint8_t protocol, uint8_t tos, uint32_t flags,
    uint16_t dport_min, uint16_t dport_max, uint16_t sport_min, uint16_t sport_max, uint64_t next_ptr, uint32_t *err);
/** MOVES the source into the destination: members, state, and the ownership of arrays and strings, which the source
 * loses. What the destination owned before is not released. lumo_tarn_dp_appl_sig_copy_cr() copies. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *destination,
    lumo_tarn_dp_appl_sig *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy in the new place the one owner of arrays and strings,
 * and takes them from the old place. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *new_place, lumo_tarn_dp_appl_sig *old_place, uint32_t *err);
/** Fills the whole state area with one byte, unannounced, and that of every array element too. Element states then read
 * as this value, and can no longer be set one by one. Does nothing without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value);
/** 1 if the handle's domain has a member of this index, counted from 0 in table order; the instance is not looked
 * at. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_is_valid_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *object,
    uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** How many object identifiers the instance holds of its own: 0 in this schema. EINVAL for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Would write up to size object identifiers that the instance holds of its own: writes none in this schema. EINVAL for
 * null. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, void **oids, uint32_t size, uint32_t *err);
/** Tells the runtime where in the state area at this address the state of each nested record and address lies: for
 * whoever has moved the instance or its state. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, void *state_area, uint32_t *err);
/** Has the runtime forget the places of states that lumo_tarn_dp_appl_sig_offset_update() told it, at every depth. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Bytes that a buffer for lumo_tarn_dp_appl_sig_marshal() needs, its spare byte aside. Says a little more than is
 * written: see families.h. RA data comes on top. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *instance);
/** Sticky form of lumo_tarn_dp_appl_sig_len(): 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_len_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *instance);
/** Writes the instance as a frame into the remaining bytes at buffer, behind which one spare byte lies. Returns the
 * bytes written. Goes on after a failure, so that only err tells: ENOMEM or EMSGSIZE for too little room, EIDRM if the
 * domain has no place for the instance's variant, in which case the frame is written in the domain's. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_sig *instance, int32_t remaining, uint32_t *err);
/** As lumo_tarn_dp_appl_sig_marshal(), but in the instance's own variant whatever the domain has: the frame of a deep
 * copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_sig *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes at buffer, behind which one spare byte lies, into an instance. Returns the bytes
 * consumed. With reuse 0 the instance owns nothing yet, and what it owned is lost; with reuse 1 its arrays and strings
 * are kept where the counts are equal. The frame is never trusted. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_appl_sig *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy by way of a frame in the buffer, which has size bytes, lumo_tarn_dp_appl_sig_len() of them at
 * least, and one to spare. The result is null after any error; otherwise it belongs to the caller. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *source,
    lumo_tarn_dp_appl_sig **result, void *buffer, uint32_t size, uint32_t *err);
/** Deep copy by way of the handle's workspace, null after any error. A record that is too large for the workspace needs
 * lumo_tarn_dp_appl_sig_clone(). */
LUMO_UI_TARN_API lumo_tarn_dp_appl_sig *lumo_tarn_dp_appl_sig_clone_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *source);
/** Deep copy into an existing instance, by way of the handle's workspace. What the destination owned is not released;
 * if reading fails, the destination is destroyed. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_copy_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *source,
    lumo_tarn_dp_appl_sig *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as text for people, indent blanks in and headed by the name. Returns the characters written.
 * Clear the buffer first: bytes in front of closing braces are counted and not written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_appl_sig *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_dp_appl_sig_print(), without indent and headed by the record's name. 0xFFFFFFFF after an
 * error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_print_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name, one element in it for each member. A nonzero state shows as an
 * attribute. Returns the characters written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_appl_sig *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_dp_appl_sig_to_xml(), named as the record. 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_toxml_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *instance, char *buffer,
    int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members that are missing stay as they are;
 * a value that is none ends the reading, with a sentence in message if that is not null. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_appl_sig *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign means something. Null comes first. Header and
 * state play no part. */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_appl_sig_compare(const lumo_tarn_dp_appl_sig *a, const lumo_tarn_dp_appl_sig *b);
/** Mixes all members into the seed; equal instances give equal results in every process. The seed itself for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_hash(const lumo_tarn_dp_appl_sig *instance, uint32_t seed);
/** 1 if the record, or a member up to the first that had one, bore a change mark. The record's own mark and that
 * member's are cleared. The word is handed to the runtime as it is. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *instance, void *word);
/** @} */

/** @name exmem_info: where the signature lies in memory
 *  @{ */
/** Address of the member exmem_info inside the object: where the signature lies in memory. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_dp_appl_sig_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** MOVES a record into exmem_info: where the signature lies in memory. The source loses its arrays and strings; what
 * exmem_info owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_exmem_info_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, lumo_tarn_exmem_info *source, uint32_t *err);
/** State byte of exmem_info. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_exmem_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of exmem_info, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_exmem_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_hash_bucket: bucket of the data plane's hash in which the signature lies
 *  @{ */
/** Address of the member dp_hash_bucket inside the object: bucket of the data plane's hash in which the signature lies.
 * Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_appl_sig_dp_hash_bucket_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Value of the member dp_hash_bucket: bucket of the data plane's hash in which the signature lies. 0 after an
 * error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_dp_hash_bucket_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as dp_hash_bucket: bucket of the data plane's hash in which the signature lies.
 * Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dp_hash_bucket_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const uint32_t *source, uint32_t *err);
/** Stores a value as dp_hash_bucket: bucket of the data plane's hash in which the signature lies. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dp_hash_bucket_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t value, uint32_t *err);
/** State byte of dp_hash_bucket. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_dp_hash_bucket_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of dp_hash_bucket, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dp_hash_bucket_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name pal_id: identifier of the signature in the adaptation layer
 *  @{ */
/** Address of the member pal_id inside the object: identifier of the signature in the adaptation layer. Null after an
 * error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_appl_sig_pal_id_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Value of the member pal_id: identifier of the signature in the adaptation layer. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_pal_id_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as pal_id: identifier of the signature in the adaptation layer. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_pal_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as pal_id: identifier of the signature in the adaptation layer. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_pal_id_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t value, uint32_t *err);
/** State byte of pal_id. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_pal_id_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of pal_id, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_pal_id_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_name_len: length of appl_name in bytes
 *  @{ */
/** Address of the length appl_name_len: length of appl_name in bytes. To be read only: it follows from the string. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_appl_name_len_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Length appl_name_len in bytes: length of appl_name in bytes. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_appl_name_len_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** @} */

/** @name appl_name: name of the application
 *  @{ */
/** Copies appl_name with a NUL behind it: name of the application. The destination has size bytes, one more than the
 * length at least: ENOSPC says that the copy is cut. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_name_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, char *destination, uint32_t size, uint32_t *err);
/** Stores length bytes, cut to 16 bits, as appl_name: name of the application. A text that ends earlier, or null, is
 * followed by zero bytes. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_name_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const char *text, uint32_t length, uint32_t *err);
/** Sticky form of lumo_tarn_dp_appl_sig_appl_name_set(); returns the handle's last_error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_appl_name_set_cr(mirk_handle *h, lumo_tarn_dp_appl_sig *object,
    const char *text, uint32_t length);
/** State byte of appl_name. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_appl_name_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of appl_name, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_name_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_id: identifier of the application
 *  @{ */
/** Address of the member appl_id inside the object: identifier of the application. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_appl_id_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Value of the member appl_id: identifier of the application. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_appl_id_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as appl_id: identifier of the application. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint16_t *source, uint32_t *err);
/** Stores a value as appl_id: identifier of the application. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_id_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint16_t value, uint32_t *err);
/** State byte of appl_id. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_appl_id_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of appl_id, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_appl_id_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name protocol: protocol number to match
 *  @{ */
/** Address of the member protocol inside the object: protocol number to match. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_appl_sig_protocol_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Value of the member protocol: protocol number to match. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_protocol_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as protocol: protocol number to match. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_protocol_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as protocol: protocol number to match. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_protocol_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** State byte of protocol. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_protocol_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of protocol, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_protocol_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tos: type-of-service value to match
 *  @{ */
/** Address of the member tos inside the object: type-of-service value to match. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_appl_sig_tos_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    uint32_t *err);
/** Value of the member tos: type-of-service value to match. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_tos_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as tos: type-of-service value to match. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_tos_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as tos: type-of-service value to match. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_tos_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** State byte of tos. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_tos_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of tos, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_tos_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name flags: flags of the signature
 *  @{ */
/** Address of the member flags inside the object: flags of the signature. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_appl_sig_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Value of the member flags: flags of the signature. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_appl_sig_flags_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as flags: flags of the signature. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_flags_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as flags: flags of the signature. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_flags_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t value, uint32_t *err);
/** State byte of flags. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of flags, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dport_min: low end of the destination port range
 *  @{ */
/** Address of the member dport_min inside the object: low end of the destination port range. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_dport_min_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Value of the member dport_min: low end of the destination port range. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_dport_min_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as dport_min: low end of the destination port range. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_min_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const uint16_t *source, uint32_t *err);
/** Stores a value as dport_min: low end of the destination port range. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_min_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint16_t value, uint32_t *err);
/** State byte of dport_min. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_dport_min_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of dport_min, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_min_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dport_max: high end of the destination port range
 *  @{ */
/** Address of the member dport_max inside the object: high end of the destination port range. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_dport_max_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Value of the member dport_max: high end of the destination port range. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_dport_max_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as dport_max: high end of the destination port range. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_max_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const uint16_t *source, uint32_t *err);
/** Stores a value as dport_max: high end of the destination port range. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_max_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint16_t value, uint32_t *err);
/** State byte of dport_max. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_dport_max_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of dport_max, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_dport_max_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name sport_min: low end of the source port range
 *  @{ */
/** Address of the member sport_min inside the object: low end of the source port range. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_sport_min_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Value of the member sport_min: low end of the source port range. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_sport_min_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as sport_min: low end of the source port range. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_min_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const uint16_t *source, uint32_t *err);
/** Stores a value as sport_min: low end of the source port range. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_min_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint16_t value, uint32_t *err);
/** State byte of sport_min. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_sport_min_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of sport_min, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_min_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name sport_max: high end of the source port range
 *  @{ */
/** Address of the member sport_max inside the object: high end of the source port range. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_appl_sig_sport_max_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Value of the member sport_max: high end of the source port range. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_appl_sig_sport_max_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as sport_max: high end of the source port range. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_max_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, const uint16_t *source, uint32_t *err);
/** Stores a value as sport_max: high end of the source port range. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_max_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint16_t value, uint32_t *err);
/** State byte of sport_max. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_sport_max_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of sport_max, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_sport_max_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

/** @name next_ptr: link to the next signature in the bucket
 *  @{ */
/** Address of the member next_ptr inside the object: link to the next signature in the bucket. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_appl_sig_next_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Value of the member next_ptr: link to the next signature in the bucket. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_appl_sig_next_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores what the source holds as next_ptr: link to the next signature in the bucket. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_next_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_appl_sig *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as next_ptr: link to the next signature in the bucket. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_next_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint64_t value, uint32_t *err);
/** State byte of next_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_appl_sig_next_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint32_t *err);
/** Stores the state byte of next_ptr, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_appl_sig_next_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_appl_sig *object, uint8_t value, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
