/** @file
 * wire.h - the parts of a record frame that are not members.
 *
 * Functions return the number of bytes written or read. EMSGSIZE: too little space or data. EINVAL: a null pointer.
 * After an error nothing has been written, and the result is 0.
 */
#ifndef MIRK_WIRE_H
#define MIRK_WIRE_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Writes a variant: 1 byte. */
uint32_t _mirk_instance_variant_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, int8_t *variant,
                                        int32_t remaining, uint32_t *err);
/** Reads a variant: 1 byte. */
uint32_t _mirk_instance_variant_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, int8_t *variant,
                                          int32_t remaining, uint32_t *err);
/** Writes a flag: 1 byte. */
uint32_t _mirk_instance_obj_flag_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, uint8_t *flag,
                                         int32_t remaining, uint32_t *err);
/** Reads a flag: 1 byte. */
uint32_t _mirk_instance_obj_flag_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, uint8_t *flag,
                                           int32_t remaining, uint32_t *err);
/** Writes a jump, the number of bytes from the first byte of the jump to the end of the frame: 4 bytes, big-endian. */
uint32_t _mirk_variant_jump_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, uint32_t *jump, int32_t remaining,
                                    uint32_t *err);
/** Reads a jump: 4 bytes, big-endian. */
uint32_t _mirk_variant_jump_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, uint32_t *jump, int32_t remaining,
                                      uint32_t *err);

/** Reads the RA data of an object; null and 0 if it has none. There is no error slot: returns 0 or the error number. On
 * an error the values are not written. */
uint32_t mirklib_get_ra_data(mirk_handle *h, uint32_t ctx_id, void *instance, void **ra_value, uint8_t *ra_byte);
/** Writes RA data: 9 bytes, value and byte. */
uint32_t _mirk_instance_ra_data_marshal(mirk_handle *h, uint32_t ctx_id, void *buffer, void **ra_value,
                                        uint8_t *ra_byte, int32_t remaining, uint32_t *err);
/** Reads RA data: 9 bytes, value and byte. */
uint32_t _mirk_instance_ra_data_unmarshal(mirk_handle *h, uint32_t ctx_id, void *buffer, void **ra_value,
                                          uint8_t *ra_byte, int32_t remaining, uint32_t *err);
/** Records RA data for an object, replacing earlier data. The value is an opaque word from the wire and must not be
 * dereferenced. */
void mirklib_update_ra_all(mirk_handle *h, uint32_t ctx_id, void *instance, void *ra_value, uint8_t ra_byte);

/** Returns the bytes of one character on the wire: 1. */
uint32_t char_len(mirk_handle *h, uint32_t ctx_id, void *chars);
/** Returns the bytes of one character in memory: 1. */
uint32_t char_sizeof(mirk_handle *h);

#ifdef __cplusplus
}
#endif
#endif
