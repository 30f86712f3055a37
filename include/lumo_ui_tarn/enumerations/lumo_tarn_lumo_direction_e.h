/* Generated from the schema; edit the tables there and run tools/regenerate. */
/** @file
 * lumo_tarn_lumo_direction_e.h - direction of traffic that a processor serves. */
#ifndef LUMO_UI_TARN_ENUMERATIONS_LUMO_TARN_LUMO_DIRECTION_E_H
#define LUMO_UI_TARN_ENUMERATIONS_LUMO_TARN_LUMO_DIRECTION_E_H

#include <lumo_ui_tarn/base.h>

LUMO_UI_TARN_BEGIN

/** Values of lumo_tarn_lumo_direction_e: direction of traffic that a processor serves. */
enum {
    LUMO_TARN_DIR_INGRESS = 0,
    LUMO_TARN_DIR_EGRESS = 1,
    LUMO_TARN_DIR_BOTH = 2
};

/** An object with one of these values. */
typedef struct lumo_tarn_lumo_direction_e lumo_tarn_lumo_direction_e;
/** The module's own type record of lumo_tarn_lumo_direction_e: identity, variants, usage counters. */
extern LUMO_UI_TARN_API mirk_type_info _lumo_tarn_lumo_direction_e_type_info_internal;

/** @name Lifecycle
 *  @{ */
/** Allocates an object with value 0. Returns NULL if allocation fails. The caller owns it and releases it with
 * lumo_tarn_lumo_direction_e_destroy(). */
LUMO_UI_TARN_API lumo_tarn_lumo_direction_e *lumo_tarn_lumo_direction_e_create(mirk_handle *h, uint32_t ctx_id);
/** Sticky form of lumo_tarn_lumo_direction_e_create(): returns a sentinel instead of NULL if allocation fails or
 * last_error is set already. Only destroy operations, and sticky forms while last_error is set, accept the sentinel. */
LUMO_UI_TARN_API lumo_tarn_lumo_direction_e *lumo_tarn_lumo_direction_e_create_cr(mirk_handle *h);
/** Another name of lumo_tarn_lumo_direction_e_create(). */
LUMO_UI_TARN_API lumo_tarn_lumo_direction_e *lumo_tarn_lumo_direction_e_create_internal(mirk_handle *h,
    uint32_t ctx_id);
/** Initializes an object in memory of the caller. type is normally _lumo_tarn_lumo_direction_e_type_info_internal.
 * notify 0 suppresses write notifications. flags are added to obj_flag. */
LUMO_UI_TARN_API void lumo_tarn_lumo_direction_e_initialize(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance, mirk_type_info *type, uint32_t notify, uint32_t not_used_1, uint8_t flags,
    void *not_used_2, uint32_t *err);
/** Returns the size of an object in bytes, equal on every handle. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_sizeof(void);
/** Returns the variant, limited to 0, the highest one that this library has. */
LUMO_UI_TARN_API int8_t lumo_tarn_lumo_direction_e_variant_data_index_cap(int8_t variant);
/** Sets MIRK_OBJ_EMBEDDED in the object. The caller thereby states that it lies in memory of another object. */
LUMO_UI_TARN_API void lumo_tarn_lumo_direction_e_set_instance_embedded(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance);
/** Changes the object to the variant that the handle's domain has for its type. Notifies if the variant changes. */
LUMO_UI_TARN_API void lumo_tarn_lumo_direction_e_adjust_variant(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance, uint32_t *err);
/** Destroys the object and frees its memory. NULL and the sentinel are ignored. */
LUMO_UI_TARN_API void lumo_tarn_lumo_direction_e_destroy(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance);
/** Sticky form of lumo_tarn_lumo_direction_e_destroy(): works under the handle's default_id, also while last_error is
 * set. */
LUMO_UI_TARN_API void lumo_tarn_lumo_direction_e_destroy_cr(mirk_handle *h, lumo_tarn_lumo_direction_e *instance);
/** Same as lumo_tarn_lumo_direction_e_destroy(), but has no effect with free_it 0, because an enumeration owns no other
 * memory. Returns the sentinel. */
LUMO_UI_TARN_API lumo_tarn_lumo_direction_e *lumo_tarn_lumo_direction_e_destroy_internal(mirk_handle *h,
    uint32_t ctx_id, lumo_tarn_lumo_direction_e *instance, uint32_t free_it);
/** @} */

/** @name References
 *  @{ */
/** Returns the number of object identifiers in the object: 0. EINVAL if instance is NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_get_oid_count(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance, uint32_t *err);
/** Writes nothing, because the object holds no object identifier. EINVAL if instance is NULL. */
LUMO_UI_TARN_API void lumo_tarn_lumo_direction_e_get_object_references(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance, void **not_used_1, uint32_t not_used_2, uint32_t *err);
/** @} */

/** @name Value
 *  @{ */
