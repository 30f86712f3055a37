/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_lumo_info.h - one processor. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_LUMO_INFO_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_LUMO_INFO_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/enumerations/lumo_tarn_ha_state_e.h>
#include <lumo_ui_tarn/enumerations/lumo_tarn_lumo_direction_e.h>
#include <lumo_ui_tarn/records/lumo_tarn_dyn_exmem_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_exmem_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_fdb_base.h>
#include <lumo_ui_tarn/records/lumo_tarn_fdb_mem_info.h>
#include <lumo_ui_tarn/records/lumo_tarn_static_exmem_info.h>

LUMO_UI_TARN_BEGIN

/** One processor.
 *
 * | member                      | type                          | meaning |
 * |-----------------------------|-------------------------------|---|
 * | display_all                 | boolean                       | show: everything |
 * | display_fdb                 | boolean                       | show: the fdb part |
 * | display_ha                  | boolean                       | show: the high-availability part |
 * | display_wexa                | boolean                       | show: the wexa part |
 * | display_handles             | boolean                       | show: the handles |
 * | display_exmem               | boolean                       | show: the memory blocks |
 * | display_init                | boolean                       | show: the initialisation state |
 * | lumo_num                    | uint8_t                       | number of this lumo processor |
 * | complex_num                 | uint8_t                       | number of the complex that the processor belongs to |
 * | direction                   | lumo_tarn_lumo_direction_e    | direction of traffic that the processor serves |
 * | epoch                       | uint32_t                      | epoch value of the processor |
 * | fdb_initialized             | uint32_t                      | flag word: fdb initialised |
 * | fdb_base                    | lumo_tarn_fdb_base            | header and footer description of the fdb |
 * | chunk_overhead              | uint16_t                      | overhead of a chunk |
 * | flow_info_mem_size          | uint16_t                      | memory size of a flow information entry |
 * | mp_cache_entry_size         | uint16_t                      | size of an mp cache entry |
 * | tt_cache_entry_size         | uint16_t                      | size of a tt cache entry |
 * | tarn_tt_tbl                 | lumo_tarn_fdb_mem_info        | memory of the feature's traffic table |
 * | tarn_debug_flags            | lumo_tarn_fdb_mem_info        | memory of the feature's debug flags |
 * | ha_state                    | lumo_tarn_ha_state_e          | high-availability state of the processor |
 * | ha_running                  | uint32_t                      | flag word: high availability is running |
 * | ha_enabled                  | uint32_t                      | flag word: high availability is enabled |
 * | drv_conn_h                  | uint64_t                      | handle: the connection to the driver |
 * | exmem_h                     | uint64_t                      | handle: external memory |
 * | wexa_num_feat               | uint16_t                      | number of features in a wexa entry |
 * | wexa_feat_size              | uint16_t                      | size of a feature in a wexa entry |
 * | in_wexa_h                   | uint64_t                      | handle: ingress wexa |
 * | in_wexa_feat_h              | uint64_t                      | handle: ingress wexa feature |
 * | out_wexa_h                  | uint64_t                      | handle: egress wexa |
 * | out_wexa_feat_h             | uint64_t                      | handle: egress wexa feature |
 * | dp_hash_salt                | uint32_t                      | salt of the data plane's hash, carried as a datum |
 * | flow_info_initialized       | uint32_t                      | flag word: flow information initialised on the client side |
 * | dp_flow_info_initialized    | uint32_t                      | flag word: flow information initialised in the data plane |
 * | mp_initialized              | uint32_t                      | flag word: mp initialised on the client side |
 * | dp_mp_initialized           | uint32_t                      | flag word: mp initialised in the data plane |
 * | tt_initialized              | uint32_t                      | flag word: tt initialised on the client side |
 * | dp_tt_initialized           | uint32_t                      | flag word: tt initialised in the data plane |
 * | appl_sig_initialized        | uint32_t                      | flag word: application signatures initialised on the client side |
 * | dp_appl_sig_initialized     | uint32_t                      | flag word: application signatures initialised in the data plane |
 * | tt_tc_filter_list_exmem_ptr | uint64_t                      | external memory of the traffic table's filter class list |
 * | tt_tc_agg_list_exmem_ptr    | uint64_t                      | external memory of the traffic table's aggregation class list |
 * | tt_tc_learn_list_exmem_ptr  | uint64_t                      | external memory of the traffic table's learn list |
 * | tc_list_head_chunk_h        | uint64_t                      | handle: chunk pool of class list heads |
 * | tc_chunk_h                  | uint64_t                      | handle: chunk pool of traffic classes |
 * | ll_chunk_h                  | uint64_t                      | handle: chunk pool of learn lists |
 * | appl_chunk_h                | uint64_t                      | handle: chunk pool of applications |
 * | cl_appl_sig_hash_ptr        | uint64_t                      | the client side's application signature hash |
 * | dp_appl_sig_hash_h          | uint64_t                      | handle: the data plane's application signature hash |
 * | appl_sig_chunk_h            | uint64_t                      | handle: chunk pool of application signatures |
 * | appl_sig_hash_exmem         | lumo_tarn_exmem_info          | block of the application signature hash |
 * | mp_export_exmem             | lumo_tarn_exmem_info          | block of the mp export |
 * | tt_export_exmem             | lumo_tarn_exmem_info          | block of the tt export |
 * | num_static_exmems           | uint8_t count                 | elements in static_exmem |
 * | static_exmem                | lumo_tarn_static_exmem_info[] | processor's static memory blocks |
 * | num_dyn_exmems              | uint8_t count                 | elements in dyn_exmem |
 * | dyn_exmem                   | lumo_tarn_dyn_exmem_info[]    | processor's dynamic memory blocks |
 *
 * How the operations of all records behave is told in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_lumo_info lumo_tarn_lumo_info;
/** The module's own type record of lumo_tarn_lumo_info: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_lumo_info_type_info_internal;

/** @name Life
 *  @{ */
