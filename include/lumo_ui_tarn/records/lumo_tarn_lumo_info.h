/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_lumo_info.h - state of one processor. */
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

/** State of one processor.
 *
 * | member                      | type                          | meaning |
 * |-----------------------------|-------------------------------|---|
 * | display_all                 | boolean                       | whether to show everything |
 * | display_fdb                 | boolean                       | whether to show the fdb part |
 * | display_ha                  | boolean                       | whether to show the high-availability part |
 * | display_wexa                | boolean                       | whether to show the wexa part |
 * | display_handles             | boolean                       | whether to show the handles |
 * | display_exmem               | boolean                       | whether to show the memory blocks |
 * | display_init                | boolean                       | whether to show the initialization state |
 * | lumo_num                    | uint8_t                       | number of this lumo processor |
 * | complex_num                 | uint8_t                       | number of the complex that the processor belongs to |
 * | direction                   | lumo_tarn_lumo_direction_e    | direction of traffic that the processor serves |
 * | epoch                       | uint32_t                      | epoch value of the processor |
 * | fdb_initialized             | uint32_t                      | flag word, set if the fdb is initialized |
 * | fdb_base                    | lumo_tarn_fdb_base            | header and footer description of the fdb |
 * | chunk_overhead              | uint16_t                      | what a chunk takes beyond its content, in the unit of the processor |
 * | flow_info_mem_size          | uint16_t                      | memory that a flow information entry takes, in the unit of the processor |
 * | mp_cache_entry_size         | uint16_t                      | memory that an entry of the mp (prefix) cache takes, in the unit of the processor |
 * | tt_cache_entry_size         | uint16_t                      | memory that an entry of the tt (traffic table) cache takes, in the unit of the processor |
 * | tarn_tt_tbl                 | lumo_tarn_fdb_mem_info        | memory of the feature's traffic table |
 * | tarn_debug_flags            | lumo_tarn_fdb_mem_info        | memory of the feature's debug flags |
 * | ha_state                    | lumo_tarn_ha_state_e          | high-availability state of the processor |
 * | ha_running                  | uint32_t                      | flag word, set if high availability is running |
 * | ha_enabled                  | uint32_t                      | flag word, set if high availability is enabled |
 * | drv_conn_h                  | uint64_t                      | handle of the connection to the driver |
 * | exmem_h                     | uint64_t                      | handle of the external memory |
 * | wexa_num_feat               | uint16_t                      | number of features in a wexa entry |
 * | wexa_feat_size              | uint16_t                      | memory that a feature takes in a wexa entry, in the unit of the processor |
 * | in_wexa_h                   | uint64_t                      | handle of the ingress wexa |
 * | in_wexa_feat_h              | uint64_t                      | handle of the ingress wexa feature |
 * | out_wexa_h                  | uint64_t                      | handle of the egress wexa |
 * | out_wexa_feat_h             | uint64_t                      | handle of the egress wexa feature |
 * | dp_hash_salt                | uint32_t                      | salt of the data plane's hash |
 * | flow_info_initialized       | uint32_t                      | flag word, set if flow information is initialized on the client side |
 * | dp_flow_info_initialized    | uint32_t                      | flag word, set if flow information is initialized in the data plane |
 * | mp_initialized              | uint32_t                      | flag word, set if mp is initialized on the client side |
 * | dp_mp_initialized           | uint32_t                      | flag word, set if mp is initialized in the data plane |
 * | tt_initialized              | uint32_t                      | flag word, set if tt is initialized on the client side |
 * | dp_tt_initialized           | uint32_t                      | flag word, set if tt is initialized in the data plane |
 * | appl_sig_initialized        | uint32_t                      | flag word, set if application signatures are initialized on the client side |
 * | dp_appl_sig_initialized     | uint32_t                      | flag word, set if application signatures are initialized in the data plane |
 * | tt_tc_filter_list_exmem_ptr | uint64_t                      | external memory of the traffic table's filter class list |
 * | tt_tc_agg_list_exmem_ptr    | uint64_t                      | external memory of the traffic table's aggregation class list |
 * | tt_tc_learn_list_exmem_ptr  | uint64_t                      | external memory of the traffic table's learn list |
 * | tc_list_head_chunk_h        | uint64_t                      | handle of the chunk pool of class list heads |
 * | tc_chunk_h                  | uint64_t                      | handle of the chunk pool of traffic classes |
 * | ll_chunk_h                  | uint64_t                      | handle of the chunk pool of learn lists |
 * | appl_chunk_h                | uint64_t                      | handle of the chunk pool of applications |
 * | cl_appl_sig_hash_ptr        | uint64_t                      | application signature hash of the client side |
 * | dp_appl_sig_hash_h          | uint64_t                      | handle of the data plane's application signature hash |
 * | appl_sig_chunk_h            | uint64_t                      | handle of the chunk pool of application signatures |
 * | appl_sig_hash_exmem         | lumo_tarn_exmem_info          | block of the application signature hash |
 * | mp_export_exmem             | lumo_tarn_exmem_info          | block of the mp export |
 * | tt_export_exmem             | lumo_tarn_exmem_info          | block of the tt export |
 * | num_static_exmems           | uint8_t count                 | number of elements in static_exmem |
 * | static_exmem                | lumo_tarn_static_exmem_info[] | static memory blocks of the processor |
 * | num_dyn_exmems              | uint8_t count                 | number of elements in dyn_exmem |
 * | dyn_exmem                   | lumo_tarn_dyn_exmem_info[]    | dynamic memory blocks of the processor |
 *
 * lumo_ui_tarn/families.h describes the operations. */
typedef struct lumo_tarn_lumo_info lumo_tarn_lumo_info;
/** The module's own type record of lumo_tarn_lumo_info: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_lumo_info_type_info_internal;

/** @name Lifecycle
 *  @{ */
/** Allocates an instance with all members zero. Returns NULL if allocation fails, or if the domain look-up of an
 * enumeration member fails. The caller owns the instance and releases it with lumo_tarn_lumo_info_destroy(). */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_lumo_info_create(): returns a sentinel instead of NULL if allocation fails or last_error is
 * set already. Returns NULL, not the sentinel, if the domain look-up of an enumeration member fails; last_error may
 * then be 0. Only destroy operations, and sticky forms while last_error is set, accept the sentinel. */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_create_cr(mirk_handle *h);
