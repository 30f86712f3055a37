/** @file
 * primitives.h - the value types of record members. Each type has the same functions, as far as they apply to it:
 *
 * - `_get`: returns `field`. Null for null.
 * - `_get_value`: returns the value. 0 for null.
 * - `_set`: stores a copy of the value of `source`. Calls write_notify first.
 * - `_set_value`: stores the value. Calls write_notify first.
 * - `_initialize`: initializes the header of an embedded object. Calls write_notify if `notify` is nonzero.
 *   Counts a created object unless `skip_count` is nonzero.
 * - `_len`: returns the number of bytes on the wire, also for null.
 * - `_marshal`: writes the wire form and returns its bytes.
 * - `_unmarshal`: reads the wire form and returns its bytes. Does not call write_notify. `reuse` is ignored.
 * - `_print`: writes a line "name@kind:VALUE", indented by `indent` spaces. Returns its characters without the NUL.
 * - `_to_xml`: writes an element with the value; a nonzero `state` is written as its attribute `state`. Returns its
 *   characters without the NUL. Note that `name` precedes the buffer.
 * - `_from_xml`: reads the value from the first element at `path`. Does not call write_notify. ENOENT: no such element.
 *   EINVAL: not a value of the type. ENOMEM: allocation failed. `message` is not written. Note that `err` is not the
 *   last argument.
 * - `_compare`: returns -1, 0 or 1. Null is less than any value.
 * - `_hash`: mixes the value into the seed and returns the result. Returns the seed for null.
 * - `_backpropagate`: returns the modified mark of the field, 1 or 0, and clears it. `word` is opaque.
 *
 * EINVAL: a null pointer where a value is read or written. EMSGSIZE: too little space or data. After an error nothing
 * has been written, and the result is 0; an ip_address is an exception. No function calls obj_alloc or keeps its
 * arguments.
 */
#ifndef MIRK_PRIMITIVES_H
#define MIRK_PRIMITIVES_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Declares the functions of the integer kind K, whose values have type T: K_get(), K_get_value(), K_set(),
 * K_set_value(), K_len(), K_marshal(), K_unmarshal(), K_print(), K_to_xml(), K_from_xml(), K_hash(), K_backpropagate().
 */
#define MIRK_INTEGER(K, T)                                                                                             \
    T *K##_get(mirk_handle *h, uint32_t ctx_id, T *field, uint32_t *err);                                              \
    T K##_get_value(mirk_handle *h, uint32_t ctx_id, T *field, uint32_t *err);                                         \
    void K##_set(mirk_handle *h, uint32_t ctx_id, T *field, const T *source, uint32_t *err);                           \
    void K##_set_value(mirk_handle *h, uint32_t ctx_id, T *field, T value, uint32_t *err);                             \
    uint32_t K##_len(mirk_handle *h, uint32_t ctx_id, T *field);                                                       \
    uint32_t K##_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, T *field, int32_t remaining, uint32_t *err);   \
    uint32_t K##_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, T *field, int32_t remaining, uint32_t reuse, \
                           uint32_t *err);                                                                             \
    uint32_t K##_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name, T *field,     \
                       int32_t remaining, uint32_t *err);                                                              \
    uint32_t K##_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, T *field, int32_t remaining,  \
                        uint8_t state, uint32_t *err);                                                                 \
    void K##_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, T *field, uint32_t *err,      \
                      char *message, uint32_t message_size);                                                           \
    uint32_t K##_hash(const T *field, uint32_t seed);                                                                  \
    uint32_t K##_backpropagate(mirk_handle *h, uint32_t ctx_id, T *field, void *word);

MIRK_INTEGER(u_int8, uint8_t)
MIRK_INTEGER(u_int16, uint16_t)
MIRK_INTEGER(u_int32, uint32_t)
MIRK_INTEGER(u_int64, uint64_t)

/* mirk_boolean: an object that is embedded in a record. */
/** Returns `field`. Null for null. */
mirk_boolean *mirk_boolean_get(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint32_t *err);
/** Returns the value. 0 for null. */
uint8_t mirk_boolean_get_value(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint32_t *err);
/** Stores the value of `source` and sets the modified mark. Calls write_notify first. */
void mirk_boolean_set(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, const mirk_boolean *source, uint32_t *err);
/** Stores the value and sets the modified mark. Calls write_notify first. */
void mirk_boolean_set_value(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint8_t value, uint32_t *err);
/** Initializes the header of an embedded object and adds `flags` to its flags. Calls write_notify if `notify` is
 * nonzero. Counts a created object unless `skip_count` is nonzero. Clears last_error. */
void mirk_boolean_initialize(mirk_handle *h, uint32_t ctx_id, mirk_boolean *object, mirk_type_info *type,
                             uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Sets the flag "embedded" (2): the object is in memory of another object. Calls write_notify first. */
void mirk_boolean_set_instance_embedded(mirk_handle *h, uint32_t ctx_id, mirk_boolean *object);
/** Returns the number of bytes on the wire, also for null. */
uint32_t mirk_boolean_len(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field);
/** Writes the wire form and returns its bytes. */
uint32_t mirk_boolean_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, mirk_boolean *field, int32_t remaining,
                              uint32_t *err);
/** Reads the wire form and returns its bytes. Does not call write_notify. */
uint32_t mirk_boolean_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, mirk_boolean *field, int32_t remaining,
                                uint32_t reuse, uint32_t *err);