/** Makes an instance with all members zero, or null without memory. It belongs to the caller, who ends it with
 * lumo_tarn_lumo_info_destroy(). */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_lumo_info_create(): works under the handle's default_id, makes nothing while last_error is
 * set, and answers a sentinel instead of null, which only lumo_tarn_lumo_info_destroy() and sticky forms may be
 * given. */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_create_cr(mirk_handle *h);
/** As lumo_tarn_lumo_info_create(), without registering the trace module of types first: for whoever makes many. */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Sets up an instance in zeroed memory of the caller's: header, usage counter, and what it embeds. The type is
 * commonly _lumo_tarn_lumo_info_type_info_internal. With notify 0 the writes are not announced, with skip_count 1
 * nothing is counted; flags go into obj_flag, and sttr_base is where the state lies of an instance that is nested in
 * another. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Bytes of an instance with everything that it nests and, on a handle that tracks, its state. Differs between
 * handles. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_sizeof(mirk_handle *h);
/** The variant itself, or the highest that this library knows if that is lower. */
LUMO_UI_TARN_API int8_t lumo_tarn_lumo_info_variant_data_index_cap(int8_t variant);
/** Marks the instance, with the records, addresses and booleans in it, as lying in memory of another one
 * (MIRK_OBJ_EMBEDDED). */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object);
/** Brings the instance to the variant that the handle's domain has for its type; announced if that changes it. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
/** Ends the instance: its arrays and strings, what it nests, and its memory. Null and the sentinel are passed over. An
 * instance that others refer to goes with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object);
/** lumo_tarn_lumo_info_destroy() under the handle's default_id. Works whatever last_error holds. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_destroy_cr(mirk_handle *h, lumo_tarn_lumo_info *object);
/** As lumo_tarn_lumo_info_destroy(); with free_it 0 the memory of the instance itself is left to its owner, as for an
 * instance that lies inside another. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_destroy_internal(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** The instance itself: lets code treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order. Writes nothing for an instance
 * without body, and no error tells. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint8_t *display_all, uint8_t *display_fdb, uint8_t *display_ha, uint8_t *display_wexa, uint8_t *display_handles,
    uint8_t *display_exmem, uint8_t *display_init, uint8_t *lumo_num, uint8_t *complex_num, uint32_t *direction,
    uint32_t *epoch, uint32_t *fdb_initialized, uint16_t *chunk_overhead, uint16_t *flow_info_mem_size,
    uint16_t *mp_cache_entry_size, uint16_t *tt_cache_entry_size, uint32_t *ha_state, uint32_t *ha_running,
    uint32_t *ha_enabled, uint64_t *drv_conn_h, uint64_t *exmem_h, uint16_t *wexa_num_feat, uint16_t *wexa_feat_size,
    uint64_t *in_wexa_h, uint64_t *in_wexa_feat_h, uint64_t *out_wexa_h, uint64_t *out_wexa_feat_h,
    uint32_t *dp_hash_salt, uint32_t *flow_info_initialized, uint32_t *dp_flow_info_initialized,
    uint32_t *mp_initialized, uint32_t *dp_mp_initialized, uint32_t *tt_initialized, uint32_t *dp_tt_initialized,
    uint32_t *appl_sig_initialized, uint32_t *dp_appl_sig_initialized, uint64_t *tt_tc_filter_list_exmem_ptr,
    uint64_t *tt_tc_agg_list_exmem_ptr, uint64_t *tt_tc_learn_list_exmem_ptr, uint64_t *tc_list_head_chunk_h,
    uint64_t *tc_chunk_h, uint64_t *ll_chunk_h, uint64_t *appl_chunk_h, uint64_t *cl_appl_sig_hash_ptr,
    uint64_t *dp_appl_sig_hash_h, uint64_t *appl_sig_chunk_h, uint8_t *num_static_exmems, uint8_t *num_dyn_exmems,
    uint32_t *err);
/** Stores all scalar members, in table order; counts and lengths are not among them. State bytes stay as they are,
 * unlike with the setters of single members. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint8_t display_all, uint8_t display_fdb, uint8_t display_ha, uint8_t display_wexa, uint8_t display_handles,
    uint8_t display_exmem, uint8_t display_init, uint8_t lumo_num, uint8_t complex_num, uint32_t direction,
    uint32_t epoch, uint32_t fdb_initialized, uint16_t chunk_overhead, uint16_t flow_info_mem_size,
    uint16_t mp_cache_entry_size, uint16_t tt_cache_entry_size, uint32_t ha_state, uint32_t ha_running,
    uint32_t ha_enabled, uint64_t drv_conn_h, uint64_t exmem_h, uint16_t wexa_num_feat, uint16_t wexa_feat_size,
    uint64_t in_wexa_h, uint64_t in_wexa_feat_h, uint64_t out_wexa_h, uint64_t out_wexa_feat_h, uint32_t dp_hash_salt,
    uint32_t flow_info_initialized, uint32_t dp_flow_info_initialized, uint32_t mp_initialized,
    uint32_t dp_mp_initialized, uint32_t tt_initialized, uint32_t dp_tt_initialized, uint32_t appl_sig_initialized,
    uint32_t dp_appl_sig_initialized, uint64_t tt_tc_filter_list_exmem_ptr, uint64_t tt_tc_agg_list_exmem_ptr,
    uint64_t tt_tc_learn_list_exmem_ptr, uint64_t tc_list_head_chunk_h, uint64_t tc_chunk_h, uint64_t ll_chunk_h,
    uint64_t appl_chunk_h, uint64_t cl_appl_sig_hash_ptr, uint64_t dp_appl_sig_hash_h, uint64_t appl_sig_chunk_h,
    uint32_t *err);
/** MOVES the source into the destination: members, state, and the ownership of arrays and strings, which the source
 * loses. What the destination owned before is not released. lumo_tarn_lumo_info_copy_cr() copies. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *destination,
    lumo_tarn_lumo_info *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy in the new place the one owner of arrays and strings,
 * and takes them from the old place. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *new_place, lumo_tarn_lumo_info *old_place, uint32_t *err);
/** Fills the whole state area with one byte, unannounced, and that of every array element too. Element states then read
 * as this value, and can no longer be set one by one. Does nothing without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value);
/** 1 if the handle's domain has a member of this index, counted from 0 in table order; the instance is not looked
 * at. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_is_valid_cr(mirk_handle *h, lumo_tarn_lumo_info *object,
    uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** How many object identifiers the instance holds of its own: 0 in this schema. EINVAL for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Would write up to size object identifiers that the instance holds of its own: writes none in this schema. EINVAL for
 * null. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, void **oids, uint32_t size, uint32_t *err);
/** Tells the runtime where in the state area at this address the state of each nested record and address lies: for
 * whoever has moved the instance or its state. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    void *state_area, uint32_t *err);
/** Has the runtime forget the places of states that lumo_tarn_lumo_info_offset_update() told it, at every depth. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Bytes that a buffer for lumo_tarn_lumo_info_marshal() needs, its spare byte aside. Says a little more than is
 * written: see families.h. RA data comes on top. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *instance);
/** Sticky form of lumo_tarn_lumo_info_len(): 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_len_cr(mirk_handle *h, lumo_tarn_lumo_info *instance);
/** Writes the instance as a frame into the remaining bytes at buffer, behind which one spare byte lies. Returns the
 * bytes written. Goes on after a failure, so that only err tells: ENOMEM or EMSGSIZE for too little room, EIDRM if the
 * domain has no place for the instance's variant, in which case the frame is written in the domain's. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_info *instance, int32_t remaining, uint32_t *err);
/** As lumo_tarn_lumo_info_marshal(), but in the instance's own variant whatever the domain has: the frame of a deep
 * copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_info *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes at buffer, behind which one spare byte lies, into an instance. Returns the bytes
 * consumed. With reuse 0 the instance owns nothing yet, and what it owned is lost; with reuse 1 its arrays and strings
 * are kept where the counts are equal. The frame is never trusted. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_info *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy by way of a frame in the buffer, which has size bytes, lumo_tarn_lumo_info_len() of them at least,
 * and one to spare. The result is null after any error; otherwise it belongs to the caller. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *source,
    lumo_tarn_lumo_info **result, void *buffer, uint32_t size, uint32_t *err);
/** Deep copy by way of the handle's workspace, null after any error. A record that is too large for the workspace needs
 * lumo_tarn_lumo_info_clone(). */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_clone_cr(mirk_handle *h, lumo_tarn_lumo_info *source);