/** Same as lumo_tarn_lumo_info_create(), but does not register the trace module of types. For callers that create many
 * instances. */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Initializes an instance in zeroed memory of the caller: header, usage counters, nested objects. type is normally
 * _lumo_tarn_lumo_info_type_info_internal. notify 0 suppresses write notifications, skip_count 1 suppresses usage
 * counting. flags are added to obj_flag. sttr_base is the address of the state area if the instance is nested in
 * another one. EINVAL if a nested instance on a tracking handle has none. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Returns the size of an instance in bytes: its members, everything nested in it and, on a tracking handle, its state
 * area. Blocks of arrays and strings are not counted. The size differs between tracking modes. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_sizeof(mirk_handle *h);
/** Returns the variant, limited to 0, the highest one that this library has. */
LUMO_UI_TARN_API int8_t lumo_tarn_lumo_info_variant_data_index_cap(int8_t variant);
/** Sets MIRK_OBJ_EMBEDDED in the instance and in the records, IP addresses and booleans nested in it. The caller
 * thereby states that the instance lies in memory of another object. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object);
/** Changes the instance to the variant that the handle's domain has for its type. Notifies if the variant changes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_adjust_variant(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
/** Destroys the instance: its arrays and strings, everything nested in it, and its memory. NULL and the sentinel are
 * ignored. An instance that other objects refer to is released with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object);
/** Sticky form of lumo_tarn_lumo_info_destroy(): works under the handle's default_id, also while last_error is set. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_destroy_cr(mirk_handle *h, lumo_tarn_lumo_info *object);
/** Same as lumo_tarn_lumo_info_destroy(), but with free_it 0 the memory of the instance itself is not freed. For
 * instances that lie in memory of another object. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_destroy_internal(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** Returns the instance itself, so that code can treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order; zeros if object is NULL. If the
 * instance has no body, nothing is written and no error is set. */
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
/** Adjusts the instance to the domain's variant, then stores all scalar members in table order, without counts and
 * lengths. If that variant has no body, nothing is stored and no error is set. Does not change state bytes, unlike the
 * setters of single members. EINVAL if object is NULL. */
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
/** MOVES the source into the destination: members, state bytes, and the ownership of arrays and strings, which the
 * source loses. What the destination owned before is not released. Moves even if err is already set. EINVAL if either
 * is NULL. On a tracking handle, EINVAL if either has no state bytes; arrays and strings are moved all the same. Use
 * lumo_tarn_lumo_info_copy_cr() to copy. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *destination,
    lumo_tarn_lumo_info *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy at the new location the only owner of arrays and
 * strings, and clears them at the old location. Acts even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *new_location, lumo_tarn_lumo_info *old_location, uint32_t *err);
/** Fills the state area of the instance and of each element of its own arrays with one byte, without notifications.
 * Elements of arrays in nested records are not filled. Leaks the blocks of element states: the elements of each array
 * then all have this state, and setting it for one of them has no effect. When such an array grows, the state of its
 * old elements becomes 0, and states can be set again. Has no effect without tracking. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value);
/** Returns 1 if the record has a member with this index, counted from 0 in table order, else 0. If the domain has a
 * variant above 0, every index gives 1. The instance is not read. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_is_valid_cr(mirk_handle *h, lumo_tarn_lumo_info *object,
    uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** Returns the number of object identifiers that the instance itself holds: 0 in this schema. EINVAL if object is
 * NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Writes up to size object identifiers that the instance itself holds: none in this schema. EINVAL if object is
 * NULL. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, void **oids, uint32_t size, uint32_t *err);
/** Stores in the runtime where the state of each nested record and IP address is. state_area is the address of the
 * instance's state area. For code that has moved the instance or its state. Acts even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_offset_update(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    void *state_area, uint32_t *err);
/** Removes from the runtime the state locations that lumo_tarn_lumo_info_offset_update() stored, at every depth. Acts
 * even if err is already set. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_offset_remove(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Returns the buffer size in bytes that lumo_tarn_lumo_info_marshal() needs, without the guard byte. On a tracking
 * handle this is too large by one byte for each character and for each empty array or string. RA data is not counted:
 * add 9 bytes for each object that has it, including nested objects and elements. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *instance);
/** Sticky form of lumo_tarn_lumo_info_len(). Returns 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_len_cr(mirk_handle *h, lumo_tarn_lumo_info *instance);
/** Writes the instance as a frame into buffer, which must have remaining bytes and one guard byte after them. Returns
 * the number of bytes written; after an error the frame is not valid. EMSGSIZE or ENOMEM if the buffer is too small;
 * state bytes that do not fit are dropped without an error. EINVAL if instance is NULL. EIDRM if the domain does not
 * have the instance's variant. A lenient runtime then leaves err alone and the frame is written in the domain's
 * variant. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_info *instance, int32_t remaining, uint32_t *err);
/** Same as lumo_tarn_lumo_info_marshal(), but the outermost frame keeps the instance's own variant, whatever the domain
 * has. Nested records are still limited to the domain's variants. This is the frame of a deep copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_info *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes from buffer, which must have one guard byte after them, into an instance. Returns the
 * number of bytes consumed. It may exceed length without an error: check it before you advance. After an error it has
 * no meaning. With reuse 0 the instance must own no arrays or strings; they would be leaked. With reuse 1 its arrays
 * and strings are kept where the counts are equal; what the elements owned is leaked. The frame may come from an
 * untrusted peer. EMSGSIZE or ENOMEM if the frame is too short, ENOMEM if allocation fails, EINVAL if instance is NULL.
 * Calls abort() if the handle tracks state and the instance has none. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_info *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy through a frame in buffer, which must have size bytes and one guard byte after them. size: at
 * least lumo_tarn_lumo_info_len(), and 9 more for each object with RA data. *result is NULL after any error; otherwise
 * the caller owns it. ENOENT if source, result or buffer is NULL; other errors are those of
 * lumo_tarn_lumo_info_marshal() and lumo_tarn_lumo_info_unmarshal(). */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *source,
    lumo_tarn_lumo_info **result, void *buffer, uint32_t size, uint32_t *err);
/** Makes a deep copy through the handle's workspace, which has 65,536 bytes in the reference runtime. Returns NULL
 * after any error; otherwise the caller owns the copy. A larger record needs lumo_tarn_lumo_info_clone(). */
