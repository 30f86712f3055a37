/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_global_info.h - what holds for the whole client process. */
#ifndef LUMO_UI_TARN_RECORDS_LUMO_TARN_GLOBAL_INFO_H
#define LUMO_UI_TARN_RECORDS_LUMO_TARN_GLOBAL_INFO_H

#include <lumo_ui_tarn/base.h>
#include <lumo_ui_tarn/records/lumo_tarn_lumo_info_list.h>

LUMO_UI_TARN_BEGIN

/** What holds for the whole client process.
 *
 * | member               | type                     | meaning |
 * |----------------------|--------------------------|---|
 * | display_all          | boolean                  | show: everything |
 * | display_plat_cfg     | boolean                  | show: the platform configuration |
 * | display_proc_ctx     | boolean                  | show: the process context |
 * | platform_cfg_set     | uint32_t                 | flag word: the platform configuration has been set |
 * | max_tt_cache_entries | uint32_t                 | maximum number of tt cache entries |
 * | max_mp_cache_entries | uint32_t                 | maximum number of mp cache entries |
 * | lumo_evctx_p         | uint64_t                 | event context of the lumo side |
 * | smc_evctx_p          | uint64_t                 | event context of the smc side |
 * | listen_chan          | uint64_t                 | the listening channel |
 * | ha_init              | uint32_t                 | flag word: high availability initialised |
 * | mdr                  | uint32_t                 | flag word named mdr |
 * | num_lumos            | uint8_t                  | number of processors |
 * | num_complexes        | uint8_t                  | number of complexes |
 * | lumo_info_list       | lumo_tarn_lumo_info_list | per-processor records |
 *
 * How the operations of all records behave is told in lumo_ui_tarn/families.h. */
typedef struct lumo_tarn_global_info lumo_tarn_global_info;
/** The module's own type record of lumo_tarn_global_info: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_global_info_type_info_internal;

/** @name Life
 *  @{ */
/** Makes an instance with all members zero, or null without memory. It belongs to the caller, who ends it with
 * lumo_tarn_global_info_destroy(). */
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_global_info_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_global_info_create(): works under the handle's default_id, makes nothing while last_error
 * is set, and answers a sentinel instead of null, which only lumo_tarn_global_info_destroy() and sticky forms may be
 * given. */
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_global_info_create_cr(mirk_handle *h);
/** As lumo_tarn_global_info_create(), without registering the trace module of types first: for whoever makes many. */
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_global_info_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Sets up an instance in zeroed memory of the caller's: header, usage counter, and what it embeds. The type is
 * commonly _lumo_tarn_global_info_type_info_internal. With notify 0 the writes are not announced, with skip_count 1
 * nothing is counted; flags go into obj_flag, and sttr_base is where the state lies of an instance that is nested in
 * another. */
LUMO_UI_TARN_API void lumo_tarn_global_info_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    mirk_type_info *type, uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Bytes of an instance with everything that it nests and, on a handle that tracks, its state. Differs between
 * handles. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_sizeof(mirk_handle *h);
/** The variant itself, or the highest that this library knows if that is lower. */
LUMO_UI_TARN_API int8_t lumo_tarn_global_info_variant_data_index_cap(int8_t variant);
/** Marks the instance, with the records, addresses and booleans in it, as lying in memory of another one
 * (MIRK_OBJ_EMBEDDED). */
LUMO_UI_TARN_API void lumo_tarn_global_info_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object);
/** Brings the instance to the variant that the handle's domain has for its type; announced if that changes it. */
LUMO_UI_TARN_API void lumo_tarn_global_info_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Ends the instance: its arrays and strings, what it nests, and its memory. Null and the sentinel are passed over. An
 * instance that others refer to goes with the last reference. */
LUMO_UI_TARN_API void lumo_tarn_global_info_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object);
/** lumo_tarn_global_info_destroy() under the handle's default_id. Works whatever last_error holds. */
LUMO_UI_TARN_API void lumo_tarn_global_info_destroy_cr(mirk_handle *h, lumo_tarn_global_info *object);
/** As lumo_tarn_global_info_destroy(); with free_it 0 the memory of the instance itself is left to its owner, as for an
 * instance that lies inside another. */