/** Deep copy into an existing instance, by way of the handle's workspace. What the destination owned is not released;
 * if reading fails, the destination is destroyed. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_copy_cr(mirk_handle *h, lumo_tarn_lumo_info *source,
    lumo_tarn_lumo_info *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as text for people, indent blanks in and headed by the name. Returns the characters written.
 * Clear the buffer first: bytes in front of closing braces are counted and not written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_lumo_info *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_lumo_info_print(), without indent and headed by the record's name. 0xFFFFFFFF after an
 * error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_print_cr(mirk_handle *h, lumo_tarn_lumo_info *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name, one element in it for each member. A nonzero state shows as an
 * attribute. Returns the characters written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_lumo_info *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_lumo_info_to_xml(), named as the record. 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_toxml_cr(mirk_handle *h, lumo_tarn_lumo_info *instance, char *buffer,
    int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members that are missing stay as they are;
 * a value that is none ends the reading, with a sentence in message if that is not null. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_lumo_info *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign means something. Null comes first. Header and
 * state play no part. */
LUMO_UI_TARN_API int32_t lumo_tarn_lumo_info_compare(const lumo_tarn_lumo_info *a, const lumo_tarn_lumo_info *b);
/** Mixes all members into the seed; equal instances give equal results in every process. The seed itself for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_hash(const lumo_tarn_lumo_info *instance, uint32_t seed);
/** 1 if the record, or a member up to the first that had one, bore a change mark. The record's own mark and that
 * member's are cleared. The word is handed to the runtime as it is. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *instance, void *word);
/** @} */

/** @name display_all: show: everything
 *  @{ */
/** Address of the member display_all inside the object: show: everything. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member display_all: show: everything. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as display_all: show: everything. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_all_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_all: show: everything. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** State byte of display_all. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of display_all, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_fdb: show: the fdb part
 *  @{ */
/** Address of the member display_fdb inside the object: show: the fdb part. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_fdb_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member display_fdb: show: the fdb part. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_fdb_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as display_fdb: show: the fdb part. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_fdb_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_fdb: show: the fdb part. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_fdb_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** State byte of display_fdb. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_fdb_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of display_fdb, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_fdb_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_ha: show: the high-availability part
 *  @{ */
/** Address of the member display_ha inside the object: show: the high-availability part. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_ha_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member display_ha: show: the high-availability part. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_ha_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as display_ha: show: the high-availability part. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_ha_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_ha: show: the high-availability part. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_ha_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** State byte of display_ha. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_ha_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of display_ha, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_ha_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_wexa: show: the wexa part
 *  @{ */