LUMO_UI_TARN_API lumo_tarn_lumo_info *lumo_tarn_lumo_info_clone_cr(mirk_handle *h, lumo_tarn_lumo_info *source);
/** Makes a deep copy in an existing instance, through the handle's workspace. What the destination owned before is not
 * released. After an error do not use or destroy it: it has been freed if the copy could not be read, and leaks if the
 * copy could not be written. A NULL destination leaks the copy. lumo_tarn_lumo_info_clone_cr() does not have these
 * problems. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_copy_cr(mirk_handle *h, lumo_tarn_lumo_info *source,
    lumo_tarn_lumo_info *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as readable text under this name, indented by indent blanks. Returns the length in bytes without
 * the final NUL. The indent of closing braces is counted but not written. Clear the buffer first, then replace NUL
 * bytes within the returned length by blanks. EMSGSIZE or ENOSPC if the text does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_lumo_info *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_lumo_info_print(), under the type's own name. Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_print_cr(mirk_handle *h, lumo_tarn_lumo_info *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name with one element for each member. A nonzero state becomes an
 * attribute. Returns the length in bytes without the final NUL. EMSGSIZE if the text does not fit. EINVAL if the handle
 * tracks state and the instance has none. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_lumo_info *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_lumo_info_to_xml(), under the type's own name. Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_toxml_cr(mirk_handle *h, lumo_tarn_lumo_info *instance, char *buffer,
    int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members without an element, and strings
 * with an empty one, keep their values. ENOENT if there is no element at the path. EINVAL for an invalid number, which
 * ends the reading. message, which may be NULL, gets a sentence only if reading an enumerator's element fails. Clear
 * its first byte before the call. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_lumo_info *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign of the result has a meaning. NULL comes first.
 * Header and state are ignored. */
LUMO_UI_TARN_API int32_t lumo_tarn_lumo_info_compare(const lumo_tarn_lumo_info *a, const lumo_tarn_lumo_info *b);
/** Mixes all members into the seed. Equal instances give equal results in every process. Returns the seed itself for
 * NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_hash(const lumo_tarn_lumo_info *instance, uint32_t seed);
/** Returns 1 if the record or one of its members has the modified mark. Clears the mark of the record and of the first
 * member that has one. Does not look into arrays: call it for each element. word is passed to the runtime unchanged.
 * NULL gives 0. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *instance, void *word);
/** @} */

/** @name display_all: whether to show everything
 *  @{ */
/** Returns the address of display_all in the object: whether to show everything. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of display_all: whether to show everything. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in display_all: whether to show everything. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an
 * object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_all_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_all: whether to show everything. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_all. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of display_all, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_fdb: whether to show the fdb part
 *  @{ */
/** Returns the address of display_fdb in the object: whether to show the fdb part. NULL for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_fdb_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of display_fdb: whether to show the fdb part. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_fdb_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in display_fdb: whether to show the fdb part. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an
 * object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_fdb_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_fdb: whether to show the fdb part. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_fdb_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_fdb. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_fdb_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of display_fdb, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_fdb_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_ha: whether to show the high-availability part
 *  @{ */
/** Returns the address of display_ha in the object: whether to show the high-availability part. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_ha_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of display_ha: whether to show the high-availability part. 0 for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_ha_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in display_ha: whether to show the high-availability part. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_ha_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_ha: whether to show the high-availability part. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_ha_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_ha. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_ha_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of display_ha, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_ha_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_wexa: whether to show the wexa part
 *  @{ */
/** Returns the address of display_wexa in the object: whether to show the wexa part. NULL for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_wexa_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of display_wexa: whether to show the wexa part. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_wexa_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in display_wexa: whether to show the wexa part. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_wexa_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_wexa: whether to show the wexa part. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_wexa_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_wexa. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_wexa_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of display_wexa, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_wexa_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_handles: whether to show the handles
 *  @{ */
/** Returns the address of display_handles in the object: whether to show the handles. NULL for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_handles_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of display_handles: whether to show the handles. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_handles_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in display_handles: whether to show the handles. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_handles_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_handles: whether to show the handles. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_handles_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_handles. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_handles_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of display_handles, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_handles_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_exmem: whether to show the memory blocks
 *  @{ */
/** Returns the address of display_exmem in the object: whether to show the memory blocks. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of display_exmem: whether to show the memory blocks. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_exmem_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in display_exmem: whether to show the memory blocks. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_exmem: whether to show the memory blocks. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_exmem_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_exmem. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of display_exmem, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_init: whether to show the initialization state
 *  @{ */
/** Returns the address of display_init in the object: whether to show the initialization state. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_lumo_info_display_init_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of display_init: whether to show the initialization state. 0 for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_init_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in display_init: whether to show the initialization state. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_init_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const mirk_boolean *source, uint32_t *err);
/** Stores a value in display_init: whether to show the initialization state. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_init_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Returns the state byte of display_init. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_display_init_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of display_init, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_display_init_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name lumo_num: number of this lumo processor
 *  @{ */
/** Returns the address of lumo_num in the object: number of this lumo processor. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_lumo_num_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
/** Returns the value of lumo_num: number of this lumo processor. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_lumo_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in lumo_num: number of this lumo processor. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an
 * object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_lumo_num_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value in lumo_num: number of this lumo processor. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_lumo_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Returns the state byte of lumo_num. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_lumo_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of lumo_num, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_lumo_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name complex_num: number of the complex that the processor belongs to
 *  @{ */
/** Returns the address of complex_num in the object: number of the complex that the processor belongs to. NULL for a
 * NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_complex_num_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of complex_num: number of the complex that the processor belongs to. 0 for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_complex_num_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in complex_num: number of the complex that the processor belongs to. Notifies, marks
 * the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_complex_num_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint8_t *source, uint32_t *err);
/** Stores a value in complex_num: number of the complex that the processor belongs to. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_complex_num_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Returns the state byte of complex_num. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_complex_num_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of complex_num, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_complex_num_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name direction: direction of traffic that the processor serves
 *  @{ */
/** Returns the address of direction in the object: direction of traffic that the processor serves. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_lumo_direction_e *lumo_tarn_lumo_info_direction_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of direction: direction of traffic that the processor serves. 0 for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_direction_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in direction: direction of traffic that the processor serves. A number that is not an
 * enumerator is refused with EIDRM; the member's state byte and the modified mark are set all the same. EINVAL for a
 * NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_direction_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_lumo_direction_e *source, uint32_t *err);
/** Stores an enumerator of lumo_tarn_lumo_direction_e in direction: direction of traffic that the processor serves.
 * Another number is refused with EIDRM; the member's state byte and the modified mark are set all the same. ENOENT for
 * a NULL object; on a tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_direction_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of direction. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_direction_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of direction, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_direction_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name epoch: epoch value of the processor
 *  @{ */
