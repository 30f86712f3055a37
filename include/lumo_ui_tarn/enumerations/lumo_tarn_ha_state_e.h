/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_ha_state_e.h - high-availability state of a processor. */
#ifndef LUMO_UI_TARN_ENUMERATIONS_LUMO_TARN_HA_STATE_E_H
#define LUMO_UI_TARN_ENUMERATIONS_LUMO_TARN_HA_STATE_E_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/** Values of a lumo_tarn_ha_state_e: high-availability state of a processor. */
enum {
    LUMO_TARN_HA_INVALID_STATE = 0,
    LUMO_TARN_HA_RESET_STATE = 1,
    LUMO_TARN_HA_INIT_STATE = 2,
    LUMO_TARN_HA_ACTIVE_SOLO_STATE = 3,
    LUMO_TARN_HA_ACTIVE_REDUNDANT_STATE = 4,
    LUMO_TARN_HA_STANDBY_STATE = 5,
    LUMO_TARN_HA_HOT_STANDBY_STATE = 6,
    LUMO_TARN_HA_FAULT_RECOVERY_STATE = 7,
    LUMO_TARN_HA_QUIESCE_STATE = 8
};

/** An object that holds one of the values: high-availability state of a processor. */
typedef struct lumo_tarn_ha_state_e lumo_tarn_ha_state_e;
/** The module's own type record of lumo_tarn_ha_state_e: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_ha_state_e_type_info_internal;

/** @name Life
 *  @{ */
/** Makes an object with value 0, or null without memory. It belongs to the caller, who ends it with
 * lumo_tarn_ha_state_e_destroy(). */
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_ha_state_e_create(mirk_handle *h, uint32_t ctx_id);
/** Another name of lumo_tarn_ha_state_e_create(). */
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_ha_state_e_create_internal(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_ha_state_e_create(): under the handle's default_id, and with a sentinel instead of null,
 * over which destroy operations pass. */
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_ha_state_e_create_cr(mirk_handle *h);
/** Sets up an object in memory of the caller's. The type record is commonly _lumo_tarn_ha_state_e_type_info_internal;
 * with notify 0 the writes are not announced; flags go into obj_flag. */
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_initialize(mirk_handle *h, uint32_t ctx_id, lumo_tarn_ha_state_e *instance,
    mirk_type_info *type, uint32_t notify, uint32_t not_used_1, uint8_t flags, void *not_used_2, uint32_t *err);
/** Bytes of an object, the same on every handle. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_sizeof(void);
/** The variant itself, or the highest that this library knows if that is lower. */
LUMO_UI_TARN_API int8_t lumo_tarn_ha_state_e_variant_data_index_cap(int8_t variant);
/** Marks the object as lying in memory of another one (MIRK_OBJ_EMBEDDED). */
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance);
/** Brings the object to the variant that the handle's domain has for its type; announced if that changes it. */
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, uint32_t *err);
/** Ends the object and releases its memory. Null and the sentinel are passed over. */
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_destroy(mirk_handle *h, uint32_t ctx_id, lumo_tarn_ha_state_e *instance);
/** lumo_tarn_ha_state_e_destroy() under the handle's default_id. Works whatever last_error holds. */
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_destroy_cr(mirk_handle *h, lumo_tarn_ha_state_e *instance);
/** As lumo_tarn_ha_state_e_destroy(), and nothing at all with free_it 0: an embedded object owns nothing. Returns the
 * sentinel. */
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_ha_state_e_destroy_internal(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, uint32_t free_it);
/** @} */

/** @name References
 *  @{ */
/** How many object identifiers the object holds: 0. EINVAL for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, uint32_t *err);
/** Writes no object identifier, since there are none. EINVAL for null. */
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, void **not_used_1, uint32_t not_used_2, uint32_t *err);
/** @} */

/** @name Value
 *  @{ */
/** The object itself: lets code treat enumerations as it treats members. */
LUMO_UI_TARN_API lumo_tarn_ha_state_e *lumo_tarn_ha_state_e_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, uint32_t *err);
/** The value. 0 after an error; EINVAL for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, uint32_t *err);
/** Copies the source, header included. A value beyond the enumerators is refused with EIDRM. */
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_set(mirk_handle *h, uint32_t ctx_id, lumo_tarn_ha_state_e *instance,
    lumo_tarn_ha_state_e *source, uint32_t *err);
/** Stores a value, announced. One beyond the enumerators is refused with EIDRM. */
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_set_value(mirk_handle *h, uint32_t ctx_id, lumo_tarn_ha_state_e *instance,
    uint32_t value, uint32_t *err);
/** 1 if the value is an enumerator in the handle's domain. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_is_valid_cr(mirk_handle *h, uint32_t value);
/** The value as it is: this schema has no second numbering. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_map_to_user_value(uint32_t value);
/** The value as it is: this schema has no second numbering. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_map_to_internal_value(uint32_t value);
/** Distance of the two values. Null comes first. */
LUMO_UI_TARN_API int32_t lumo_tarn_ha_state_e_compare(const lumo_tarn_ha_state_e *a, const lumo_tarn_ha_state_e *b);
/** Mixes the value into the seed; the seed itself for null. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_hash(const lumo_tarn_ha_state_e *instance, uint32_t seed);
/** 1 if the object bore a change mark, which is cleared. The word is not used. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_ha_state_e *instance, void *word);
/** @} */

/** @name Wire
 *  @{ */
/** Bytes on the wire: 5, for null too. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_len(mirk_handle *h, uint32_t ctx_id, lumo_tarn_ha_state_e *instance);
/** Sticky form of lumo_tarn_ha_state_e_len(): 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_len_cr(mirk_handle *h);
/** Writes variant and value into the remaining bytes at buffer. Returns the bytes written. EIDRM if the domain has no
 * place for the object's variant. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_ha_state_e *instance, int32_t remaining, uint32_t *err);
/** Reads variant and value from length bytes at buffer. Returns the bytes consumed. Every value is kept as it came;
 * reuse plays no part. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_ha_state_e *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Text
 *  @{ */
/** Writes a line with the name and the enumerator, indent blanks in. Returns the characters written. A value beyond the
 * enumerators is told in words, and has no line end. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent,
    const char *name, lumo_tarn_ha_state_e *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_ha_state_e_print(), without indent and headed by the enumeration's name. 0xFFFFFFFF after
 * an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_print_cr(mirk_handle *h, lumo_tarn_ha_state_e *instance, char *buffer,
    int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes an XML element of this name that holds an empty element named as the enumerator. Returns the characters
 * written. The state is not shown. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer,
    lumo_tarn_ha_state_e *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_ha_state_e_to_xml(), named as the enumeration. 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_ha_state_e_toxml_cr(mirk_handle *h, lumo_tarn_ha_state_e *instance, char *buffer,
    int32_t remaining);
/** Reads the value from the enumerator's element below a path of the runtime's document. Without any, the value stays.
 * message gets a sentence on failure, if it is not null. */
LUMO_UI_TARN_API void lumo_tarn_ha_state_e_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document,
    lumo_tarn_ha_state_e *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

LUMO_UI_TARN_END

#endif