/** Address of the member display_wexa inside the object: show: the wexa part. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_wexa_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member display_wexa: show: the wexa part. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_wexa_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as display_wexa: show: the wexa part. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_wexa_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_wexa: show: the wexa part. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_wexa_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** State byte of display_wexa. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_wexa_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of display_wexa, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_wexa_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_handles: show: the handles
 *  @{ */
/** Address of the member display_handles inside the object: show: the handles. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_handles_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member display_handles: show: the handles. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_handles_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as display_handles: show: the handles. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_handles_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_handles: show: the handles. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_handles_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** State byte of display_handles. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_handles_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of display_handles, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_handles_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_exmem: show: the memory blocks
 *  @{ */
/** Address of the member display_exmem inside the object: show: the memory blocks. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member display_exmem: show: the memory blocks. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_exmem_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as display_exmem: show: the memory blocks. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_exmem: show: the memory blocks. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_exmem_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** State byte of display_exmem. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of display_exmem, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_init: show: the initialisation state
 *  @{ */
/** Address of the member display_init inside the object: show: the initialisation state. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_init_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member display_init: show: the initialisation state. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_init_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as display_init: show: the initialisation state. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_init_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_init: show: the initialisation state. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_init_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** State byte of display_init. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_init_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of display_init, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_init_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name lumo_num: number of this lumo processor
 *  @{ */
/** Address of the member lumo_num inside the object: number of this lumo processor. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_lumo_num_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
/** Value of the member lumo_num: number of this lumo processor. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_lumo_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as lumo_num: number of this lumo processor. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_lumo_num_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as lumo_num: number of this lumo processor. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_lumo_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** State byte of lumo_num. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_lumo_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of lumo_num, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_lumo_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name complex_num: number of the complex that the processor belongs to
 *  @{ */
/** Address of the member complex_num inside the object: number of the complex that the processor belongs to. Null after
 * an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_complex_num_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member complex_num: number of the complex that the processor belongs to. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_complex_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as complex_num: number of the complex that the processor belongs to. Announced, marked
 * as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_complex_num_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value as complex_num: number of the complex that the processor belongs to. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_complex_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** State byte of complex_num. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_complex_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of complex_num, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_complex_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name direction: direction of traffic that the processor serves
 *  @{ */
/** Address of the member direction inside the object: direction of traffic that the processor serves. Null after an
 * error. */
LUMO_UI_TARN_API lumo_tarn_lumo_direction_e *lumo_tarn_lumo_info_direction_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member direction: direction of traffic that the processor serves. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_direction_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as direction: direction of traffic that the processor serves. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_direction_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_lumo_direction_e *source, uint32_t *err);
/** Stores an enumerator of lumo_tarn_lumo_direction_e as direction: direction of traffic that the processor serves. A
 * number beyond the enumerators is refused with EIDRM, and counts as written all the same. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_direction_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of direction. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_direction_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of direction, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_direction_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name epoch: epoch value of the processor
 *  @{ */
/** Address of the member epoch inside the object: epoch value of the processor. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_epoch_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
/** Value of the member epoch: epoch value of the processor. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_epoch_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as epoch: epoch value of the processor. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_epoch_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as epoch: epoch value of the processor. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_epoch_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t value, uint32_t *err);
/** State byte of epoch. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_epoch_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of epoch, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_epoch_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name fdb_initialized: flag word: fdb initialised
 *  @{ */
/** Address of the member fdb_initialized inside the object: flag word: fdb initialised. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_fdb_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member fdb_initialized: flag word: fdb initialised. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_fdb_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as fdb_initialized: flag word: fdb initialised. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as fdb_initialized: flag word: fdb initialised. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of fdb_initialized. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_fdb_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of fdb_initialized, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name fdb_base: header and footer description of the fdb
 *  @{ */
/** Address of the member fdb_base inside the object: header and footer description of the fdb. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_fdb_base *lumo_tarn_lumo_info_fdb_base_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into fdb_base: header and footer description of the fdb. The source loses its arrays and strings;
 * what fdb_base owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_base_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_fdb_base *source, uint32_t *err);
/** State byte of fdb_base. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_fdb_base_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of fdb_base, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_base_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name chunk_overhead: overhead of a chunk
 *  @{ */
/** Address of the member chunk_overhead inside the object: overhead of a chunk. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_chunk_overhead_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member chunk_overhead: overhead of a chunk. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_chunk_overhead_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as chunk_overhead: overhead of a chunk. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_chunk_overhead_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value as chunk_overhead: overhead of a chunk. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_chunk_overhead_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** State byte of chunk_overhead. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_chunk_overhead_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of chunk_overhead, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_chunk_overhead_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name flow_info_mem_size: memory size of a flow information entry
 *  @{ */
/** Address of the member flow_info_mem_size inside the object: memory size of a flow information entry. Null after an
 * error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_flow_info_mem_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member flow_info_mem_size: memory size of a flow information entry. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_flow_info_mem_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as flow_info_mem_size: memory size of a flow information entry. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_mem_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value as flow_info_mem_size: memory size of a flow information entry. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_mem_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** State byte of flow_info_mem_size. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_flow_info_mem_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of flow_info_mem_size, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_mem_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name mp_cache_entry_size: size of an mp cache entry
 *  @{ */
/** Address of the member mp_cache_entry_size inside the object: size of an mp cache entry. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_mp_cache_entry_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member mp_cache_entry_size: size of an mp cache entry. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_mp_cache_entry_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as mp_cache_entry_size: size of an mp cache entry. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_cache_entry_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value as mp_cache_entry_size: size of an mp cache entry. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_cache_entry_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** State byte of mp_cache_entry_size. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of mp_cache_entry_size, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_cache_entry_size: size of a tt cache entry
 *  @{ */