/** Returns the address of epoch in the object: epoch value of the processor. NULL for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_epoch_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
/** Returns the value of epoch: epoch value of the processor. 0 for a NULL object, and with EIDRM for an object without
 * a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_epoch_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in epoch: epoch value of the processor. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_epoch_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value in epoch: epoch value of the processor. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_epoch_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t value, uint32_t *err);
/** Returns the state byte of epoch. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_epoch_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of epoch, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_epoch_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name fdb_initialized: flag word, set if the fdb is initialized
 *  @{ */
/** Returns the address of fdb_initialized in the object: flag word, set if the fdb is initialized. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_fdb_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of fdb_initialized: flag word, set if the fdb is initialized. 0 for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_fdb_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in fdb_initialized: flag word, set if the fdb is initialized. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value in fdb_initialized: flag word, set if the fdb is initialized. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of fdb_initialized. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_fdb_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of fdb_initialized, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name fdb_base: header and footer description of the fdb
 *  @{ */
/** Returns the address of fdb_base in the object: header and footer description of the fdb. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_fdb_base *lumo_tarn_lumo_info_fdb_base_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into fdb_base: header and footer description of the fdb. The source loses its arrays and strings.
 * What fdb_base owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_base_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_fdb_base *source, uint32_t *err);
/** Returns the state byte of fdb_base. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_fdb_base_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of fdb_base, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_fdb_base_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name chunk_overhead: what a chunk takes beyond its content, in the unit of the processor
 *  @{ */
/** Returns the address of chunk_overhead in the object: what a chunk takes beyond its content, in the unit of the
 * processor. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_chunk_overhead_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of chunk_overhead: what a chunk takes beyond its content, in the unit of the processor. 0 for a
 * NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_chunk_overhead_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in chunk_overhead: what a chunk takes beyond its content, in the unit of the
 * processor. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a
 * NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_chunk_overhead_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value in chunk_overhead: what a chunk takes beyond its content, in the unit of the processor. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a
 * tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_chunk_overhead_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** Returns the state byte of chunk_overhead. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_chunk_overhead_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of chunk_overhead, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_chunk_overhead_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name flow_info_mem_size: memory that a flow information entry takes, in the unit of the processor
 *  @{ */
/** Returns the address of flow_info_mem_size in the object: memory that a flow information entry takes, in the unit of
 * the processor. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_flow_info_mem_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of flow_info_mem_size: memory that a flow information entry takes, in the unit of the processor. 0
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_flow_info_mem_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in flow_info_mem_size: memory that a flow information entry takes, in the unit of the
 * processor. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a
 * NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_mem_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value in flow_info_mem_size: memory that a flow information entry takes, in the unit of the processor.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object;
 * on a tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_mem_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** Returns the state byte of flow_info_mem_size. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_flow_info_mem_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of flow_info_mem_size, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_mem_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name mp_cache_entry_size: memory that an entry of the mp (prefix) cache takes, in the unit of the processor
 *  @{ */
/** Returns the address of mp_cache_entry_size in the object: memory that an entry of the mp (prefix) cache takes, in
 * the unit of the processor. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_mp_cache_entry_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of mp_cache_entry_size: memory that an entry of the mp (prefix) cache takes, in the unit of the
 * processor. 0 for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_mp_cache_entry_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in mp_cache_entry_size: memory that an entry of the mp (prefix) cache takes, in the
 * unit of the processor. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2.
 * EINVAL for a NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a
 * body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_cache_entry_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value in mp_cache_entry_size: memory that an entry of the mp (prefix) cache takes, in the unit of the
 * processor. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a
 * NULL object; on a tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_cache_entry_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** Returns the state byte of mp_cache_entry_size. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of mp_cache_entry_size, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_cache_entry_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_cache_entry_size: memory that an entry of the tt (traffic table) cache takes, in the unit of the processor
 *  @{ */
/** Returns the address of tt_cache_entry_size in the object: memory that an entry of the tt (traffic table) cache
 * takes, in the unit of the processor. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_tt_cache_entry_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of tt_cache_entry_size: memory that an entry of the tt (traffic table) cache takes, in the unit of
 * the processor. 0 for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_tt_cache_entry_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in tt_cache_entry_size: memory that an entry of the tt (traffic table) cache takes,
 * in the unit of the processor. Notifies, marks the object as modified and, on a tracking handle, sets the state byte
 * to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a
 * body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_cache_entry_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value in tt_cache_entry_size: memory that an entry of the tt (traffic table) cache takes, in the unit of
 * the processor. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for
 * a NULL object; on a tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_cache_entry_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** Returns the state byte of tt_cache_entry_size. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of tt_cache_entry_size, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_cache_entry_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tarn_tt_tbl: memory of the feature's traffic table
 *  @{ */
/** Returns the address of tarn_tt_tbl in the object: memory of the feature's traffic table. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_fdb_mem_info *lumo_tarn_lumo_info_tarn_tt_tbl_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into tarn_tt_tbl: memory of the feature's traffic table. The source loses its arrays and strings.
 * What tarn_tt_tbl owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_tt_tbl_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_fdb_mem_info *source, uint32_t *err);
/** Returns the state byte of tarn_tt_tbl. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of tarn_tt_tbl, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_tt_tbl_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tarn_debug_flags: memory of the feature's debug flags
 *  @{ */
/** Returns the address of tarn_debug_flags in the object: memory of the feature's debug flags. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_fdb_mem_info *lumo_tarn_lumo_info_tarn_debug_flags_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into tarn_debug_flags: memory of the feature's debug flags. The source loses its arrays and strings.
 * What tarn_debug_flags owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an
 * object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_debug_flags_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_fdb_mem_info *source, uint32_t *err);
/** Returns the state byte of tarn_debug_flags. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tarn_debug_flags_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of tarn_debug_flags, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tarn_debug_flags_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ha_state: high-availability state of the processor
 *  @{ */
/** Returns the address of ha_state in the object: high-availability state of the processor. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_lumo_info_ha_state_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of ha_state: high-availability state of the processor. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_ha_state_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in ha_state: high-availability state of the processor. A number that is not an
 * enumerator is refused with EIDRM; the member's state byte and the modified mark are set all the same. EINVAL for a
 * NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_state_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    lumo_tarn_ha_state_e *source, uint32_t *err);
/** Stores an enumerator of lumo_tarn_ha_state_e in ha_state: high-availability state of the processor. Another number
 * is refused with EIDRM; the member's state byte and the modified mark are set all the same. ENOENT for a NULL object;
 * on a tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_state_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of ha_state. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ha_state_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of ha_state, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_state_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ha_running: flag word, set if high availability is running
 *  @{ */
