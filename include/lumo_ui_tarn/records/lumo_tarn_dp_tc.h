/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_dp_tc.h - one traffic class. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_TC_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_DP_TC_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_dp_appl.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>

LUMO_UI_TARN_BEGIN

/** One traffic class.
 *
 * | member        | type                 | meaning |
 * |---------------|----------------------|---|
 * | exmem_info    | lumo_tarn_exmem_info | where the traffic class lies in memory |
 * | src_prefix    | address              | source prefix of the class |
 * | dst_prefix    | address              | destination prefix of the class |
 * | proto         | uint8_t              | protocol number to match |
 * | tos           | uint8_t              | type-of-service value to match |
 * | flags         | uint16_t             | flags of the class, sixteen bits |
 * | bit_flags     | uint8_t              | second, separate set of flags, eight bits |
 * | src_port_min  | uint16_t             | low end of the source port range |
 * | src_port_max  | uint16_t             | high end of the source port range |
 * | dst_port_min  | uint16_t             | low end of the destination port range |
 * | dst_port_max  | uint16_t             | high end of the destination port range |
 * | src_port_opr  | uint16_t             | operator applied to the source port range |
 * | dst_port_opr  | uint16_t             | operator applied to the destination port range |
 * | next_ptr      | uint64_t             | link to the next class in the data plane |
 * | appl_data_ptr | uint64_t             | where the application data lies in the data plane |
 * | appl          | lumo_tarn_dp_appl    | class's application entry |
 * | id            | uint32_t             | identifier of the class |
 *
 * How the operations of all records behave is told in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_dp_tc lumo_tarn_dp_tc;
/** The module's own type record of lumo_tarn_dp_tc: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_dp_tc_type_info_internal;

/** @name Life
 *  @{ */
/** Makes an instance with all members zero, or null without memory. It belongs to the caller, who ends it with
 * lumo_tarn_dp_tc_destroy(). */
LUMO_UI_TARN_API lumo_tarn_dp_tc *lumo_tarn_dp_tc_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_dp_tc_create(): works under the handle's default_id, makes nothing while last_error is set,
 * and answers a sentinel instead of null, which only lumo_tarn_dp_tc_destroy() and sticky forms may be given. */
LUMO_UI_TARN_API lumo_tarn_dp_tc *lumo_tarn_dp_tc_create_cr(mirk_handle *h);
/** As lumo_tarn_dp_tc_create(), without registering the trace module of types first: for whoever makes many. */
LUMO_UI_TARN_API lumo_tarn_dp_tc *lumo_tarn_dp_tc_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Sets up an instance in zeroed memory of the caller's: header, usage counter, and what it embeds. The type is
 * commonly _lumo_tarn_dp_tc_type_info_internal. With notify 0 the writes are not announced, with skip_count 1 nothing
 * is counted; flags go into obj_flag, and sttr_base is where the state lies of an instance that is nested in
 * another. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Bytes of an instance with everything that it nests and, on a handle that tracks, its state. Differs between
 * handles. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_sizeof(mirk_handle *h);
/** The variant itself, or the highest that this library knows if that is lower. */
LUMO_UI_TARN_API int8_t lumo_tarn_dp_tc_variant_data_index_cap(int8_t variant);
/** Marks the instance, with the records, addresses and booleans in it, as lying in memory of another one
 * (MIRK_OBJ_EMBEDDED). */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_set_instance_embedded(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object);