/** Address of the member tt_cache_entry_size inside the object: size of a tt cache entry. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_tt_cache_entry_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member tt_cache_entry_size: size of a tt cache entry. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_tt_cache_entry_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as tt_cache_entry_size: size of a tt cache entry. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_cache_entry_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value as tt_cache_entry_size: size of a tt cache entry. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_cache_entry_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** State byte of tt_cache_entry_size. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of tt_cache_entry_size, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tarn_tt_tbl: memory of the feature's traffic table
 *  @{ */
/** Address of the member tarn_tt_tbl inside the object: memory of the feature's traffic table. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_fdb_mem_info *lumo_tarn_lumo_info_tarn_tt_tbl_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into tarn_tt_tbl: memory of the feature's traffic table. The source loses its arrays and strings;
 * what tarn_tt_tbl owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_tt_tbl_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_fdb_mem_info *source, uint32_t *err);
/** State byte of tarn_tt_tbl. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of tarn_tt_tbl, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tarn_debug_flags: memory of the feature's debug flags
 *  @{ */
/** Address of the member tarn_debug_flags inside the object: memory of the feature's debug flags. Null after an
 * error. */
LUMO_UI_TARN_API lumo_tarn_fdb_mem_info *lumo_tarn_lumo_info_tarn_debug_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into tarn_debug_flags: memory of the feature's debug flags. The source loses its arrays and strings;
 * what tarn_debug_flags owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_debug_flags_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_fdb_mem_info *source, uint32_t *err);
/** State byte of tarn_debug_flags. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tarn_debug_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of tarn_debug_flags, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_debug_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ha_state: high-availability state of the processor
 *  @{ */
/** Address of the member ha_state inside the object: high-availability state of the processor. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_lumo_info_ha_state_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member ha_state: high-availability state of the processor. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_ha_state_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as ha_state: high-availability state of the processor. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_state_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_ha_state_e *source, uint32_t *err);
/** Stores an enumerator of lumo_tarn_ha_state_e as ha_state: high-availability state of the processor. A number beyond
 * the enumerators is refused with EIDRM, and counts as written all the same. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_state_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of ha_state. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ha_state_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of ha_state, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_state_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ha_running: flag word: high availability is running
 *  @{ */
/** Address of the member ha_running inside the object: flag word: high availability is running. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_ha_running_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member ha_running: flag word: high availability is running. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_ha_running_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as ha_running: flag word: high availability is running. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_running_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as ha_running: flag word: high availability is running. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_running_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of ha_running. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ha_running_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of ha_running, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_running_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ha_enabled: flag word: high availability is enabled
 *  @{ */
/** Address of the member ha_enabled inside the object: flag word: high availability is enabled. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_ha_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member ha_enabled: flag word: high availability is enabled. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_ha_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as ha_enabled: flag word: high availability is enabled. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_enabled_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as ha_enabled: flag word: high availability is enabled. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of ha_enabled. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ha_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of ha_enabled, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name drv_conn_h: handle: the connection to the driver
 *  @{ */
/** Address of the member drv_conn_h inside the object: handle: the connection to the driver. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_drv_conn_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member drv_conn_h: handle: the connection to the driver. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_drv_conn_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as drv_conn_h: handle: the connection to the driver. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_drv_conn_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as drv_conn_h: handle: the connection to the driver. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_drv_conn_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of drv_conn_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_drv_conn_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of drv_conn_h, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_drv_conn_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name exmem_h: handle: external memory
 *  @{ */
/** Address of the member exmem_h inside the object: handle: external memory. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_exmem_h_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
/** Value of the member exmem_h: handle: external memory. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_exmem_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as exmem_h: handle: external memory. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_exmem_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as exmem_h: handle: external memory. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_exmem_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of exmem_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_exmem_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of exmem_h, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_exmem_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name wexa_num_feat: number of features in a wexa entry
 *  @{ */
/** Address of the member wexa_num_feat inside the object: number of features in a wexa entry. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_wexa_num_feat_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member wexa_num_feat: number of features in a wexa entry. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_wexa_num_feat_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as wexa_num_feat: number of features in a wexa entry. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_num_feat_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value as wexa_num_feat: number of features in a wexa entry. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_num_feat_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** State byte of wexa_num_feat. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_wexa_num_feat_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of wexa_num_feat, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_num_feat_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name wexa_feat_size: size of a feature in a wexa entry
 *  @{ */
/** Address of the member wexa_feat_size inside the object: size of a feature in a wexa entry. Null after an error. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_wexa_feat_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member wexa_feat_size: size of a feature in a wexa entry. 0 after an error. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_wexa_feat_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as wexa_feat_size: size of a feature in a wexa entry. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_feat_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value as wexa_feat_size: size of a feature in a wexa entry. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_feat_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** State byte of wexa_feat_size. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_wexa_feat_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of wexa_feat_size, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_feat_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name in_wexa_h: handle: ingress wexa
 *  @{ */
/** Address of the member in_wexa_h inside the object: handle: ingress wexa. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_in_wexa_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member in_wexa_h: handle: ingress wexa. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_in_wexa_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as in_wexa_h: handle: ingress wexa. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as in_wexa_h: handle: ingress wexa. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of in_wexa_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_in_wexa_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of in_wexa_h, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name in_wexa_feat_h: handle: ingress wexa feature
 *  @{ */
/** Address of the member in_wexa_feat_h inside the object: handle: ingress wexa feature. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_in_wexa_feat_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member in_wexa_feat_h: handle: ingress wexa feature. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_in_wexa_feat_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as in_wexa_feat_h: handle: ingress wexa feature. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_feat_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as in_wexa_feat_h: handle: ingress wexa feature. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_feat_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of in_wexa_feat_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of in_wexa_feat_h, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name out_wexa_h: handle: egress wexa
 *  @{ */