/** Returns the address of ha_running in the object: flag word, set if high availability is running. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_ha_running_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of ha_running: flag word, set if high availability is running. 0 for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_ha_running_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in ha_running: flag word, set if high availability is running. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_running_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value in ha_running: flag word, set if high availability is running. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_running_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of ha_running. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ha_running_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of ha_running, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_running_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ha_enabled: flag word, set if high availability is enabled
 *  @{ */
/** Returns the address of ha_enabled in the object: flag word, set if high availability is enabled. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_ha_enabled_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of ha_enabled: flag word, set if high availability is enabled. 0 for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_ha_enabled_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in ha_enabled: flag word, set if high availability is enabled. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_enabled_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value in ha_enabled: flag word, set if high availability is enabled. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_enabled_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of ha_enabled. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ha_enabled_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of ha_enabled, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ha_enabled_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name drv_conn_h: handle of the connection to the driver
 *  @{ */
/** Returns the address of drv_conn_h in the object: handle of the connection to the driver. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_drv_conn_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of drv_conn_h: handle of the connection to the driver. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_drv_conn_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in drv_conn_h: handle of the connection to the driver. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_drv_conn_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value in drv_conn_h: handle of the connection to the driver. Notifies, marks the object as modified and, on
 * a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_drv_conn_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of drv_conn_h. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_drv_conn_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of drv_conn_h, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_drv_conn_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name exmem_h: handle of the external memory
 *  @{ */
/** Returns the address of exmem_h in the object: handle of the external memory. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_exmem_h_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t *err);
/** Returns the value of exmem_h: handle of the external memory. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_exmem_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in exmem_h: handle of the external memory. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an
 * object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_exmem_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value in exmem_h: handle of the external memory. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_exmem_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of exmem_h. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_exmem_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of exmem_h, notifies, and marks the object as modified. EINVAL if the handle's tracking mode is
 * OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_exmem_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name wexa_num_feat: number of features in a wexa entry
 *  @{ */
/** Returns the address of wexa_num_feat in the object: number of features in a wexa entry. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_wexa_num_feat_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of wexa_num_feat: number of features in a wexa entry. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_wexa_num_feat_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in wexa_num_feat: number of features in a wexa entry. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_num_feat_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value in wexa_num_feat: number of features in a wexa entry. Notifies, marks the object as modified and, on
 * a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_num_feat_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** Returns the state byte of wexa_num_feat. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_wexa_num_feat_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of wexa_num_feat, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_num_feat_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name wexa_feat_size: memory that a feature takes in a wexa entry, in the unit of the processor
 *  @{ */
/** Returns the address of wexa_feat_size in the object: memory that a feature takes in a wexa entry, in the unit of the
 * processor. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t *lumo_tarn_lumo_info_wexa_feat_size_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of wexa_feat_size: memory that a feature takes in a wexa entry, in the unit of the processor. 0
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint16_t lumo_tarn_lumo_info_wexa_feat_size_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in wexa_feat_size: memory that a feature takes in a wexa entry, in the unit of the
 * processor. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a
 * NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_feat_size_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint16_t *source, uint32_t *err);
/** Stores a value in wexa_feat_size: memory that a feature takes in a wexa entry, in the unit of the processor.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object;
 * on a tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_feat_size_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint16_t value, uint32_t *err);
/** Returns the state byte of wexa_feat_size. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_wexa_feat_size_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of wexa_feat_size, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_wexa_feat_size_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name in_wexa_h: handle of the ingress wexa
 *  @{ */
/** Returns the address of in_wexa_h in the object: handle of the ingress wexa. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_in_wexa_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of in_wexa_h: handle of the ingress wexa. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_in_wexa_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in in_wexa_h: handle of the ingress wexa. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value in in_wexa_h: handle of the ingress wexa. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of in_wexa_h. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_in_wexa_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of in_wexa_h, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name in_wexa_feat_h: handle of the ingress wexa feature
 *  @{ */
/** Returns the address of in_wexa_feat_h in the object: handle of the ingress wexa feature. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_in_wexa_feat_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of in_wexa_feat_h: handle of the ingress wexa feature. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_in_wexa_feat_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in in_wexa_feat_h: handle of the ingress wexa feature. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_feat_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value in in_wexa_feat_h: handle of the ingress wexa feature. Notifies, marks the object as modified and, on
 * a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_feat_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of in_wexa_feat_h. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of in_wexa_feat_h, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_in_wexa_feat_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name out_wexa_h: handle of the egress wexa
 *  @{ */
/** Returns the address of out_wexa_h in the object: handle of the egress wexa. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_out_wexa_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of out_wexa_h: handle of the egress wexa. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_out_wexa_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in out_wexa_h: handle of the egress wexa. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value in out_wexa_h: handle of the egress wexa. Notifies, marks the object as modified and, on a tracking
 * handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without state bytes;
 * EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of out_wexa_h. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_out_wexa_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of out_wexa_h, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name out_wexa_feat_h: handle of the egress wexa feature
 *  @{ */
/** Returns the address of out_wexa_feat_h in the object: handle of the egress wexa feature. NULL for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_out_wexa_feat_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of out_wexa_feat_h: handle of the egress wexa feature. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_out_wexa_feat_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in out_wexa_feat_h: handle of the egress wexa feature. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_feat_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value in out_wexa_feat_h: handle of the egress wexa feature. Notifies, marks the object as modified and, on
 * a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_feat_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of out_wexa_feat_h. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of out_wexa_feat_h, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_out_wexa_feat_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_hash_salt: salt of the data plane's hash
 *  @{ */
/** Returns the address of dp_hash_salt in the object: salt of the data plane's hash. NULL for a NULL object, and with
 * EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_hash_salt_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of dp_hash_salt: salt of the data plane's hash. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_hash_salt_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in dp_hash_salt: salt of the data plane's hash. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_hash_salt_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value in dp_hash_salt: salt of the data plane's hash. Notifies, marks the object as modified and, on a
 * tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one without
 * state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_hash_salt_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of dp_hash_salt. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_hash_salt_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of dp_hash_salt, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_hash_salt_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name flow_info_initialized: flag word, set if flow information is initialized on the client side
 *  @{ */
