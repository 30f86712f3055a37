/** @file
 * messages.h - message headers, bundles, dispatch, recording, plain memory.
 */
#ifndef MIRK_MESSAGES_H
#define MIRK_MESSAGES_H

#include <stdio.h>

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Writes the 27-byte header at the start of a frame. The library passes 27 as `size`; EMSGSIZE for less. */
void _mirk_message_header_marshal(mirk_handle *h, uint32_t ctx_id, void *frame, mirk_message_header *header,
                                  uint32_t size, uint32_t *err);
/** Reads the header of a received buffer of `size` bytes and returns 27. Does not compare total_length with `size`.
 * EMSGSIZE: `size` is below 27. EBADMSG: wrong marker. Returns 0 on an error. */
uint32_t _mirk_message_header_unmarshal(mirk_handle *h, uint32_t ctx_id, void *frame, mirk_message_header *header,
                                        uint32_t size, uint32_t *err);

/** Returns nonzero if the domain allows the message. Returns its result even if *err is set, and writes *err only if
 * the look-up fails. */
uint32_t mirk_domain_lookup_message_ok(mirk_handle *h, mirk_domain *domain, mirk_type_info *type, uint32_t *err);
/** Returns nonzero if a message that fails to marshal is traced at level 7 instead of level 3. */
uint32_t mirklib_suppress_messages_enabled(mirk_handle *h);

/** Admits a message to the open send bundle: adds it to send_bundle_list with count 0, unless it is there. ENOENT:
 * bundle_table does not list it. ENOMEM: allocation failed. luid and name are not copied and must live until the bundle
 * ends. */
void bundle_message_validate_add(mirk_handle *h, uint32_t ctx_id, const uint8_t *luid, const char *name, uint32_t *err);
/** Adds 1 to the count of an admitted message. ENOENT: it was not admitted. */
void bundle_message_increment_count(mirk_handle *h, const uint8_t *luid, uint32_t *err);
/** Clears the send list, send_bundle_open and bundle_table. Works even if *err is set and if no bundle is open. */
void bundle_send_message_list_destroy(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
/** Destroys the messages on the receive list by their own destroy operations, and clears the list and recv_bundle_open.
 * Works even if *err is set and if no bundle is open. */
void bundle_receive_message_list_destroy(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
/** Returns nonzero while a bundle is being received. */
uint32_t mirklib_is_accumulating_bundle(mirk_handle *h);
/** Returns the dispatch entry of the message that is being dispatched, or null. Also writes the address of the look-up
 * table, or null, to `*lut`, unless `lut` is null. */
mirk_dispatch_info *mirklib_in_dispatch_message_info(mirk_handle *h, void **lut);

/** Returns nonzero while the recorder of the process is on. Its stream may be null even then. */
uint32_t mirklib_msg_recorder_get_state(void);
/** Returns the stream of the recorder, which may be null. The library writes to it and does not close it. */
FILE *mirklib_msg_recorder_get_handle(void);

/** Allocates memory that belongs to no handle. The caller owns it and releases it with mirklib_free(). The first
 * argument is null. Returns null if allocation fails. */
void *mirklib_malloc(void *zero, uint32_t ctx_id, size_t size);
/** Frees memory of mirklib_malloc(). The first argument is null. */
void mirklib_free(void *zero, uint32_t ctx_id, void *p);

#ifdef __cplusplus
}
#endif
#endif