/** Address of the member out_wexa_h inside the object: handle: egress wexa. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_out_wexa_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member out_wexa_h: handle: egress wexa. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_out_wexa_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as out_wexa_h: handle: egress wexa. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as out_wexa_h: handle: egress wexa. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of out_wexa_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_out_wexa_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of out_wexa_h, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name out_wexa_feat_h: handle: egress wexa feature
 *  @{ */
/** Address of the member out_wexa_feat_h inside the object: handle: egress wexa feature. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_out_wexa_feat_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member out_wexa_feat_h: handle: egress wexa feature. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_out_wexa_feat_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as out_wexa_feat_h: handle: egress wexa feature. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_feat_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as out_wexa_feat_h: handle: egress wexa feature. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_feat_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of out_wexa_feat_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of out_wexa_feat_h, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_hash_salt: salt of the data plane's hash, carried as a datum
 *  @{ */
/** Address of the member dp_hash_salt inside the object: salt of the data plane's hash, carried as a datum. Null after
 * an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_hash_salt_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member dp_hash_salt: salt of the data plane's hash, carried as a datum. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_hash_salt_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as dp_hash_salt: salt of the data plane's hash, carried as a datum. Announced, marked
 * as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_hash_salt_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as dp_hash_salt: salt of the data plane's hash, carried as a datum. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_hash_salt_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of dp_hash_salt. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_hash_salt_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of dp_hash_salt, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_hash_salt_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name flow_info_initialized: flag word: flow information initialised on the client side
 *  @{ */
/** Address of the member flow_info_initialized inside the object: flag word: flow information initialised on the client
 * side. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_flow_info_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member flow_info_initialized: flag word: flow information initialised on the client side. 0 after an
 * error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_flow_info_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as flow_info_initialized: flag word: flow information initialised on the client side.
 * Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as flow_info_initialized: flag word: flow information initialised on the client side. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of flow_info_initialized. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_flow_info_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of flow_info_initialized, announced, and marks the object as modified. EINVAL on a handle or
 * for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_flow_info_initialized: flag word: flow information initialised in the data plane
 *  @{ */
/** Address of the member dp_flow_info_initialized inside the object: flag word: flow information initialised in the
 * data plane. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_flow_info_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member dp_flow_info_initialized: flag word: flow information initialised in the data plane. 0 after an
 * error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_flow_info_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as dp_flow_info_initialized: flag word: flow information initialised in the data plane.
 * Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_flow_info_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as dp_flow_info_initialized: flag word: flow information initialised in the data plane. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_flow_info_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of dp_flow_info_initialized. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of dp_flow_info_initialized, announced, and marks the object as modified. EINVAL on a handle
 * or for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name mp_initialized: flag word: mp initialised on the client side
 *  @{ */
/** Address of the member mp_initialized inside the object: flag word: mp initialised on the client side. Null after an
 * error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_mp_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member mp_initialized: flag word: mp initialised on the client side. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_mp_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as mp_initialized: flag word: mp initialised on the client side. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as mp_initialized: flag word: mp initialised on the client side. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of mp_initialized. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_mp_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of mp_initialized, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_mp_initialized: flag word: mp initialised in the data plane
 *  @{ */
/** Address of the member dp_mp_initialized inside the object: flag word: mp initialised in the data plane. Null after
 * an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_mp_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member dp_mp_initialized: flag word: mp initialised in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_mp_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as dp_mp_initialized: flag word: mp initialised in the data plane. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_mp_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as dp_mp_initialized: flag word: mp initialised in the data plane. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_mp_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of dp_mp_initialized. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_mp_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of dp_mp_initialized, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_mp_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_initialized: flag word: tt initialised on the client side
 *  @{ */
/** Address of the member tt_initialized inside the object: flag word: tt initialised on the client side. Null after an
 * error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_tt_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member tt_initialized: flag word: tt initialised on the client side. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_tt_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as tt_initialized: flag word: tt initialised on the client side. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as tt_initialized: flag word: tt initialised on the client side. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of tt_initialized. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of tt_initialized, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_tt_initialized: flag word: tt initialised in the data plane
 *  @{ */
/** Address of the member dp_tt_initialized inside the object: flag word: tt initialised in the data plane. Null after
 * an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_tt_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member dp_tt_initialized: flag word: tt initialised in the data plane. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_tt_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as dp_tt_initialized: flag word: tt initialised in the data plane. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_tt_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as dp_tt_initialized: flag word: tt initialised in the data plane. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_tt_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of dp_tt_initialized. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_tt_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of dp_tt_initialized, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_tt_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_sig_initialized: flag word: application signatures initialised on the client side
 *  @{ */
/** Address of the member appl_sig_initialized inside the object: flag word: application signatures initialised on the
 * client side. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_appl_sig_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member appl_sig_initialized: flag word: application signatures initialised on the client side. 0 after
 * an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_appl_sig_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as appl_sig_initialized: flag word: application signatures initialised on the client
 * side. Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as appl_sig_initialized: flag word: application signatures initialised on the client side. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of appl_sig_initialized. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_sig_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of appl_sig_initialized, announced, and marks the object as modified. EINVAL on a handle or
 * for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_appl_sig_initialized: flag word: application signatures initialised in the data plane
 *  @{ */
/** Address of the member dp_appl_sig_initialized inside the object: flag word: application signatures initialised in
 * the data plane. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_appl_sig_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member dp_appl_sig_initialized: flag word: application signatures initialised in the data plane. 0
 * after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_appl_sig_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as dp_appl_sig_initialized: flag word: application signatures initialised in the data
 * plane. Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as dp_appl_sig_initialized: flag word: application signatures initialised in the data plane.
 * Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** State byte of dp_appl_sig_initialized. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of dp_appl_sig_initialized, announced, and marks the object as modified. EINVAL on a handle or
 * for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_tc_filter_list_exmem_ptr: external memory of the traffic table's filter class list
 *  @{ */