LUMO_UI_TARN_API void lumo_tarn_global_info_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t free_it);
/** @} */

/** @name Whole record
 *  @{ */
/** The instance itself: lets code treat records as it treats members. */
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_global_info_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Writes all scalar members, counts and lengths through the pointers, in table order. Writes nothing for an instance
 * without body, and no error tells. */
LUMO_UI_TARN_API void lumo_tarn_global_info_get_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    uint8_t *display_all, uint8_t *display_plat_cfg, uint8_t *display_proc_ctx, uint32_t *platform_cfg_set,
    uint32_t *max_tt_cache_entries, uint32_t *max_mp_cache_entries, uint64_t *lumo_evctx_p, uint64_t *smc_evctx_p,
    uint64_t *listen_chan, uint32_t *ha_init, uint32_t *mdr, uint8_t *num_lumos, uint8_t *num_complexes, uint32_t *err);
/** Stores all scalar members, in table order; counts and lengths are not among them. State bytes stay as they are,
 * unlike with the setters of single members. */
LUMO_UI_TARN_API void lumo_tarn_global_info_set_all(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    uint8_t display_all, uint8_t display_plat_cfg, uint8_t display_proc_ctx, uint32_t platform_cfg_set,
    uint32_t max_tt_cache_entries, uint32_t max_mp_cache_entries, uint64_t lumo_evctx_p, uint64_t smc_evctx_p,
    uint64_t listen_chan, uint32_t ha_init, uint32_t mdr, uint8_t num_lumos, uint8_t num_complexes, uint32_t *err);
/** MOVES the source into the destination: members, state, and the ownership of arrays and strings, which the source
 * loses. What the destination owned before is not released. lumo_tarn_global_info_copy_cr() copies. */
LUMO_UI_TARN_API void lumo_tarn_global_info_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *destination,
    lumo_tarn_global_info *source, uint32_t *err);
/** For runtimes that move instances byte by byte: makes the copy in the new place the one owner of arrays and strings,
 * and takes them from the old place. */
LUMO_UI_TARN_API void lumo_tarn_global_info_post_copyout_cleanup(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *new_place, lumo_tarn_global_info *old_place, uint32_t *err);
/** Fills the whole state area with one byte, unannounced, and that of every array element too. Element states then read
 * as this value, and can no longer be set one by one. Does nothing without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_set_all_state_tracking_flag(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value);
/** 1 if the handle's domain has a member of this index, counted from 0 in table order; the instance is not looked
 * at. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_is_valid_cr(mirk_handle *h, lumo_tarn_global_info *object,
    uint32_t field_index);
/** @} */

/** @name References
 *  @{ */
/** How many object identifiers the instance holds of its own: 0 in this schema. EINVAL for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Would write up to size object identifiers that the instance holds of its own: writes none in this schema. EINVAL for
 * null. */
LUMO_UI_TARN_API void lumo_tarn_global_info_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, void **oids, uint32_t size, uint32_t *err);
/** Tells the runtime where in the state area at this address the state of each nested record and address lies: for
 * whoever has moved the instance or its state. */
LUMO_UI_TARN_API void lumo_tarn_global_info_offset_update(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, void *state_area, uint32_t *err);
/** Has the runtime forget the places of states that lumo_tarn_global_info_offset_update() told it, at every depth. */
LUMO_UI_TARN_API void lumo_tarn_global_info_offset_remove(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** @} */

/** @name Wire
 *  @{ */
/** Bytes that a buffer for lumo_tarn_global_info_marshal() needs, its spare byte aside. Says a little more than is
 * written: see families.h. RA data comes on top. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *instance);
/** Sticky form of lumo_tarn_global_info_len(): 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_len_cr(mirk_handle *h, lumo_tarn_global_info *instance);
/** Writes the instance as a frame into the remaining bytes at buffer, behind which one spare byte lies. Returns the
 * bytes written. Goes on after a failure, so that only err tells: ENOMEM or EMSGSIZE for too little room, EIDRM if the
 * domain has no place for the instance's variant, in which case the frame is written in the domain's. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_global_info *instance, int32_t remaining, uint32_t *err);
/** As lumo_tarn_global_info_marshal(), but in the instance's own variant whatever the domain has: the frame of a deep
 * copy. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_marshal_for_clone(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_global_info *instance, int32_t remaining, uint32_t *err);
/** Reads a frame of length bytes at buffer, behind which one spare byte lies, into an instance. Returns the bytes
 * consumed. With reuse 0 the instance owns nothing yet, and what it owned is lost; with reuse 1 its arrays and strings
 * are kept where the counts are equal. The frame is never trusted. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_global_info *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Deep copy
 *  @{ */