/** Returns the address of flow_info_initialized in the object: flag word, set if flow information is initialized on the
 * client side. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_flow_info_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of flow_info_initialized: flag word, set if flow information is initialized on the client side. 0
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_flow_info_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in flow_info_initialized: flag word, set if flow information is initialized on the
 * client side. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a
 * NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value in flow_info_initialized: flag word, set if flow information is initialized on the client side.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object;
 * on a tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of flow_info_initialized. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_flow_info_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of flow_info_initialized, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_flow_info_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_flow_info_initialized: flag word, set if flow information is initialized in the data plane
 *  @{ */
/** Returns the address of dp_flow_info_initialized in the object: flag word, set if flow information is initialized in
 * the data plane. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_flow_info_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of dp_flow_info_initialized: flag word, set if flow information is initialized in the data plane.
 * 0 for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_flow_info_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in dp_flow_info_initialized: flag word, set if flow information is initialized in the
 * data plane. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a
 * NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_flow_info_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value in dp_flow_info_initialized: flag word, set if flow information is initialized in the data plane.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object;
 * on a tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_flow_info_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of dp_flow_info_initialized. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of dp_flow_info_initialized, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_flow_info_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name mp_initialized: flag word, set if mp is initialized on the client side
 *  @{ */
/** Returns the address of mp_initialized in the object: flag word, set if mp is initialized on the client side. NULL
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_mp_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of mp_initialized: flag word, set if mp is initialized on the client side. 0 for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_mp_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in mp_initialized: flag word, set if mp is initialized on the client side. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value in mp_initialized: flag word, set if mp is initialized on the client side. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle,
 * EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of mp_initialized. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_mp_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of mp_initialized, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_mp_initialized: flag word, set if mp is initialized in the data plane
 *  @{ */
/** Returns the address of dp_mp_initialized in the object: flag word, set if mp is initialized in the data plane. NULL
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_mp_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of dp_mp_initialized: flag word, set if mp is initialized in the data plane. 0 for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_mp_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in dp_mp_initialized: flag word, set if mp is initialized in the data plane.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer
 * and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_mp_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value in dp_mp_initialized: flag word, set if mp is initialized in the data plane. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking
 * handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_mp_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of dp_mp_initialized. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_mp_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of dp_mp_initialized, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_mp_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_initialized: flag word, set if tt is initialized on the client side
 *  @{ */
/** Returns the address of tt_initialized in the object: flag word, set if tt is initialized on the client side. NULL
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_tt_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of tt_initialized: flag word, set if tt is initialized on the client side. 0 for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_tt_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in tt_initialized: flag word, set if tt is initialized on the client side. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value in tt_initialized: flag word, set if tt is initialized on the client side. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle,
 * EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of tt_initialized. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of tt_initialized, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_tt_initialized: flag word, set if tt is initialized in the data plane
 *  @{ */
/** Returns the address of dp_tt_initialized in the object: flag word, set if tt is initialized in the data plane. NULL
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_tt_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of dp_tt_initialized: flag word, set if tt is initialized in the data plane. 0 for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_tt_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in dp_tt_initialized: flag word, set if tt is initialized in the data plane.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer
 * and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_tt_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value in dp_tt_initialized: flag word, set if tt is initialized in the data plane. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking
 * handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_tt_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of dp_tt_initialized. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_tt_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of dp_tt_initialized, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_tt_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_sig_initialized: flag word, set if application signatures are initialized on the client side
 *  @{ */
/** Returns the address of appl_sig_initialized in the object: flag word, set if application signatures are initialized
 * on the client side. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_appl_sig_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of appl_sig_initialized: flag word, set if application signatures are initialized on the client
 * side. 0 for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_appl_sig_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in appl_sig_initialized: flag word, set if application signatures are initialized on
 * the client side. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL
 * for a NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value in appl_sig_initialized: flag word, set if application signatures are initialized on the client side.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object;
 * on a tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of appl_sig_initialized. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_sig_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of appl_sig_initialized, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_appl_sig_initialized: flag word, set if application signatures are initialized in the data plane
 *  @{ */
/** Returns the address of dp_appl_sig_initialized in the object: flag word, set if application signatures are
 * initialized in the data plane. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_lumo_info_dp_appl_sig_initialized_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of dp_appl_sig_initialized: flag word, set if application signatures are initialized in the data
 * plane. 0 for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dp_appl_sig_initialized_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in dp_appl_sig_initialized: flag word, set if application signatures are initialized
 * in the data plane. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL
 * for a NULL pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_initialized_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value in dp_appl_sig_initialized: flag word, set if application signatures are initialized in the data
 * plane. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL
 * object; on a tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_initialized_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t value, uint32_t *err);
/** Returns the state byte of dp_appl_sig_initialized. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of dp_appl_sig_initialized, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_initialized_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_tc_filter_list_exmem_ptr: external memory of the traffic table's filter class list
 *  @{ */
/** Returns the address of tt_tc_filter_list_exmem_ptr in the object: external memory of the traffic table's filter
 * class list. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of tt_tc_filter_list_exmem_ptr: external memory of the traffic table's filter class list. 0 for a
 * NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in tt_tc_filter_list_exmem_ptr: external memory of the traffic table's filter class
 * list. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL
 * pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value in tt_tc_filter_list_exmem_ptr: external memory of the traffic table's filter class list. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a
 * tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of tt_tc_filter_list_exmem_ptr. EINVAL if the handle's tracking mode is OFF or the object has
 * no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of tt_tc_filter_list_exmem_ptr, notifies, and marks the object as modified. EINVAL if the
 * handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_filter_list_exmem_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_tc_agg_list_exmem_ptr: external memory of the traffic table's aggregation class list
 *  @{ */
/** Returns the address of tt_tc_agg_list_exmem_ptr in the object: external memory of the traffic table's aggregation
 * class list. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of tt_tc_agg_list_exmem_ptr: external memory of the traffic table's aggregation class list. 0 for
 * a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in tt_tc_agg_list_exmem_ptr: external memory of the traffic table's aggregation class
 * list. Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL
 * pointer and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value in tt_tc_agg_list_exmem_ptr: external memory of the traffic table's aggregation class list. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a
 * tracking handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of tt_tc_agg_list_exmem_ptr. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of tt_tc_agg_list_exmem_ptr, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_agg_list_exmem_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_tc_learn_list_exmem_ptr: external memory of the traffic table's learn list
 *  @{ */