/** Address of the member tt_tc_filter_list_exmem_ptr inside the object: external memory of the traffic table's filter
 * class list. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member tt_tc_filter_list_exmem_ptr: external memory of the traffic table's filter class list. 0 after
 * an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as tt_tc_filter_list_exmem_ptr: external memory of the traffic table's filter class
 * list. Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as tt_tc_filter_list_exmem_ptr: external memory of the traffic table's filter class list. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of tt_tc_filter_list_exmem_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of tt_tc_filter_list_exmem_ptr, announced, and marks the object as modified. EINVAL on a
 * handle or for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_tc_agg_list_exmem_ptr: external memory of the traffic table's aggregation class list
 *  @{ */
/** Address of the member tt_tc_agg_list_exmem_ptr inside the object: external memory of the traffic table's aggregation
 * class list. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member tt_tc_agg_list_exmem_ptr: external memory of the traffic table's aggregation class list. 0 after
 * an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as tt_tc_agg_list_exmem_ptr: external memory of the traffic table's aggregation class
 * list. Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as tt_tc_agg_list_exmem_ptr: external memory of the traffic table's aggregation class list.
 * Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of tt_tc_agg_list_exmem_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of tt_tc_agg_list_exmem_ptr, announced, and marks the object as modified. EINVAL on a handle
 * or for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_tc_learn_list_exmem_ptr: external memory of the traffic table's learn list
 *  @{ */
/** Address of the member tt_tc_learn_list_exmem_ptr inside the object: external memory of the traffic table's learn
 * list. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member tt_tc_learn_list_exmem_ptr: external memory of the traffic table's learn list. 0 after an
 * error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as tt_tc_learn_list_exmem_ptr: external memory of the traffic table's learn list.
 * Announced, marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as tt_tc_learn_list_exmem_ptr: external memory of the traffic table's learn list. Announced, marked
 * as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of tt_tc_learn_list_exmem_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of tt_tc_learn_list_exmem_ptr, announced, and marks the object as modified. EINVAL on a handle
 * or for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tc_list_head_chunk_h: handle: chunk pool of class list heads
 *  @{ */
/** Address of the member tc_list_head_chunk_h inside the object: handle: chunk pool of class list heads. Null after an
 * error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tc_list_head_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member tc_list_head_chunk_h: handle: chunk pool of class list heads. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tc_list_head_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as tc_list_head_chunk_h: handle: chunk pool of class list heads. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_list_head_chunk_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as tc_list_head_chunk_h: handle: chunk pool of class list heads. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_list_head_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of tc_list_head_chunk_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of tc_list_head_chunk_h, announced, and marks the object as modified. EINVAL on a handle or
 * for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tc_chunk_h: handle: chunk pool of traffic classes
 *  @{ */
/** Address of the member tc_chunk_h inside the object: handle: chunk pool of traffic classes. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tc_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member tc_chunk_h: handle: chunk pool of traffic classes. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tc_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as tc_chunk_h: handle: chunk pool of traffic classes. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_chunk_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as tc_chunk_h: handle: chunk pool of traffic classes. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of tc_chunk_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tc_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of tc_chunk_h, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ll_chunk_h: handle: chunk pool of learn lists
 *  @{ */
/** Address of the member ll_chunk_h inside the object: handle: chunk pool of learn lists. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_ll_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member ll_chunk_h: handle: chunk pool of learn lists. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_ll_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as ll_chunk_h: handle: chunk pool of learn lists. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ll_chunk_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as ll_chunk_h: handle: chunk pool of learn lists. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ll_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of ll_chunk_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ll_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of ll_chunk_h, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ll_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_chunk_h: handle: chunk pool of applications
 *  @{ */
/** Address of the member appl_chunk_h inside the object: handle: chunk pool of applications. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_appl_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member appl_chunk_h: handle: chunk pool of applications. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_appl_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as appl_chunk_h: handle: chunk pool of applications. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_chunk_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value as appl_chunk_h: handle: chunk pool of applications. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of appl_chunk_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of appl_chunk_h, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name cl_appl_sig_hash_ptr: the client side's application signature hash
 *  @{ */
/** Address of the member cl_appl_sig_hash_ptr inside the object: the client side's application signature hash. Null
 * after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member cl_appl_sig_hash_ptr: the client side's application signature hash. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as cl_appl_sig_hash_ptr: the client side's application signature hash. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as cl_appl_sig_hash_ptr: the client side's application signature hash. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of cl_appl_sig_hash_ptr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of cl_appl_sig_hash_ptr, announced, and marks the object as modified. EINVAL on a handle or
 * for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_appl_sig_hash_h: handle: the data plane's application signature hash
 *  @{ */
/** Address of the member dp_appl_sig_hash_h inside the object: handle: the data plane's application signature hash.
 * Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_dp_appl_sig_hash_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member dp_appl_sig_hash_h: handle: the data plane's application signature hash. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_dp_appl_sig_hash_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as dp_appl_sig_hash_h: handle: the data plane's application signature hash. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_hash_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as dp_appl_sig_hash_h: handle: the data plane's application signature hash. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_hash_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of dp_appl_sig_hash_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of dp_appl_sig_hash_h, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_sig_chunk_h: handle: chunk pool of application signatures
 *  @{ */