/** Brings the instance to the variant that the handle's domain has for its type; announced if that changes it. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Ends the instance: its arrays and strings, what it nests, and its memory. Null and the sentinel are passed over. An
 * instance that others refer to goes with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object);
/** lumo_tarn_dp_tc_destroy() under the handle's default_id. Works whatever last_error holds. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_destroy_cr(mirk_handle *h, lumo_tarn_dp_tc *object);
/** As lumo_tarn_dp_tc_destroy(); with free_it 0 the memory of the instance itself is left to its owner, as for an
 * instance that lies inside another. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_destroy_internal(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** The instance itself: lets code treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_dp_tc *lumo_tarn_dp_tc_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order. Writes nothing for an instance
 * without body, and no error tells. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object, uint8_t *proto,
    uint8_t *tos, uint16_t *flags, uint8_t *bit_flags, uint16_t *src_port_min, uint16_t *src_port_max,
    uint16_t *dst_port_min, uint16_t *dst_port_max, uint16_t *src_port_opr, uint16_t *dst_port_opr, uint64_t *next_ptr,
    uint64_t *appl_data_ptr, uint32_t *id, uint32_t *err);
/** Stores all scalar members, in table order; counts and lengths are not among them. State bytes stay as they are,
 * unlike with the setters of single members. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object, uint8_t proto,
    uint8_t tos, uint16_t flags, uint8_t bit_flags, uint16_t src_port_min, uint16_t src_port_max, uint16_t dst_port_min,
    uint16_t dst_port_max, uint16_t src_port_opr, uint16_t dst_port_opr, uint64_t next_ptr, uint64_t appl_data_ptr,
    uint32_t id, uint32_t *err);
/** MOVES the source into the destination: members, state, and the ownership of arrays and strings, which the source
 * loses. What the destination owned before is not released. lumo_tarn_dp_tc_copy_cr() copies. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *destination,
    lumo_tarn_dp_tc *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy in the new place the one owner of arrays and strings,
 * and takes them from the old place. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *new_place,
    lumo_tarn_dp_tc *old_place, uint32_t *err);
/** Fills the whole state area with one byte, unannounced, and that of every array element too. Element states then read
 * as this value, and can no longer be set one by one. Does nothing without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value);
/** 1 if the handle's domain has a member of this index, counted from 0 in table order; the instance is not looked
 * at. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_is_valid_cr(mirk_handle *h, lumo_tarn_dp_tc *object, uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** How many object identifiers the instance holds of its own: 0 in this schema. EINVAL for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_get_oid_count(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Would write up to size object identifiers that the instance holds of its own: writes none in this schema. EINVAL for
 * null. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_get_object_references(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    void **oids, uint32_t size, uint32_t *err);
/** Tells the runtime where in the state area at this address the state of each nested record and address lies: for
 * whoever has moved the instance or its state. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    void *state_area, uint32_t *err);
/** Has the runtime forget the places of states that lumo_tarn_dp_tc_offset_update() told it, at every depth. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Bytes that a buffer for lumo_tarn_dp_tc_marshal() needs, its spare byte aside. Says a little more than is written:
 * see families.h. RA data comes on top. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *instance);
/** Sticky form of lumo_tarn_dp_tc_len(): 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_len_cr(mirk_handle *h, lumo_tarn_dp_tc *instance);
/** Writes the instance as a frame into the remaining bytes at buffer, behind which one spare byte lies. Returns the
 * bytes written. Goes on after a failure, so that only err tells: ENOMEM or EMSGSIZE for too little room, EIDRM if the
 * domain has no place for the instance's variant, in which case the frame is written in the domain's. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tc *instance, int32_t remaining, uint32_t *err);
/** As lumo_tarn_dp_tc_marshal(), but in the instance's own variant whatever the domain has: the frame of a deep
 * copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tc *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes at buffer, behind which one spare byte lies, into an instance. Returns the bytes
 * consumed. With reuse 0 the instance owns nothing yet, and what it owned is lost; with reuse 1 its arrays and strings
 * are kept where the counts are equal. The frame is never trusted. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_dp_tc *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy by way of a frame in the buffer, which has size bytes, lumo_tarn_dp_tc_len() of them at least, and
 * one to spare. The result is null after any error; otherwise it belongs to the caller. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *source,
    lumo_tarn_dp_tc **result, void *buffer, uint32_t size, uint32_t *err);
/** Deep copy by way of the handle's workspace, null after any error. A record that is too large for the workspace needs
 * lumo_tarn_dp_tc_clone(). */
LUMO_UI_TARN_API lumo_tarn_dp_tc *lumo_tarn_dp_tc_clone_cr(mirk_handle *h, lumo_tarn_dp_tc *source);
/** Deep copy into an existing instance, by way of the handle's workspace. What the destination owned is not released;
 * if reading fails, the destination is destroyed. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_copy_cr(mirk_handle *h, lumo_tarn_dp_tc *source, lumo_tarn_dp_tc *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as text for people, indent blanks in and headed by the name. Returns the characters written.
 * Clear the buffer first: bytes in front of closing braces are counted and not written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_dp_tc *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_dp_tc_print(), without indent and headed by the record's name. 0xFFFFFFFF after an
 * error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_print_cr(mirk_handle *h, lumo_tarn_dp_tc *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name, one element in it for each member. A nonzero state shows as an
 * attribute. Returns the characters written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_dp_tc *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_dp_tc_to_xml(), named as the record. 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_toxml_cr(mirk_handle *h, lumo_tarn_dp_tc *instance, char *buffer,
    int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members that are missing stay as they are;
 * a value that is none ends the reading, with a sentence in message if that is not null. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_dp_tc *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign means something. Null comes first. Header and
 * state play no part. */