/** Makes a deep copy by way of a frame in the buffer, which has size bytes, lumo_tarn_global_info_len() of them at
 * least, and one to spare. The result is null after any error; otherwise it belongs to the caller. */
LUMO_UI_TARN_API void lumo_tarn_global_info_clone(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *source,
    lumo_tarn_global_info **result, void *buffer, uint32_t size, uint32_t *err);
/** Deep copy by way of the handle's workspace, null after any error. A record that is too large for the workspace needs
 * lumo_tarn_global_info_clone(). */
LUMO_UI_TARN_API lumo_tarn_global_info *lumo_tarn_global_info_clone_cr(mirk_handle *h, lumo_tarn_global_info *source);
/** Deep copy into an existing instance, by way of the handle's workspace. What the destination owned is not released;
 * if reading fails, the destination is destroyed. */
LUMO_UI_TARN_API void lumo_tarn_global_info_copy_cr(mirk_handle *h, lumo_tarn_global_info *source,
    lumo_tarn_global_info *destination);
/** @} */

/** @name Text
 *  @{ */
/** Writes the instance as text for people, indent blanks in and headed by the name. Returns the characters written.
 * Clear the buffer first: bytes in front of closing braces are counted and not written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_global_info *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_global_info_print(), without indent and headed by the record's name. 0xFFFFFFFF after an
 * error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_print_cr(mirk_handle *h, lumo_tarn_global_info *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes the instance as an XML element of this name, one element in it for each member. A nonzero state shows as an
 * attribute. Returns the characters written. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_global_info *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_global_info_to_xml(), named as the record. 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_toxml_cr(mirk_handle *h, lumo_tarn_global_info *instance, char *buffer,
    int32_t remaining);
/** Reads the element at a path of the runtime's document into the instance. Members that are missing stay as they are;
 * a value that is none ends the reading, with a sentence in message if that is not null. */
LUMO_UI_TARN_API void lumo_tarn_global_info_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_global_info *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

/** @name Value
 *  @{ */
/** Orders two instances by their members in table order; only the sign means something. Null comes first. Header and
 * state play no part. */
LUMO_UI_TARN_API int32_t lumo_tarn_global_info_compare(const lumo_tarn_global_info *a, const lumo_tarn_global_info *b);
/** Mixes all members into the seed; equal instances give equal results in every process. The seed itself for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_hash(const lumo_tarn_global_info *instance, uint32_t seed);
/** 1 if the record, or a member up to the first that had one, bore a change mark. The record's own mark and that
 * member's are cleared. The word is handed to the runtime as it is. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *instance, void *word);
/** @} */

/** @name display_all: show: everything
 *  @{ */
/** Address of the member display_all inside the object: show: everything. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_global_info_display_all_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member display_all: show: everything. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_all_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as display_all: show: everything. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_display_all_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_all: show: everything. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_display_all_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** State byte of display_all. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_all_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of display_all, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_display_all_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_plat_cfg: show: the platform configuration
 *  @{ */
/** Address of the member display_plat_cfg inside the object: show: the platform configuration. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_global_info_display_plat_cfg_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member display_plat_cfg: show: the platform configuration. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_plat_cfg_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as display_plat_cfg: show: the platform configuration. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_display_plat_cfg_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_plat_cfg: show: the platform configuration. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_display_plat_cfg_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** State byte of display_plat_cfg. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_plat_cfg_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of display_plat_cfg, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_display_plat_cfg_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name display_proc_ctx: show: the process context
 *  @{ */