/** Address of the member appl_sig_chunk_h inside the object: handle: chunk pool of application signatures. Null after
 * an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_appl_sig_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Value of the member appl_sig_chunk_h: handle: chunk pool of application signatures. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_appl_sig_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores what the source holds as appl_sig_chunk_h: handle: chunk pool of application signatures. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_chunk_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as appl_sig_chunk_h: handle: chunk pool of application signatures. Announced, marked as modified and,
 * on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** State byte of appl_sig_chunk_h. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of appl_sig_chunk_h, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_sig_hash_exmem: block of the application signature hash
 *  @{ */
/** Address of the member appl_sig_hash_exmem inside the object: block of the application signature hash. Null after an
 * error. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_lumo_info_appl_sig_hash_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into appl_sig_hash_exmem: block of the application signature hash. The source loses its arrays and
 * strings; what appl_sig_hash_exmem owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_hash_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_exmem_info *source, uint32_t *err);
/** State byte of appl_sig_hash_exmem. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of appl_sig_hash_exmem, announced, and marks the object as modified. EINVAL on a handle or for
 * an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name mp_export_exmem: block of the mp export
 *  @{ */
/** Address of the member mp_export_exmem inside the object: block of the mp export. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_lumo_info_mp_export_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into mp_export_exmem: block of the mp export. The source loses its arrays and strings; what
 * mp_export_exmem owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_export_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_exmem_info *source, uint32_t *err);
/** State byte of mp_export_exmem. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_mp_export_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of mp_export_exmem, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_export_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_export_exmem: block of the tt export
 *  @{ */
/** Address of the member tt_export_exmem inside the object: block of the tt export. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_lumo_info_tt_export_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into tt_export_exmem: block of the tt export. The source loses its arrays and strings; what
 * tt_export_exmem owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_export_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_exmem_info *source, uint32_t *err);
/** State byte of tt_export_exmem. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_export_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of tt_export_exmem, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_export_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_static_exmems: elements in static_exmem
 *  @{ */
/** Address of the count num_static_exmems: elements in static_exmem. To be read only: it follows from the array. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_num_static_exmems_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Count num_static_exmems: elements in static_exmem. 0 after an error. A count of one byte wraps at 256. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_num_static_exmems_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** @} */

/** @name static_exmem: processor's static memory blocks
 *  @{ */
/** Address of an element of static_exmem: processor's static memory blocks. It belongs to the array, and the next
 * growth makes it invalid. ENOENT beyond the end. */
LUMO_UI_TARN_API lumo_tarn_static_exmem_info *lumo_tarn_lumo_info_static_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
/** MOVES the value into an element of static_exmem: processor's static memory blocks. An index beyond the end grows the
 * array to index + 1 elements with a full move, so set the highest index first; a null value grows it and stores
 * nothing. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_static_exmem_info *value, uint32_t *err);
/** Sticky form of lumo_tarn_lumo_info_static_exmem_set(), which copies with copy_mode 0 and moves otherwise; returns
 * the handle's last_error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_static_exmem_set_cr(mirk_handle *h, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_static_exmem_info *value, uint32_t copy_mode);
/** State byte of one element of static_exmem. ENOENT beyond the end, EINVAL without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_static_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
/** Stores the state byte of one element of static_exmem. ENOENT beyond the end, EINVAL without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint8_t value, uint32_t *err);
/** State byte of static_exmem as a whole. EINVAL without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_static_exmem_state_flag_whole_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of static_exmem as a whole. EINVAL without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_whole_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Writes the address of the element states of static_exmem through out: one byte for each, null if there are none.
 * EINVAL without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_get_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t **out, uint32_t *err);
/** Copies length bytes, as many as static_exmem has elements, to the start of the object's whole state area, and not to
 * the element states. ENOENT for another length, EINVAL without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_set_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint8_t *source, uint32_t length, uint32_t *err);
/** @} */

/** @name num_dyn_exmems: elements in dyn_exmem
 *  @{ */
/** Address of the count num_dyn_exmems: elements in dyn_exmem. To be read only: it follows from the array. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_num_dyn_exmems_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Count num_dyn_exmems: elements in dyn_exmem. 0 after an error. A count of one byte wraps at 256. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_num_dyn_exmems_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** @} */

/** @name dyn_exmem: processor's dynamic memory blocks
 *  @{ */
/** Address of an element of dyn_exmem: processor's dynamic memory blocks. It belongs to the array, and the next growth
 * makes it invalid. ENOENT beyond the end. */
LUMO_UI_TARN_API lumo_tarn_dyn_exmem_info *lumo_tarn_lumo_info_dyn_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
/** MOVES the value into an element of dyn_exmem: processor's dynamic memory blocks. An index beyond the end grows the
 * array to index + 1 elements with a full move, so set the highest index first; a null value grows it and stores
 * nothing. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_dyn_exmem_info *value, uint32_t *err);
/** Sticky form of lumo_tarn_lumo_info_dyn_exmem_set(), which copies with copy_mode 0 and moves otherwise; returns the
 * handle's last_error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dyn_exmem_set_cr(mirk_handle *h, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_dyn_exmem_info *value, uint32_t copy_mode);
/** State byte of one element of dyn_exmem. ENOENT beyond the end, EINVAL without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dyn_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
/** Stores the state byte of one element of dyn_exmem. ENOENT beyond the end, EINVAL without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint8_t value, uint32_t *err);
/** State byte of dyn_exmem as a whole. EINVAL without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the state byte of dyn_exmem as a whole. EINVAL without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Writes the address of the element states of dyn_exmem through out: one byte for each, null if there are none. EINVAL
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_get_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t **out, uint32_t *err);
/** Copies length bytes, as many as dyn_exmem has elements, to the start of the object's whole state area, and not to
 * the element states. ENOENT for another length, EINVAL without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_set_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint8_t *source, uint32_t length, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
