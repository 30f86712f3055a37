/** @file
 * primitives.h - the value types that records are made of. Each has the same family of operations:
 *
 * - `_get`: the field's own address, null for null
 * - `_get_value`: the value; 0 for null
 * - `_set`: stores a copy of what the source holds, announced through write_notify
 * - `_set_value`: stores the value, announced
 * - `_initialize`: sets up the header of an embedded object, announced if `notify`, and counts unless `skip_count`
 * - `_len`: bytes on the wire; also for null
 * - `_marshal`: writes the wire form; returns its bytes
 * - `_unmarshal`: reads it, unannounced; returns the bytes consumed. `reuse` plays no part.
 * - `_print`: a line "name@kind:VALUE" behind `indent` blanks
 * - `_to_xml`: an element with the value; `name` stands in front of the buffer
 * - `_from_xml`: reads the element at a path, unannounced: 2 absent, 22 not a value of the type. err is not last; the
 *   message buffer is left alone.
 * - `_compare`: -1, 0 or 1; null orders first
 * - `_hash`: mixes the value into the seed; the seed itself for null
 * - `_backpropagate`: reports and clears the field's change mark; `word` is opaque
 *
 * Null where a value is read or written gives 22. Too little room or data gives 90. None of them keeps, owns or
 * allocates anything.
 */
#ifndef MIRK_PRIMITIVES_H
#define MIRK_PRIMITIVES_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Declares the operations of the integer kind K, whose values are of type T: K_get(), K_get_value(), K_set(),
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

/* mirk_boolean: an embedded object. */
/** The field's own address, null for null. */
mirk_boolean *mirk_boolean_get(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint32_t *err);
/** The value; 0 for null. */
uint8_t mirk_boolean_get_value(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint32_t *err);
/** Stores the value that the source holds, announced, and marks the field. */
void mirk_boolean_set(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, const mirk_boolean *source, uint32_t *err);
/** Stores the value, announced, and marks the field. */
void mirk_boolean_set_value(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, uint8_t value, uint32_t *err);
/** Sets up an embedded object: announced if `notify`, counted unless `skip_count`. */
void mirk_boolean_initialize(mirk_handle *h, uint32_t ctx_id, mirk_boolean *object, mirk_type_info *type,
                             uint32_t notify, uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Marks the object as lying in memory of another one. */
void mirk_boolean_set_instance_embedded(mirk_handle *h, uint32_t ctx_id, mirk_boolean *object);
/** Bytes on the wire, also for null. */
uint32_t mirk_boolean_len(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field);
/** Writes the wire form; returns its bytes. */
uint32_t mirk_boolean_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, mirk_boolean *field, int32_t remaining,
                              uint32_t *err);
/** Reads the wire form, unannounced; returns the bytes consumed. */
uint32_t mirk_boolean_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, mirk_boolean *field, int32_t remaining,
                                uint32_t reuse, uint32_t *err);
/** A line with the name and the value, `indent` blanks in. */
uint32_t mirk_boolean_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name,
                            mirk_boolean *field, int32_t remaining, uint32_t *err);
/** An element of this name with the value; a nonzero state is an attribute. */
uint32_t mirk_boolean_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, mirk_boolean *field,
                             int32_t remaining, uint8_t state, uint32_t *err);
/** Reads the element at a path, unannounced: 2 absent, 22 not a value of the type. */
void mirk_boolean_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, mirk_boolean *field,
                           uint32_t *err, char *message, uint32_t message_size);
/** -1, 0 or 1; null orders first. */
int32_t mirk_boolean_compare(const mirk_boolean *a, const mirk_boolean *b);
/** Mixes the value into the seed; the seed itself for null. */
uint32_t mirk_boolean_hash(const mirk_boolean *field, uint32_t seed);
/** Reports and clears the field's change mark; `word` is opaque. */
uint32_t mirk_boolean_backpropagate(mirk_handle *h, uint32_t ctx_id, mirk_boolean *field, void *word);
/** The type record of booleans. */
extern mirk_type_info _mirk_boolean_type_info_internal;

/* ip_address: an embedded record of seven members, with a state area of seven bytes and a frame of its own. It may hold
 * oids. */
/** The field's own address, null for null. */
ip_address *ip_address_get(mirk_handle *h, uint32_t ctx_id, ip_address *field, uint32_t *err);
/** Assigns the whole record, header included. */
void ip_address_set(mirk_handle *h, uint32_t ctx_id, ip_address *destination, ip_address *source, uint32_t *err);
/** Sets up an embedded object: announced if `notify`, counted unless `skip_count`. */
void ip_address_initialize(mirk_handle *h, uint32_t ctx_id, ip_address *object, mirk_type_info *type, uint32_t notify,
                           uint32_t skip_count, uint8_t flags, void *sttr_base, uint32_t *err);
/** Marks the object as lying in memory of another one. */
void ip_address_set_instance_embedded(mirk_handle *h, uint32_t ctx_id, ip_address *object);
/** Releases the memory only if `free_it`; an embedded address is passed 0. Failures reach the handle's last_error. */
void ip_address_destroy_internal(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t free_it);
/** Called behind the update of the address's own state offset, for what an address might embed. */
void ip_address_offset_update(mirk_handle *h, uint32_t ctx_id, ip_address *object, void *state_area, uint32_t *err);
/** Called behind the removal of the address's own state offset, for what an address might embed. */
void ip_address_offset_remove(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t *err);
/** How many oids the address holds. 22 for null. An error on entry is traced. */
uint32_t ip_address_get_oid_count(mirk_handle *h, uint32_t ctx_id, ip_address *object, uint32_t *err);
/** Which oids the address holds: at most `size` are written. 22 for null. */
void ip_address_get_object_references(mirk_handle *h, uint32_t ctx_id, ip_address *object, void **oids, uint32_t size,
                                      uint32_t *err);
/** Bytes on the wire, also for null. */
uint32_t ip_address_len(mirk_handle *h, uint32_t ctx_id, ip_address *field);
/** Writes the wire form; returns its bytes. */
uint32_t ip_address_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field, int32_t remaining,
                            uint32_t *err);
/** Reads the wire form, unannounced; returns the bytes consumed. */
uint32_t ip_address_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, ip_address *field, int32_t remaining,
                              uint32_t reuse, uint32_t *err);
/** A line with the name and the value, `indent` blanks in. */
uint32_t ip_address_print(mirk_handle *h, uint32_t ctx_id, char *buffer, uint32_t indent, const char *name,
                          ip_address *field, int32_t remaining, uint32_t *err);
/** An element of this name with the value; a nonzero state is an attribute. */
uint32_t ip_address_to_xml(mirk_handle *h, uint32_t ctx_id, const char *name, char *buffer, ip_address *field,
                           int32_t remaining, uint8_t state, uint32_t *err);
/** Reads the element at a path, unannounced: 2 absent, 22 not a value of the type. */
void ip_address_from_xml(mirk_handle *h, uint32_t ctx_id, const char *path, void *document, ip_address *field,
                         uint32_t *err, char *message, uint32_t message_size);
/** -1, 0 or 1; null orders first. */
int32_t ip_address_compare(const ip_address *a, const ip_address *b);
/** Mixes the value into the seed; the seed itself for null. */
uint32_t ip_address_hash(const ip_address *field, uint32_t seed);
/** Reports and clears the address's change marks; `word` is opaque. */
uint32_t ip_address_type_type_backpropagate(mirk_handle *h, uint32_t ctx_id, ip_address *field, void *word);
/** The type record of addresses. */
extern mirk_type_info _ip_address_type_info_internal;

#ifdef __cplusplus
}
#endif
#endif