/** Returns the address of tt_tc_learn_list_exmem_ptr in the object: external memory of the traffic table's learn list.
 * NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of tt_tc_learn_list_exmem_ptr: external memory of the traffic table's learn list. 0 for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in tt_tc_learn_list_exmem_ptr: external memory of the traffic table's learn list.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer
 * and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value in tt_tc_learn_list_exmem_ptr: external memory of the traffic table's learn list. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking
 * handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of tt_tc_learn_list_exmem_ptr. EINVAL if the handle's tracking mode is OFF or the object has
 * no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of tt_tc_learn_list_exmem_ptr, notifies, and marks the object as modified. EINVAL if the
 * handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_tc_learn_list_exmem_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tc_list_head_chunk_h: handle of the chunk pool of class list heads
 *  @{ */
/** Returns the address of tc_list_head_chunk_h in the object: handle of the chunk pool of class list heads. NULL for a
 * NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tc_list_head_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of tc_list_head_chunk_h: handle of the chunk pool of class list heads. 0 for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tc_list_head_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in tc_list_head_chunk_h: handle of the chunk pool of class list heads. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_list_head_chunk_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value in tc_list_head_chunk_h: handle of the chunk pool of class list heads. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_list_head_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of tc_list_head_chunk_h. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of tc_list_head_chunk_h, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_list_head_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tc_chunk_h: handle of the chunk pool of traffic classes
 *  @{ */
/** Returns the address of tc_chunk_h in the object: handle of the chunk pool of traffic classes. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_tc_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of tc_chunk_h: handle of the chunk pool of traffic classes. 0 for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_tc_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in tc_chunk_h: handle of the chunk pool of traffic classes. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking
 * handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_chunk_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value in tc_chunk_h: handle of the chunk pool of traffic classes. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of tc_chunk_h. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tc_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of tc_chunk_h, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tc_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ll_chunk_h: handle of the chunk pool of learn lists
 *  @{ */
/** Returns the address of ll_chunk_h in the object: handle of the chunk pool of learn lists. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_ll_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of ll_chunk_h: handle of the chunk pool of learn lists. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_ll_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in ll_chunk_h: handle of the chunk pool of learn lists. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ll_chunk_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value in ll_chunk_h: handle of the chunk pool of learn lists. Notifies, marks the object as modified and,
 * on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ll_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of ll_chunk_h. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_ll_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of ll_chunk_h, notifies, and marks the object as modified. EINVAL if the handle's tracking mode
 * is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_ll_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_chunk_h: handle of the chunk pool of applications
 *  @{ */
/** Returns the address of appl_chunk_h in the object: handle of the chunk pool of applications. NULL for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_appl_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of appl_chunk_h: handle of the chunk pool of applications. 0 for a NULL object, and with EIDRM for
 * an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_appl_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in appl_chunk_h: handle of the chunk pool of applications. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_chunk_h_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    const uint64_t *source, uint32_t *err);
/** Stores a value in appl_chunk_h: handle of the chunk pool of applications. Notifies, marks the object as modified
 * and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL for one
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of appl_chunk_h. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of appl_chunk_h, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name cl_appl_sig_hash_ptr: application signature hash of the client side
 *  @{ */
/** Returns the address of cl_appl_sig_hash_ptr in the object: application signature hash of the client side. NULL for a
 * NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of cl_appl_sig_hash_ptr: application signature hash of the client side. 0 for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in cl_appl_sig_hash_ptr: application signature hash of the client side. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value in cl_appl_sig_hash_ptr: application signature hash of the client side. Notifies, marks the object as
 * modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle, EINVAL
 * for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of cl_appl_sig_hash_ptr. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of cl_appl_sig_hash_ptr, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_cl_appl_sig_hash_ptr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name dp_appl_sig_hash_h: handle of the data plane's application signature hash
 *  @{ */
/** Returns the address of dp_appl_sig_hash_h in the object: handle of the data plane's application signature hash. NULL
 * for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_dp_appl_sig_hash_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of dp_appl_sig_hash_h: handle of the data plane's application signature hash. 0 for a NULL object,
 * and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_dp_appl_sig_hash_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in dp_appl_sig_hash_h: handle of the data plane's application signature hash.
 * Notifies, marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer
 * and, on a tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_hash_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value in dp_appl_sig_hash_h: handle of the data plane's application signature hash. Notifies, marks the
 * object as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking
 * handle, EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_hash_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of dp_appl_sig_hash_h. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of dp_appl_sig_hash_h, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dp_appl_sig_hash_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_sig_chunk_h: handle of the chunk pool of application signatures
 *  @{ */
/** Returns the address of appl_sig_chunk_h in the object: handle of the chunk pool of application signatures. NULL for
 * a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_lumo_info_appl_sig_chunk_h_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the value of appl_sig_chunk_h: handle of the chunk pool of application signatures. 0 for a NULL object, and
 * with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint64_t lumo_tarn_lumo_info_appl_sig_chunk_h_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Stores the value of the source in appl_sig_chunk_h: handle of the chunk pool of application signatures. Notifies,
 * marks the object as modified and, on a tracking handle, sets the state byte to 2. EINVAL for a NULL pointer and, on a
 * tracking handle, for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_chunk_h_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value in appl_sig_chunk_h: handle of the chunk pool of application signatures. Notifies, marks the object
 * as modified and, on a tracking handle, sets the state byte to 2. ENOENT for a NULL object; on a tracking handle,
 * EINVAL for one without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_chunk_h_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint64_t value, uint32_t *err);
/** Returns the state byte of appl_sig_chunk_h. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of appl_sig_chunk_h, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_chunk_h_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name appl_sig_hash_exmem: block of the application signature hash
 *  @{ */
/** Returns the address of appl_sig_hash_exmem in the object: block of the application signature hash. NULL for a NULL
 * object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_lumo_info_appl_sig_hash_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into appl_sig_hash_exmem: block of the application signature hash. The source loses its arrays and
 * strings. What appl_sig_hash_exmem owned before is not released. EINVAL for a NULL pointer and, on a tracking handle,
 * for an object without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_hash_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_exmem_info *source, uint32_t *err);
/** Returns the state byte of appl_sig_hash_exmem. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of appl_sig_hash_exmem, notifies, and marks the object as modified. EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_appl_sig_hash_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name mp_export_exmem: block of the mp export
 *  @{ */