LUMO_UI_TARN_API int32_t lumo_tarn_dp_tc_compare(const lumo_tarn_dp_tc *a, const lumo_tarn_dp_tc *b);
/** Mixes all members into the seed; equal instances give equal results in every process. The seed itself for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_hash(const lumo_tarn_dp_tc *instance, uint32_t seed);
/** 1 if the record, or a member up to the first that had one, bore a change mark. The record's own mark and that
 * member's are cleared. The word is handed to the runtime as it is. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *instance, void *word);
/** @} */

/** @name exmem_info: where the traffic class lies in memory
 *  @{ */
/** Address of the member exmem_info inside the object: where the traffic class lies in memory. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_dp_tc_exmem_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** MOVES a record into exmem_info: where the traffic class lies in memory. The source loses its arrays and strings;
 * what exmem_info owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_exmem_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    lumo_tarn_exmem_info *source, uint32_t *err);
/** State byte of exmem_info. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_exmem_info_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of exmem_info, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_exmem_info_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);
/** @} */

/** @name src_prefix: source prefix of the class
 *  @{ */
/** Address of the member src_prefix inside the object: source prefix of the class. Null after an error. */
LUMO_UI_TARN_API ip_address *lumo_tarn_dp_tc_src_prefix_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores what the source holds as src_prefix: source prefix of the class. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_prefix_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    ip_address *source, uint32_t *err);
/** State byte of src_prefix. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_src_prefix_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of src_prefix, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_prefix_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dst_prefix: destination prefix of the class
 *  @{ */
/** Address of the member dst_prefix inside the object: destination prefix of the class. Null after an error. */
LUMO_UI_TARN_API ip_address *lumo_tarn_dp_tc_dst_prefix_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores what the source holds as dst_prefix: destination prefix of the class. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_prefix_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    ip_address *source, uint32_t *err);
/** State byte of dst_prefix. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_dst_prefix_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of dst_prefix, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_prefix_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);
/** @} */

/** @name proto: protocol number to match
 *  @{ */
/** Address of the member proto inside the object: protocol number to match. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tc_proto_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member proto: protocol number to match. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_proto_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores what the source holds as proto: protocol number to match. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_proto_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as proto: protocol number to match. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_proto_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
/** State byte of proto. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_proto_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores the state byte of proto, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_proto_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
/** @} */

/** @name tos: type-of-service value to match
 *  @{ */
/** Address of the member tos inside the object: type-of-service value to match. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tc_tos_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member tos: type-of-service value to match. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_tos_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores what the source holds as tos: type-of-service value to match. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_tos_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as tos: type-of-service value to match. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_tos_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
/** State byte of tos. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_tos_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores the state byte of tos, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_tos_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
/** @} */

/** @name flags: flags of the class, sixteen bits
 *  @{ */
/** Address of the member flags inside the object: flags of the class, sixteen bits. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_flags_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member flags: flags of the class, sixteen bits. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_flags_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores what the source holds as flags: flags of the class, sixteen bits. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_flags_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
/** Stores a value as flags: flags of the class, sixteen bits. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_flags_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
/** State byte of flags. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores the state byte of flags, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
/** @} */

/** @name bit_flags: second, separate set of flags, eight bits
 *  @{ */
/** Address of the member bit_flags inside the object: second, separate set of flags, eight bits. Null after an
 * error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_dp_tc_bit_flags_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member bit_flags: second, separate set of flags, eight bits. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_bit_flags_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores what the source holds as bit_flags: second, separate set of flags, eight bits. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_bit_flags_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as bit_flags: second, separate set of flags, eight bits. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_bit_flags_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
/** State byte of bit_flags. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_bit_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of bit_flags, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_bit_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
/** @} */

/** @name src_port_min: low end of the source port range
 *  @{ */
/** Address of the member src_port_min inside the object: low end of the source port range. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_src_port_min_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member src_port_min: low end of the source port range. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_src_port_min_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores what the source holds as src_port_min: low end of the source port range. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_min_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
/** Stores a value as src_port_min: low end of the source port range. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_min_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
/** State byte of src_port_min. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_src_port_min_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of src_port_min, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_min_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);
/** @} */

/** @name src_port_max: high end of the source port range
 *  @{ */