/** Returns the object itself, so that code can treat enumerations as it treats members. */
LUMO_UI_TARN_API lumo_tarn_lumo_direction_e *lumo_tarn_lumo_direction_e_get(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance, uint32_t *err);
/** Returns the value. 0 after an error; EINVAL if instance is NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_get_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance, uint32_t *err);
/** Copies the source with its header. EIDRM if its value is not an enumerator, EINVAL if either is NULL; nothing is
 * stored then. */
LUMO_UI_TARN_API void lumo_tarn_lumo_direction_e_set(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance, lumo_tarn_lumo_direction_e *source, uint32_t *err);
/** Stores a value, notifies, and marks the object as modified. EIDRM if the value is not an enumerator, EINVAL if
 * instance is NULL; nothing is stored then. */
LUMO_UI_TARN_API void lumo_tarn_lumo_direction_e_set_value(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance, uint32_t value, uint32_t *err);
/** Returns 1 if the value is an enumerator, else 0. Also returns 1 for numbers with the top bit set, which the setters
 * refuse, and for every value if the domain has a variant above 0. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_is_valid_cr(mirk_handle *h, uint32_t value);
/** Returns the value unchanged: this schema has no second numbering. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_map_to_user_value(uint32_t value);
/** Returns the value unchanged: this schema has no second numbering. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_map_to_internal_value(uint32_t value);
/** Returns the difference of the two values, a minus b. NULL comes first. */
LUMO_UI_TARN_API int32_t lumo_tarn_lumo_direction_e_compare(const lumo_tarn_lumo_direction_e *a,
    const lumo_tarn_lumo_direction_e *b);
/** Mixes the value into the seed. Returns the seed itself for NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_hash(const lumo_tarn_lumo_direction_e *instance, uint32_t seed);
/** Returns 1 if the object has the modified mark, and clears it. word is not used. NULL gives 0. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_backpropagate(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance, void *word);
/** @} */

/** @name Wire
 *  @{ */
/** Returns the number of bytes on the wire: 5, also for NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_len(mirk_handle *h, uint32_t ctx_id,
    lumo_tarn_lumo_direction_e *instance);
/** Sticky form of lumo_tarn_lumo_direction_e_len(). Returns 0 while last_error is set. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_len_cr(mirk_handle *h);
/** Writes variant and value, 5 bytes, into the remaining bytes at buffer. Returns the number of bytes written. EMSGSIZE
 * if they do not fit, ENOMEM if remaining is 0. EIDRM if the domain does not have the object's variant. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_direction_e *instance, int32_t remaining, uint32_t *err);
/** Reads variant and value, 5 bytes, from length bytes at buffer. Returns the number of bytes consumed. Any value is
 * accepted; reuse is ignored. EMSGSIZE if length is too small, ENOMEM if it is 0, EINVAL if instance is NULL. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer,
    lumo_tarn_lumo_direction_e *instance, uint32_t length, uint32_t reuse, uint32_t *err);
/** @} */

/** @name Text
 *  @{ */
/** Writes a line with the name and the enumerator, indented by indent blanks. Returns the length in bytes without the
 * final NUL. A value that is not an enumerator gives a text without a line end. ENOSPC if the text does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_print(mirk_handle *h, uint32_t ctx_id, char *buffer,
    uint32_t indent, const char *name, lumo_tarn_lumo_direction_e *instance, int32_t remaining, uint32_t *err);
/** Sticky form of lumo_tarn_lumo_direction_e_print(), under the type's own name. Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_print_cr(mirk_handle *h, lumo_tarn_lumo_direction_e *instance,
    char *buffer, int32_t remaining);
/** @} */

/** @name XML
 *  @{ */
/** Writes an XML element of this name that contains an empty element named like the enumerator. Returns the length in
 * bytes without the final NUL. The state is not written. A value that is not an enumerator gives text that is not
 * well-formed XML. EMSGSIZE if the text does not fit. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name,
    char *buffer, lumo_tarn_lumo_direction_e *instance, int32_t remaining, uint8_t state, uint32_t *err);
/** Sticky form of lumo_tarn_lumo_direction_e_to_xml(), under the type's own name. Returns 0xFFFFFFFF after an error. */
LUMO_UI_TARN_API uint32_t lumo_tarn_lumo_direction_e_toxml_cr(mirk_handle *h, lumo_tarn_lumo_direction_e *instance,
    char *buffer, int32_t remaining);
/** Reads the value from the enumerator's element below a path of the runtime's document. Without one, the value stays.
 * message, which may be NULL, gets a sentence only if reading an enumerator's element fails. Clear its first byte
 * before the call. */
LUMO_UI_TARN_API void lumo_tarn_lumo_direction_e_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path,
    void *document, lumo_tarn_lumo_direction_e *instance, uint32_t *err, char *message, uint32_t message_size);
/** @} */

LUMO_UI_TARN_END

#endif
