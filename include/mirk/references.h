/** @file
 * references.h - object identifiers (oids), and data that a runtime keeps for objects outside their memory.
 */
#ifndef MIRK_REFERENCES_H
#define MIRK_REFERENCES_H

#include "mirk/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Requests removal of the oid of an object. Returns nonzero if it was removed or there was none. Returns 0 without an
 * error if references remain: the runtime then destroys the object when the last one is released. */
uint32_t mirk_request_oid_mapping_destroy(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t *err);
/** Removes the state offset and the RA data that the runtime keeps for an object. It is not an error if there are none.
 * Changes no flags. */
void mirk_hd_mapping_destroy(mirk_handle *h, uint32_t ctx_id, void *object, uint32_t *err);
/** Decrements the reference count of the object with this oid. At 0 destroys an object whose destruction was deferred.
 * ENOENT: unknown oid. EINVAL: the count is 0 already. `zero` is always 0. */
void mirklib_lookup_and_update_oid_ref_count(mirk_handle *h, uint32_t ctx_id, void *oid, uint32_t zero, uint32_t *err);

#ifdef __cplusplus
}
#endif
#endif
