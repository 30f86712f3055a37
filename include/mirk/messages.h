/** @file
 * messages.h - message headers, bundles, dispatch, recording.
 */
#ifndef MIRK_MESSAGES_H
#define MIRK_MESSAGES_H

#include <stdio.h>

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Writes the 27 bytes of a header at the start of a frame. `size` is 27; below that 90. */
void _mirk_message_header_marshal(mirk_handle *h, uint32_t ctx_id, void *frame, mirk_message_header *header,
                                  uint32_t size, uint32_t *err);
/** Reads them. `size` is that of the received buffer: below 27 gives 90 and 0. A wrong marker gives 74 and 0. A good
 * header gives 27; its total_length is not held against the size. */
uint32_t _mirk_message_header_unmarshal(mirk_handle *h, uint32_t ctx_id, void *frame, mirk_message_header *header,
                                        uint32_t size, uint32_t *err);

/** Nonzero: the domain allows the message. Answers whatever *err holds, and writes the slot only if the look-up fails.
 */
uint32_t mirk_domain_lookup_message_ok(mirk_handle *h, mirk_domain *domain, mirk_type_info *type, uint32_t *err);
/** Nonzero: failed marshalling is traced at level 7 and not at 3. */
uint32_t mirklib_suppress_messages_enabled(mirk_handle *h);

/** Admits a message to the open send bundle: 2 if bundle_table does not list it, 12 without memory. Enters it once in
 * send_bundle_list, with count 0. luid and name are kept by address until the bundle ends. */
void bundle_message_validate_add(mirk_handle *h, uint32_t ctx_id, const uint8_t *luid, const char *name, uint32_t *err);
/** Adds 1 to its count; 2 if it was never entered. */
void bundle_message_increment_count(mirk_handle *h, const uint8_t *luid, uint32_t *err);
/** Releases the send list and ends the open state, whatever *err holds, also with nothing open. */
void bundle_send_message_list_destroy(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
/** Releases the receive list and ends the open state, whatever *err holds, also with nothing open; messages that are
 * still filed are destroyed through their own operations. */
void bundle_receive_message_list_destroy(mirk_handle *h, uint32_t ctx_id, uint32_t *err);
/** Nonzero while a bundle is being received. */
uint32_t mirklib_is_accumulating_bundle(mirk_handle *h);
/** The entry of what is being dispatched, or null. Writes the look-up table's address through `lut` unless that is
 * null, also when the result is null. */
mirk_dispatch_info *mirklib_in_dispatch_message_info(mirk_handle *h, void **lut);

/** Nonzero while the recorder is on. There is one for the process; its stream may be null all the same. */
uint32_t mirklib_msg_recorder_get_state(void);
/** The recorder's stream, which stays the runtime's; may be null. */
FILE *mirklib_msg_recorder_get_handle(void);

/** Plain memory; the first argument is 0. The caller owns what it gets until mirklib_free. Null: out of memory. */
void *mirklib_malloc(void *zero, uint32_t ctx_id, size_t size);
/** Gives back what mirklib_malloc() gave; the first argument is 0. */
void mirklib_free(void *zero, uint32_t ctx_id, void *p);

#ifdef __cplusplus
}
#endif
#endif