/** Returns the address of mp_export_exmem in the object: block of the mp export. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_lumo_info_mp_export_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into mp_export_exmem: block of the mp export. The source loses its arrays and strings. What
 * mp_export_exmem owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_export_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_exmem_info *source, uint32_t *err);
/** Returns the state byte of mp_export_exmem. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_mp_export_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of mp_export_exmem, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_mp_export_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name tt_export_exmem: block of the tt export
 *  @{ */
/** Returns the address of tt_export_exmem in the object: block of the tt export. NULL for a NULL object, and with EIDRM
 * for an object without a body. */
LUMO_UI_TARN_API lumo_tarn_exmem_info *lumo_tarn_lumo_info_tt_export_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** MOVES a record into tt_export_exmem: block of the tt export. The source loses its arrays and strings. What
 * tt_export_exmem owned before is not released. EINVAL for a NULL pointer and, on a tracking handle, for an object
 * without state bytes; EIDRM for one without a body. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_export_exmem_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, lumo_tarn_exmem_info *source, uint32_t *err);
/** Returns the state byte of tt_export_exmem. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_tt_export_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of tt_export_exmem, notifies, and marks the object as modified. EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_tt_export_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_static_exmems: number of elements in static_exmem
 *  @{ */
/** Returns the address of the count num_static_exmems: number of elements in static_exmem. Read-only: it follows from
 * the array. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_num_static_exmems_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the count num_static_exmems: number of elements in static_exmem. 0 for a NULL object, and with EIDRM for an
 * object without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_num_static_exmems_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** @} */

/** @name static_exmem: static memory blocks of the processor
 *  @{ */
/** Returns the address of an element of static_exmem: static memory blocks of the processor. The array owns the
 * element, and its next growth invalidates the address. ENOENT if the index is out of range, EIDRM if the object has no
 * body. */
LUMO_UI_TARN_API lumo_tarn_static_exmem_info *lumo_tarn_lumo_info_static_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
/** MOVES the value into an element of static_exmem: static memory blocks of the processor. An index out of range grows
 * the array to index + 1 elements and moves all of them, so set the highest index first. What the element owned before
 * is not released. A NULL value grows the array and stores nothing; on a tracking handle it is refused with EINVAL.
 * ENOMEM if allocation fails. EINVAL for a NULL object and, on a tracking handle, for an object or a value without
 * state bytes; EIDRM for an object without a body. Does not mark the object as modified. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_static_exmem_info *value, uint32_t *err);
/** Sticky form of lumo_tarn_lumo_info_static_exmem_set(): copies the value with copy_mode 0 and moves it otherwise.
 * Returns the handle's last_error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_static_exmem_set_cr(mirk_handle *h, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_static_exmem_info *value, uint32_t copy_mode);
/** Returns the state byte of one element of static_exmem. ENOENT if the index is out of range, EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_static_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
/** Sets the state byte of one element of static_exmem. ENOENT if the index is out of range, EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint8_t value, uint32_t *err);
/** Returns the state byte of static_exmem as a whole. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_static_exmem_state_flag_whole_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of static_exmem as a whole. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_whole_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Writes the address of the element states of static_exmem through out: one byte for each element, NULL if there are
 * none. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_get_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t **out, uint32_t *err);
/** Copies length bytes, which must equal the count of static_exmem, to the start of the object's state area, over the
 * states of other members, and not to the element states. ENOENT for another length, EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_static_exmem_state_flag_set_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint8_t *source, uint32_t length, uint32_t *err);
/** @} */

/** @name num_dyn_exmems: number of elements in dyn_exmem
 *  @{ */
/** Returns the address of the count num_dyn_exmems: number of elements in dyn_exmem. Read-only: it follows from the
 * array. NULL for a NULL object, and with EIDRM for an object without a body. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_lumo_info_num_dyn_exmems_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Returns the count num_dyn_exmems: number of elements in dyn_exmem. 0 for a NULL object, and with EIDRM for an object
 * without a body. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_num_dyn_exmems_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** @} */

/** @name dyn_exmem: dynamic memory blocks of the processor
 *  @{ */
/** Returns the address of an element of dyn_exmem: dynamic memory blocks of the processor. The array owns the element,
 * and its next growth invalidates the address. ENOENT if the index is out of range, EIDRM if the object has no body. */
LUMO_UI_TARN_API lumo_tarn_dyn_exmem_info *lumo_tarn_lumo_info_dyn_exmem_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
/** MOVES the value into an element of dyn_exmem: dynamic memory blocks of the processor. An index out of range grows
 * the array to index + 1 elements and moves all of them, so set the highest index first. What the element owned before
 * is not released. A NULL value grows the array and stores nothing; on a tracking handle it is refused with EINVAL.
 * ENOMEM if allocation fails. EINVAL for a NULL object and, on a tracking handle, for an object or a value without
 * state bytes; EIDRM for an object without a body. Does not mark the object as modified. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_dyn_exmem_info *value, uint32_t *err);
/** Sticky form of lumo_tarn_lumo_info_dyn_exmem_set(): copies the value with copy_mode 0 and moves it otherwise.
 * Returns the handle's last_error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_info_dyn_exmem_set_cr(mirk_handle *h, lumo_tarn_lumo_info *object,
    uint32_t index, lumo_tarn_dyn_exmem_info *value, uint32_t copy_mode);
/** Returns the state byte of one element of dyn_exmem. ENOENT if the index is out of range, EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dyn_exmem_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint32_t *err);
/** Sets the state byte of one element of dyn_exmem. ENOENT if the index is out of range, EINVAL if the handle's
 * tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t index, uint8_t value, uint32_t *err);
/** Returns the state byte of dyn_exmem as a whole. EINVAL if the handle's tracking mode is OFF or the object has no
 * state bytes. */
LUMO_UI_TARN_API uint8_t lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint32_t *err);
/** Sets the state byte of dyn_exmem as a whole. EINVAL if the handle's tracking mode is OFF or the object has no state
 * bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_whole_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t value, uint32_t *err);
/** Writes the address of the element states of dyn_exmem through out: one byte for each element, NULL if there are
 * none. EINVAL if the handle's tracking mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_get_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, uint8_t **out, uint32_t *err);
/** Copies length bytes, which must equal the count of dyn_exmem, to the start of the object's state area, over the
 * states of other members, and not to the element states. ENOENT for another length, EINVAL if the handle's tracking
 * mode is OFF or the object has no state bytes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_info_dyn_exmem_state_flag_set_arr(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_info *object, const uint8_t *source, uint32_t length, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