/** Address of the member display_proc_ctx inside the object: show: the process context. Null after an error. */
LUMO_UI_TARN_API mirk_boolean *lumo_tarn_global_info_display_proc_ctx_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member display_proc_ctx: show: the process context. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_proc_ctx_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as display_proc_ctx: show: the process context. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_display_proc_ctx_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const mirk_boolean *source, uint32_t *err);
/** Stores a value as display_proc_ctx: show: the process context. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_display_proc_ctx_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** State byte of display_proc_ctx. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_display_proc_ctx_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of display_proc_ctx, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_display_proc_ctx_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name platform_cfg_set: flag word: the platform configuration has been set
 *  @{ */
/** Address of the member platform_cfg_set inside the object: flag word: the platform configuration has been set. Null
 * after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_global_info_platform_cfg_set_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member platform_cfg_set: flag word: the platform configuration has been set. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_platform_cfg_set_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as platform_cfg_set: flag word: the platform configuration has been set. Announced,
 * marked as modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_platform_cfg_set_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as platform_cfg_set: flag word: the platform configuration has been set. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_platform_cfg_set_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t value, uint32_t *err);
/** State byte of platform_cfg_set. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_platform_cfg_set_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of platform_cfg_set, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_platform_cfg_set_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name max_tt_cache_entries: maximum number of tt cache entries
 *  @{ */
/** Address of the member max_tt_cache_entries inside the object: maximum number of tt cache entries. Null after an
 * error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_global_info_max_tt_cache_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member max_tt_cache_entries: maximum number of tt cache entries. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_max_tt_cache_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as max_tt_cache_entries: maximum number of tt cache entries. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_max_tt_cache_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as max_tt_cache_entries: maximum number of tt cache entries. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_max_tt_cache_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t value, uint32_t *err);
/** State byte of max_tt_cache_entries. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_max_tt_cache_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of max_tt_cache_entries, announced, and marks the object as modified. EINVAL on a handle or
 * for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_max_tt_cache_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name max_mp_cache_entries: maximum number of mp cache entries
 *  @{ */
/** Address of the member max_mp_cache_entries inside the object: maximum number of mp cache entries. Null after an
 * error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_global_info_max_mp_cache_entries_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member max_mp_cache_entries: maximum number of mp cache entries. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_max_mp_cache_entries_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as max_mp_cache_entries: maximum number of mp cache entries. Announced, marked as
 * modified and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_max_mp_cache_entries_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint32_t *source, uint32_t *err);
/** Stores a value as max_mp_cache_entries: maximum number of mp cache entries. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_max_mp_cache_entries_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t value, uint32_t *err);
/** State byte of max_mp_cache_entries. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_max_mp_cache_entries_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of max_mp_cache_entries, announced, and marks the object as modified. EINVAL on a handle or
 * for an object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_max_mp_cache_entries_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name lumo_evctx_p: event context of the lumo side
 *  @{ */
/** Address of the member lumo_evctx_p inside the object: event context of the lumo side. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_global_info_lumo_evctx_p_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member lumo_evctx_p: event context of the lumo side. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_global_info_lumo_evctx_p_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as lumo_evctx_p: event context of the lumo side. Announced, marked as modified and, on
 * a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_lumo_evctx_p_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as lumo_evctx_p: event context of the lumo side. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_lumo_evctx_p_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint64_t value, uint32_t *err);
/** State byte of lumo_evctx_p. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_lumo_evctx_p_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of lumo_evctx_p, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_lumo_evctx_p_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name smc_evctx_p: event context of the smc side
 *  @{ */
/** Address of the member smc_evctx_p inside the object: event context of the smc side. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_global_info_smc_evctx_p_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member smc_evctx_p: event context of the smc side. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_global_info_smc_evctx_p_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as smc_evctx_p: event context of the smc side. Announced, marked as modified and, on a
 * handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_smc_evctx_p_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as smc_evctx_p: event context of the smc side. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_smc_evctx_p_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint64_t value, uint32_t *err);
/** State byte of smc_evctx_p. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_smc_evctx_p_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of smc_evctx_p, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_smc_evctx_p_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name listen_chan: the listening channel
 *  @{ */