/** Writes a line with the name and the value, indented by `indent` spaces. */
uint32_t mirk_boolean_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name,
                            mirk_boolean *field, int32_t remaining, uint32_t *err);
/** Writes an element of this name with the value; a nonzero `state` is written as its attribute `state`. */
uint32_t mirk_boolean_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, mirk_boolean *field,
                             int32_t remaining, uint8_t state, uint32_t *err);
/** Reads the value from the first element at a path. ENOENT: no such element. EINVAL: not a value of the type.
 * ENOMEM: allocation failed. */
void mirk_boolean_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, mirk_boolean *field,
                           uint32_t *err, char *message, uint32_t message_size);
/** Returns -1, 0 or 1. Null is less than any value. */
int32_t mirk_boolean_compare(const mirk_boolean *a, const mirk_boolean *b);
/** Mixes the value into the seed and returns the result. Returns the seed for null. */
uint32_t mirk_boolean_hash(const mirk_boolean *field, uint32_t seed);
/** Returns the modified mark of the field, 1 or 0, and clears it. `word` is opaque. */
uint32_t mirk_boolean_backpropagate(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, void *word);
/** The type record of booleans. */
extern mirk_type_info _mirk_boolean_type_info_internal;

/* ip_address: an embedded record of seven members. It has its own state area of seven bytes and its own frame, and may
 * refer to other objects by oids. Its functions write errors to last_error only where their comments say so. */
/** Returns `field`. Null for null. */
ip_address *ip_address_get(mirk_handle *h, uint32_t ctx_id, ip_address *field, uint32_t *err);
/** Copies the whole record, including its header. Calls write_notify first. EINVAL, also written to last_error: a null
 * pointer, or the handle tracks state and the destination has no state area. */
void ip_address_set(mirk_handle *h, uint32_t ctx_id, ip_address *destination, ip_address *source, uint32_t *err);
/** Initializes the header of an embedded object and adds `flags` to its flags. Calls write_notify if `notify` is
 * nonzero. Counts a created object unless `skip_count` is nonzero. Clears last_error.
 *
 * With tracking on, a nested object that is counted needs `sttr_base`, the state area of its parent: EINVAL
 * for null, also written to last_error. */
void ip_address_initialize(mirk_handle *h, uint32_t ctx_id, ip_address *object, mirk_type_info *type, uint32_t notify,
                           uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Sets the flag "embedded" (2): the object is in memory of another object. Calls write_notify first. */
void ip_address_set_instance_embedded(mirk_handle *h, uint32_t ctx_id, ip_address *object);
/** Destroys an address. Frees its memory only if `free_it` is nonzero, which it is not for an embedded address. Errors
 * are written to last_error. Null is ignored. */
void ip_address_destroy_internal(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t free_it);
/** Called after the state offset of the address itself is updated, to update objects embedded in it. */
void ip_address_offset_update(mirk_handle *h, uint32_t ctx_id, ip_address *object, void *state_area, uint32_t *err);
/** Called after the state offset of the address itself is removed, to remove those of objects embedded in it. */
void ip_address_offset_remove(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t *err);
/** Returns how many oids the address refers to. EINVAL for null, also written to last_error. Traces an error that
 * is set on entry. */
uint32_t ip_address_get_oid_count(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t *err);
/** Writes up to `size` oids that the address refers to. EINVAL for null, also written to last_error. Traces an error
 * that is set on entry. */
void ip_address_get_object_references(mirk_handle *h, uint32_t ctx_id, ip_address *object, void **oids, uint32_t size,
                                      uint32_t *err);
/** Returns the number of bytes on the wire, also for null. */
uint32_t ip_address_len(mirk_handle *h, uint32_t ctx_id, ip_address *field);
/** Writes the wire form and returns its bytes. Clears last_error. ENOMEM, also written to last_error: `remaining` is
 * below 1. EIDRM: see mirk_store_epoch_err(). After EMSGSIZE a part may have been written. */
uint32_t ip_address_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field, int32_t remaining,
                            uint32_t *err);
/** Reads the wire form and returns its bytes. Clears last_error. Does not call write_notify. ENOMEM, also written to
 * last_error: `remaining` is below 1. After EMSGSIZE a part may have been read. */
uint32_t ip_address_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field, int32_t remaining,
                              uint32_t reuse, uint32_t *err);
/** Writes a line with the name and the value, indented by `indent` spaces. */
uint32_t ip_address_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name,
                          ip_address *field, int32_t remaining, uint32_t *err);
/** Writes an element of this name with the value; a nonzero `state` is written as its attribute `state`. */
uint32_t ip_address_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, ip_address *field,
                           int32_t remaining, uint8_t state, uint32_t *err);
/** Reads the value from the first element at a path. ENOENT: no such element. EINVAL: not a value of the type.
 * ENOMEM: allocation failed. */
void ip_address_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, ip_address *field,
                         uint32_t *err, char *message, uint32_t message_size);
/** Returns -1, 0 or 1. Null is less than any value. */
int32_t ip_address_compare(const ip_address *a, const ip_address *b);
/** Mixes the value into the seed and returns the result. Returns the seed for null. */
uint32_t ip_address_hash(const ip_address *field, uint32_t seed);
/** Returns 1 if the address or one of its members has a modified mark, otherwise 0. Clears the mark of the address and
 * that of the first marked member; other members keep theirs. `word` is opaque. */
uint32_t ip_address_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id, ip_address *field, void *word);
/** The type record of addresses. */
extern mirk_type_info _ip_address_type_info_internal;

#ifdef __cplusplus
}
#endif
#endif