/** Address of the member src_port_max inside the object: high end of the source port range. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_src_port_max_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member src_port_max: high end of the source port range. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_src_port_max_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores what the source holds as src_port_max: high end of the source port range. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_max_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
/** Stores a value as src_port_max: high end of the source port range. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_max_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
/** State byte of src_port_max. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_src_port_max_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of src_port_max, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_max_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dst_port_min: low end of the destination port range
 *  @{ */
/** Address of the member dst_port_min inside the object: low end of the destination port range. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_dst_port_min_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member dst_port_min: low end of the destination port range. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_dst_port_min_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores what the source holds as dst_port_min: low end of the destination port range. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_min_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
/** Stores a value as dst_port_min: low end of the destination port range. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_min_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
/** State byte of dst_port_min. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_dst_port_min_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of dst_port_min, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_min_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dst_port_max: high end of the destination port range
 *  @{ */
/** Address of the member dst_port_max inside the object: high end of the destination port range. Null after an
 * error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_dst_port_max_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member dst_port_max: high end of the destination port range. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_dst_port_max_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores what the source holds as dst_port_max: high end of the destination port range. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_max_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
/** Stores a value as dst_port_max: high end of the destination port range. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_max_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
/** State byte of dst_port_max. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_dst_port_max_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of dst_port_max, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_max_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);
/** @} */

/** @name src_port_opr: operator applied to the source port range
 *  @{ */
/** Address of the member src_port_opr inside the object: operator applied to the source port range. Null after an
 * error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_src_port_opr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member src_port_opr: operator applied to the source port range. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_src_port_opr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores what the source holds as src_port_opr: operator applied to the source port range. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_opr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
/** Stores a value as src_port_opr: operator applied to the source port range. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_opr_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
/** State byte of src_port_opr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_src_port_opr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of src_port_opr, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_src_port_opr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dst_port_opr: operator applied to the destination port range
 *  @{ */
/** Address of the member dst_port_opr inside the object: operator applied to the destination port range. Null after an
 * error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_dp_tc_dst_port_opr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member dst_port_opr: operator applied to the destination port range. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_dp_tc_dst_port_opr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores what the source holds as dst_port_opr: operator applied to the destination port range. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_opr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint16_t *source, uint32_t *err);
/** Stores a value as dst_port_opr: operator applied to the destination port range. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_opr_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint16_t value, uint32_t *err);
/** State byte of dst_port_opr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_dst_port_opr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of dst_port_opr, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_dst_port_opr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);
/** @} */

/** @name next_ptr: link to the next class in the data plane
 *  @{ */
/** Address of the member next_ptr inside the object: link to the next class in the data plane. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tc_next_ptr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member next_ptr: link to the next class in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tc_next_ptr_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores what the source holds as next_ptr: link to the next class in the data plane. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_next_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as next_ptr: link to the next class in the data plane. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_next_ptr_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint64_t value, uint32_t *err);
/** State byte of next_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_next_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of next_ptr, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_next_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
/** @} */

/** @name appl_data_ptr: where the application data lies in the data plane
 *  @{ */
/** Address of the member appl_data_ptr inside the object: where the application data lies in the data plane. Null after
 * an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_dp_tc_appl_data_ptr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member appl_data_ptr: where the application data lies in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_dp_tc_appl_data_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores what the source holds as appl_data_ptr: where the application data lies in the data plane. Announced, marked
 * as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_appl_data_ptr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as appl_data_ptr: where the application data lies in the data plane. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_appl_data_ptr_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint64_t value, uint32_t *err);
/** State byte of appl_data_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_appl_data_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint32_t *err);
/** Stores the state byte of appl_data_ptr, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_appl_data_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_dp_tc *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl: class's application entry
 *  @{ */
/** Address of the member appl inside the object: class's application entry. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_dp_appl *lumo_tarn_dp_tc_appl_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** MOVES a record into appl: class's application entry. The source loses its arrays and strings; what appl owned before
 * is not released. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_appl_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    lumo_tarn_dp_appl *source, uint32_t *err);
/** State byte of appl. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_appl_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores the state byte of appl, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_appl_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
/** @} */

/** @name id: identifier of the class
 *  @{ */
/** Address of the member id inside the object: identifier of the class. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_dp_tc_id_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Value of the member id: identifier of the class. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_dp_tc_id_get_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores what the source holds as id: identifier of the class. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_id_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as id: identifier of the class. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_id_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t value, uint32_t *err);
/** State byte of id. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_dp_tc_id_state_flag_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint32_t *err);
/** Stores the state byte of id, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_dp_tc_id_state_flag_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_dp_tc *object,
    uint8_t value, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