/** Address of the member listen_chan inside the object: the listening channel. Null after an error. */
LUMO_UI_TARN_API uint64_t *lumo_tarn_global_info_listen_chan_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member listen_chan: the listening channel. 0 after an error. */
LUMO_UI_TARN_API uint64_t lumo_tarn_global_info_listen_chan_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as listen_chan: the listening channel. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_listen_chan_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint64_t *source, uint32_t *err);
/** Stores a value as listen_chan: the listening channel. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_listen_chan_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint64_t value, uint32_t *err);
/** State byte of listen_chan. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_listen_chan_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of listen_chan, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_listen_chan_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name ha_init: flag word: high availability initialised
 *  @{ */
/** Address of the member ha_init inside the object: flag word: high availability initialised. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_global_info_ha_init_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member ha_init: flag word: high availability initialised. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_ha_init_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as ha_init: flag word: high availability initialised. Announced, marked as modified
 * and, on a handle that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_ha_init_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as ha_init: flag word: high availability initialised. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_ha_init_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t value, uint32_t *err);
/** State byte of ha_init. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_ha_init_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of ha_init, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_ha_init_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name mdr: flag word named mdr
 *  @{ */
/** Address of the member mdr inside the object: flag word named mdr. Null after an error. */
LUMO_UI_TARN_API uint32_t *lumo_tarn_global_info_mdr_get(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    uint32_t *err);
/** Value of the member mdr: flag word named mdr. 0 after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_global_info_mdr_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as mdr: flag word named mdr. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_mdr_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_global_info *object,
    const uint32_t *source, uint32_t *err);
/** Stores a value as mdr: flag word named mdr. Announced, marked as modified and, on a handle that tracks, with state
 * byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_mdr_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t value, uint32_t *err);
/** State byte of mdr. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_mdr_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of mdr, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_mdr_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_lumos: number of processors
 *  @{ */
/** Address of the member num_lumos inside the object: number of processors. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_global_info_num_lumos_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member num_lumos: number of processors. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_num_lumos_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as num_lumos: number of processors. Announced, marked as modified and, on a handle that
 * tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_num_lumos_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint8_t *source, uint32_t *err);
/** Stores a value as num_lumos: number of processors. Announced, marked as modified and, on a handle that tracks, with
 * state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_num_lumos_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** State byte of num_lumos. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_num_lumos_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of num_lumos, announced, and marks the object as modified. EINVAL on a handle or for an object
 * without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_num_lumos_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name num_complexes: number of complexes
 *  @{ */
/** Address of the member num_complexes inside the object: number of complexes. Null after an error. */
LUMO_UI_TARN_API uint8_t *lumo_tarn_global_info_num_complexes_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Value of the member num_complexes: number of complexes. 0 after an error. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_num_complexes_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores what the source holds as num_complexes: number of complexes. Announced, marked as modified and, on a handle
 * that tracks, with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_num_complexes_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, const uint8_t *source, uint32_t *err);
/** Stores a value as num_complexes: number of complexes. Announced, marked as modified and, on a handle that tracks,
 * with state byte 2. */
LUMO_UI_TARN_API void lumo_tarn_global_info_num_complexes_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** State byte of num_complexes. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_num_complexes_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of num_complexes, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_num_complexes_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

/** @name lumo_info_list: per-processor records
 *  @{ */
/** Address of the member lumo_info_list inside the object: per-processor records. Null after an error. */
LUMO_UI_TARN_API lumo_tarn_lumo_info_list *lumo_tarn_global_info_lumo_info_list_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** MOVES a record into lumo_info_list: per-processor records. The source loses its arrays and strings; what
 * lumo_info_list owned before is not released. */
LUMO_UI_TARN_API void lumo_tarn_global_info_lumo_info_list_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, lumo_tarn_lumo_info_list *source, uint32_t *err);
/** State byte of lumo_info_list. EINVAL on a handle or for an object without tracking. */
LUMO_UI_TARN_API uint8_t lumo_tarn_global_info_lumo_info_list_state_flag_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint32_t *err);
/** Stores the state byte of lumo_info_list, announced, and marks the object as modified. EINVAL on a handle or for an
 * object without tracking. */
LUMO_UI_TARN_API void lumo_tarn_global_info_lumo_info_list_state_flag_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_global_info *object, uint8_t value, uint32_t *err);
/** @} */

LUMO_UI_TARN_END

#endif
